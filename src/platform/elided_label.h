// A label that ends a text that does not fit in "…" and shows the whole of it as tooltip, in the place of its own.
// Never rich text: what it shows comes out of files.
#pragma once

#include <QLabel>

namespace tavelo {

class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

// A tooltip that shows the text as it stands, whatever signs are in it.
[[nodiscard]] QString plain_tooltip(const QString& text);

} // namespace tavelo
