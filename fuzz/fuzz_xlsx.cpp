// Opens the bytes as an .xlsx workbook, locked or not, reads its sheets and renders every text; whatever the bytes are,
// every index in the answer must hold. Bytes that are neither are taken for the parts themselves, separated by a zero
// byte: a mutation inside a packed part would seldom come through its checksum.
#include "workbook/workbook.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t most_sheets = 8; // many names of one sheet would only repeat the same work

void require(bool condition) {
    if (!condition) std::abort();
}

std::vector<std::byte> zip_of_parts(std::string_view bytes) {
    constexpr std::array names{"xl/worksheets/sheet1.xml", "xl/sharedStrings.xml", "xl/styles.xml", "xl/workbook.xml",
                               "xl/_rels/workbook.xml.rels"};
    const tavelo::test::XlsxMaker maker{.shared_strings = "<si/>", .styles = "<cellXfs/>"};
    tavelo::test::Parts parts = maker.parts();
    for (const char* name : names) {
        const auto end = bytes.find('\0');
        if (!bytes.empty()) tavelo::test::replace_part(parts, name, std::string(bytes.substr(0, end)));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    return tavelo::test::zip_of(parts);
}

void check(const tavelo::Sheet& sheet, const tavelo::Workbook& workbook) {
    const tavelo::Cell* before = nullptr;
    for (const tavelo::Cell& cell : sheet.cells) {
        require(cell.format < workbook.formats().size());
        require(cell.kind != tavelo::CellKind::text || cell.text < workbook.texts().size());
        require(cell.row - sheet.used.first_row < sheet.used.rows);
        require(cell.column - sheet.used.first_column < sheet.used.columns);
        require(before == nullptr || before->row < cell.row ||
                (before->row == cell.row && before->column < cell.column));
        before = &cell;
    }
    require(sheet.column_widths.size() <= 16384);
    for (const double width : sheet.column_widths)
        require(width >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::byte> bytes(size);
    if (size > 0) std::memcpy(bytes.data(), data, size);
    const bool is_zip = size >= 2 && data[0] == 'P' && data[1] == 'K';
    const bool is_compound_file = size >= 2 && data[0] == 0xD0 && data[1] == 0xCF;
    if (!is_zip && !is_compound_file) bytes = zip_of_parts({reinterpret_cast<const char*>(data), size});

    const auto workbook = tavelo::open_workbook(std::move(bytes));
    if (!workbook) return 0;
    for (std::size_t i = 0; i < std::min(most_sheets, (*workbook)->sheets().size()); ++i) {
        const auto sheet = (*workbook)->read_sheet(i);
        if (!sheet) continue;
        check(*sheet, **workbook);
        if (std::uint64_t{sheet->used.rows} * sheet->used.columns < 100'000)
            static_cast<void>(tavelo::blad_als_csv(**workbook, i + 1, tavelo::locale_named("nl-NL")));
    }
    return 0;
}
