// Opens the bytes as an .xls workbook, reads its sheets and renders their texts; whatever the bytes are, every index in
// the answer must hold.
#include "workbook/book/containers.h"
#include "workbook/workbook.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::size_t most_sheets = 8; // many names of one sheet would only repeat the same work

void require(bool condition) {
    if (!condition) std::abort();
}

void check(const tavelo::Sheet& sheet, const tavelo::Workbook& workbook) {
    tavelo::DisplayedTexts texts(workbook, tavelo::locale_named("nl-NL"));
    std::size_t shown = 0; // bytes
    for (const tavelo::Cell& cell : sheet.cells) {
        require(cell.format < workbook.formats().size());
        require(cell.kind != tavelo::CellKind::text || cell.text < workbook.texts().size());
        require(cell.row - sheet.used.first_row < sheet.used.rows);
        require(cell.column - sheet.used.first_column < sheet.used.columns);
        shown += texts.of(cell).size();
    }
    require(shown <= tavelo::most_shown_bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::byte> bytes(size);
    if (size > 0) std::memcpy(bytes.data(), data, size);
    const auto workbook = tavelo::open_xls(std::move(bytes));
    if (!workbook) return 0;
    for (std::size_t i = 0; i < std::min(most_sheets, (*workbook)->sheets().size()); ++i) {
        if (const auto sheet = (*workbook)->read_sheet(i)) check(*sheet, **workbook);
    }
    return 0;
}
