// Workbooks that are locked. Excel itself locks a workbook whose structure alone is protected under a password that it
// knows, and opens it without asking; only such workbooks can be read here.
#pragma once

#include "workbook/xls/biff_stream.h"

namespace tavelo {

enum class Lock : std::uint8_t { none, opened, password };

// Looks for the lock among the globals, and unlocks the records in place where Excel would not ask for a password.
// Otherwise the stream stays as it was.
[[nodiscard]] Lock unlock(std::span<std::byte> stream);

} // namespace tavelo
