// The toolkit's own texts in its dialogs and context menus, in Dutch whatever the language of the computer.
#pragma once

#include <QTranslator>

namespace tavelo {

class DutchTexts final : public QTranslator {
  public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    // A null string, so the original text, for a text that is not in the list.
    [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                    int n) const override;
};

} // namespace tavelo
