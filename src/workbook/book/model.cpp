#include "workbook/book/model.h"

#include <new>

namespace tavelo {

std::expected<Sheet, OpenFailure> Workbook::read_sheet(std::size_t index) {
    try {
        return sheet_at(index);
    } catch (const std::bad_alloc&) {
        return std::unexpected(OpenFailure::no_memory);
    }
}

} // namespace tavelo
