// What Excel shows in a cell: the stored value under the number format of the cell, in the words of a locale.
#pragma once

#include "workbook/book/model.h"
#include "workbook/text/locale.h"
#include "workbook/text/number_format.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// So many bytes of text are shown of one sheet: more than sixteen for each of most_shown_cells. Only a file that is
// made for it goes beyond, by a long text that thousands of cells point at.
inline constexpr std::size_t most_shown_bytes = std::size_t{64} * 1024 * 1024;

// A longer code, in bytes, is General: Excel takes none of more than 255 characters.
inline constexpr std::size_t longest_format_code = 3 * std::size_t{255};

// The texts of one sheet. A format is parsed when the first cell needs it. Workbook and locale outlive this.
class DisplayedTexts {
  public:
    DisplayedTexts(const Workbook& workbook, const Locale& locale)
        : workbook_(workbook),
          locale_(locale),
          texts_(workbook.texts()),
          dates_(workbook.dates_from_1904() ? DateSystem::from_1904 : DateSystem::from_1900) {}

    // Texts and the words of booleans go through the text section of the format, errors never. A blank cell shows
    // nothing. At most longest_text characters; and from the call on that would bring the sum of the texts given so far
    // beyond most_shown_bytes, nothing. The view holds until the next call.
    [[nodiscard]] std::string_view of(const Cell& cell) { return of(cell, made_); }
    // The same, with a view that holds as long as nothing else is done with `room`, where it stands or not.
    [[nodiscard]] std::string_view of(const Cell& cell, std::string& room);

  private:
    [[nodiscard]] std::string_view whole_text_of(const Cell& cell, std::string& room);
    [[nodiscard]] const NumberFormat& format_of(const Cell& cell) {
        return cell.format < formats_.size() && formats_[cell.format] ? *formats_[cell.format] : parsed_format_of(cell);
    }
    [[nodiscard]] const NumberFormat& parsed_format_of(const Cell& cell);

    const Workbook& workbook_;
    const Locale& locale_;
    const TextTable& texts_;
    const DateSystem dates_;
    std::vector<std::unique_ptr<const NumberFormat>> formats_; // null until a cell needs it
    NumberFormat general_{""};
    std::string made_;
    std::size_t bytes_left_ = most_shown_bytes;
};

} // namespace tavelo
