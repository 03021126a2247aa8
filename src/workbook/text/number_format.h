// The displayed text of a stored value under a number format code, as Excel shows it in a column that is wide enough.
#pragma once

#include "workbook/text/locale.h"

#include <memory>
#include <string>
#include <string_view>

namespace tavelo {

enum class DateSystem { from_1900, from_1904 };

// One parsed format code (up to four sections). Parsing never fails: what is not understood is shown as Excel would, or
// as General.
class NumberFormat {
  public:
    // `code` in the en-US notation that workbooks store; "" and "General" in any case are General.
    explicit NumberFormat(std::string_view code);
    NumberFormat(NumberFormat&&) noexcept;
    NumberFormat& operator=(NumberFormat&&) noexcept;
    ~NumberFormat();

    [[nodiscard]] std::string show_number(double value, DateSystem dates, const Locale& locale) const;
    // The same into a text whose room is used again, for many numbers in a row.
    void show_number(double value, DateSystem dates, const Locale& locale, std::string& text) const;
    // Texts and booleans go through the text section; without one the text is shown as it is.
    // What comes after longest_text characters may be left out.
    [[nodiscard]] std::string show_text(std::string_view text) const;
    // False when every text is shown as it is.
    [[nodiscard]] bool changes_texts() const { return changes_texts_; }

  private:
    struct Parsed;
    std::unique_ptr<const Parsed> parsed_;
    bool changes_texts_;
};

// The code of a built-in format id; General for an id that has none. The ids that follow the system's dates and times
// (14, 20 to 22, the East Asian ones) and its amounts (5 to 8, 37 to 44) give a code with a tag of our own, which
// stands for what the Locale has for them.
[[nodiscard]] std::string_view builtin_format(unsigned id);

// `code`, or the code that the locale has where `code` is the tag of an amount.
[[nodiscard]] std::string_view code_in_locale(std::string_view code, const Locale& locale);

} // namespace tavelo
