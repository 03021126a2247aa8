// Opens the bytes as what is named a workbook and is something else: a page, a spreadsheet in XML, rows of text. Bytes
// that begin as the content of an OpenDocument spreadsheet are packed first. Reads the sheets and renders every text;
// whatever the bytes are, every index in the answer must hold and every text be valid.
#include "eis.h"
#include "workbook/book/containers.h"
#include "workbook/workbook.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace tavelo;

constexpr std::size_t most_sheets_read = 4; // many sheets would only repeat the same work

void check(const Sheet& sheet, const Workbook& workbook) {
    DisplayedTexts texts(workbook, locale_named("nl-NL"));
    std::pair<std::uint32_t, std::uint32_t> before{};
    for (const Cell& cell : sheet.cells) {
        const std::pair<std::uint32_t, std::uint32_t> place{cell.row, cell.column};
        eis(&cell == &sheet.cells.front() || before < place);
        before = place;
        eis(cell.format < workbook.formats().size());
        eis(cell.kind != CellKind::text || cell.text < workbook.texts().size());
        eis(cell.row - sheet.used.first_row < sheet.used.rows);
        eis(cell.column - sheet.used.first_column < sheet.used.columns);
    }
    constexpr std::size_t enough = 4096;
    for (std::size_t i = 0; i < std::min(enough, sheet.cells.size()); ++i)
        eis(!texts.of(sheet.cells[i]).contains('\0'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::byte> bytes(size);
    if (size > 0) std::memcpy(bytes.data(), data, size);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with("PK") || begins_as_xls(bytes)) return 0; // fuzz_xlsx and fuzz_xls have those
    if (text.starts_with("<office")) bytes = test::zip_of({{"content.xml", std::string(text)}});
    const auto workbook = open_workbook(std::move(bytes));
    if (!workbook) return 0;
    for (std::size_t i = 0; i < std::min(most_sheets_read, (*workbook)->sheets().size()); ++i)
        if (const auto sheet = (*workbook)->read_sheet(i)) check(*sheet, **workbook);
    return 0;
}
