// A sheet as a CSV text, for whoever wants to see what the program reads in a workbook.
#pragma once

#include "workbook/book/model.h"
#include "workbook/text/locale.h"

#include <cstddef>
#include <expected>
#include <string>

namespace tavelo {

// RFC 4180 in UTF-8: the displayed texts from A1 to the end of the used range, lines ended by CR LF. `blad` counts from
// 1 over sheets of all types; a chart sheet and a sheet that the workbook does not have give the empty text.
[[nodiscard]] std::expected<std::string, OpenFailure> blad_als_csv(Workbook& workbook, std::size_t blad,
                                                                   const Locale& locale);

} // namespace tavelo
