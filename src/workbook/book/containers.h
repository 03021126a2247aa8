// The readers of the two containers that Excel itself writes.
#pragma once

#include "workbook/book/model.h"

#include <cstddef>
#include <expected>
#include <memory>
#include <span>
#include <vector>

namespace tavelo {

// `bytes` is the whole file. Each reader answers not_a_workbook for what is not its container. They may throw
// std::bad_alloc.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xlsx(std::vector<std::byte> bytes);
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xls(std::vector<std::byte> bytes);
// A compound file, or a stream of records without one.
[[nodiscard]] bool begins_as_xls(std::span<const std::byte> bytes);

} // namespace tavelo
