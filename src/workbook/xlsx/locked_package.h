// .xlsx workbooks that are locked: the package lies encrypted in a compound file. Excel locks a workbook whose
// structure alone is protected under a password that it knows, and opens it without asking; only such workbooks can be
// read here.
#pragma once

#include "workbook/book/model.h"
#include "workbook/xls/biff_stream.h"

#include <expected>
#include <vector>

namespace tavelo {

// The package inside. not_a_workbook when `file` holds no locked package, password when Excel would ask for one, or
// when it is locked in a way that is not known here; damaged when it is cut off.
[[nodiscard]] std::expected<std::vector<std::byte>, OpenFailure> unlocked_package(ByteSpan file);

} // namespace tavelo
