// Opens an Excel workbook of either format.
#pragma once

#include "excel/book/workbook.h"

#include <cstdint>
#include <expected>
#include <memory>
#include <string_view>
#include <vector>

namespace tavelo {

// A longer file is refused as too large: it is read as a whole.
inline constexpr std::uintmax_t largest_workbook_file = 256U * 1024 * 1024;

// `file` is a UTF-8 path. The content decides which reader it gets and the extension does not: Excel too opens an .xlsx
// that is named .xls. The file is read whole and closed before this returns, without a lock, so that who is editing it
// can go on saving. An empty file is damaged: that is how a file begins that is being saved.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::string_view file);

// The same for a file that is in memory.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::vector<std::byte> bytes);

// One Dutch sentence for the operator.
[[nodiscard]] std::string_view sentence_of(OpenFailure failure);

} // namespace tavelo
