// A label that breaks a text over as many lines as it is high for, ends what does not fit in "…" and shows the whole of
// it as tooltip, in the place of its own. Never rich text: what it shows comes out of files.
#pragma once

#include <QLabel>

namespace tavelo {

class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    // How many lines the whole text takes in a width, at least one.
    [[nodiscard]] int lines_for(int width) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    struct Shown {
        QString lines; // separated by line feeds
        bool cut = false;
    };
    [[nodiscard]] QRect place() const;
    [[nodiscard]] Shown shown() const;
};

// From one line of a text to the next, as they are painted. The toolkit's own answer rounds each part of it, so that
// many lines may become higher than it says.
[[nodiscard]] int line_height(const QFontMetrics& letters);

// A tooltip that shows the text as it stands, whatever signs are in it.
[[nodiscard]] QString plain_tooltip(const QString& text);

} // namespace tavelo
