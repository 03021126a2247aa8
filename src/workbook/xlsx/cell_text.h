// The text of a string as a worksheet part or the shared strings part stores it.
#pragma once

#include "workbook/xlsx/xml_reader.h"

#include <string>
#include <string_view>

namespace tavelo {

// Characters that XML cannot hold are stored as "_x000D_": four hexadecimal digits of a UTF-16 unit, in any case. Two
// units that form a pair give one character, half a pair gives U+FFFD. Excel stores "_x005F_" for the underscore of
// such a text itself.
[[nodiscard]] std::string without_escapes(std::string_view text);

// Adds a piece of a text as it is stored, but no more than the longest text of escapes alone takes: the rest of it
// would be cut off anyway.
void append_stored(std::string& text, std::string_view piece);

// Gathers the text below an <si> or <is> element: that of its <t> and of the <t> of every run, joined. Phonetic runs
// (<rPh>) are left out. Without xml:space="preserve" a <t> loses the white space at its ends, as Excel does it, so
// words of neighbouring runs may grow together.
class RichText {
  public:
    void element_start(std::string_view name, const XmlAttributes& attributes);
    void element_end(std::string_view name);
    void text(std::string_view piece);
    // The text so far; the next one begins empty.
    [[nodiscard]] std::string take();

  private:
    std::string joined_;
    std::string run_;
    bool inside_run_ = false;
    bool preserve_ = false;
    unsigned phonetic_depth_ = 0;
};

} // namespace tavelo
