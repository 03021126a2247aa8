// What Excel shows in a cell: the stored value under the number format of the cell, in the words of a locale.
#pragma once

#include "workbook/book/model.h"
#include "workbook/text/locale.h"
#include "workbook/text/number_format.h"

#include <optional>
#include <string>
#include <vector>

namespace tavelo {

// The texts of one workbook. A format is parsed when the first cell needs it. Workbook and locale outlive this.
class DisplayedTexts {
  public:
    DisplayedTexts(const Workbook& workbook, const Locale& locale) : workbook_(workbook), locale_(locale) {}

    // Texts and the words of booleans go through the text section of the format, errors never. A blank cell shows
    // nothing.
    [[nodiscard]] std::string of(const Cell& cell);

  private:
    const NumberFormat& format_of(const Cell& cell);

    const Workbook& workbook_;
    const Locale& locale_;
    std::vector<std::optional<NumberFormat>> formats_;
    NumberFormat general_{""};
};

} // namespace tavelo
