#include "xls_bytes.h"

#include <sstream>

namespace tavelo::testing_xls {

namespace {

enum class Version { biff5, biff8 };

Bytes bof(Version version, unsigned kind) {
    return Bytes().record(0x0809, version == Version::biff8 ? bof_8(kind) : bof_5(kind));
}

Bytes name_record(Version version, const SheetBytes& sheet, std::size_t offset) {
    Bytes data;
    data.u32(static_cast<std::uint32_t>(offset)).u8(0).u8(sheet.stored_kind);
    data.u8(static_cast<unsigned>(sheet.name.size()));
    if (version == Version::biff8) data.u8(0);
    return Bytes().record(0x0085, data.narrow(sheet.name));
}

Bytes stream_of(Version version, const std::vector<SheetBytes>& sheets, const Bytes& records) {
    const Bytes eof = Bytes().record(0x000A);
    std::size_t sheets_begin = bof(version, globals).size() + records.size() + eof.size();
    for (const SheetBytes& sheet : sheets)
        sheets_begin += name_record(version, sheet, 0).size();

    Bytes head = bof(version, globals).add(records);
    Bytes tail;
    for (const SheetBytes& sheet : sheets) {
        head.add(name_record(version, sheet, sheets_begin + tail.size()));
        tail.add(bof(version, sheet.bof_kind)).add(sheet.records).add(eof);
    }
    return head.add(eof).add(tail);
}

} // namespace

Bytes& Bytes::add(const Bytes& other) {
    bytes_.reserve(bytes_.size() + other.size());
    for (const std::byte byte : other.bytes_)
        bytes_.push_back(byte);
    return *this;
}

Bytes& Bytes::record(unsigned type, const Bytes& data) {
    return u16(type).u16(static_cast<unsigned>(data.size())).add(data);
}

Bytes bof_8(unsigned kind) { return Bytes().u16(0x0600).u16(kind).zeros(12); }
Bytes bof_5(unsigned kind) { return Bytes().u16(0x0500).u16(kind).zeros(4); }

Bytes place(unsigned row, unsigned column, unsigned xf) { return Bytes().u16(row).u16(column).u16(xf); }

Bytes number(unsigned row, unsigned column, double value, unsigned xf) {
    return Bytes().record(0x0203, place(row, column, xf).f64(value));
}

Bytes blank(unsigned row, unsigned column) { return Bytes().record(0x0201, place(row, column)); }

Bytes label_8(unsigned row, unsigned column, std::string_view text) {
    const auto length = static_cast<unsigned>(text.size());
    return Bytes().record(0x0204, place(row, column).u16(length).u8(0).narrow(text));
}

Bytes label_5(unsigned row, unsigned column, std::string_view text) {
    return Bytes().record(0x0204, place(row, column).u16(static_cast<unsigned>(text.size())).narrow(text));
}

Bytes shared(unsigned row, unsigned column, std::uint32_t string) {
    return Bytes().record(0x00FD, place(row, column).u32(string));
}

Bytes format_8(unsigned id, std::string_view code) {
    return Bytes().record(0x041E, Bytes().u16(id).u16(static_cast<unsigned>(code.size())).u8(0).narrow(code));
}

Bytes xf(unsigned format, unsigned font) { return Bytes().record(0x00E0, Bytes().u16(font).u16(format).zeros(16)); }

Bytes font_8(unsigned points, std::string_view name) {
    Bytes data = Bytes().u16(points * 20).zeros(12);
    return Bytes().record(0x0031, data.u8(static_cast<unsigned>(name.size())).u8(0).narrow(name));
}

Bytes book_8(const std::vector<SheetBytes>& sheets, const Bytes& records) {
    return stream_of(Version::biff8, sheets, records);
}
Bytes book_5(const std::vector<SheetBytes>& sheets, const Bytes& records) {
    return stream_of(Version::biff5, sheets, records);
}
Bytes sheet_8(const Bytes& cells, const Bytes& records) { return book_8({{"Blad1", cells}}, records); }
Bytes sheet_5(const Bytes& cells, const Bytes& records) { return book_5({{"Blad1", cells}}, records); }

std::vector<std::string> shown(const Sheet& sheet, const Workbook& workbook) {
    std::vector<std::string> cells;
    for (const Cell& cell : sheet.cells) {
        std::ostringstream text;
        text << static_cast<char>('A' + cell.column) << cell.row + 1;
        switch (cell.kind) {
        case CellKind::blank:
            break;
        case CellKind::number:
            text << '=' << cell.number;
            break;
        case CellKind::text:
            text << '=' << workbook.texts()[cell.text];
            break;
        case CellKind::boolean:
            text << (cell.number != 0 ? "=waar" : "=onwaar");
            break;
        case CellKind::error:
            text << "=fout " << cell.number;
            break;
        }
        cells.push_back(text.str());
    }
    return cells;
}

std::vector<std::string> shown(const Bytes& file, std::size_t sheet) {
    const auto workbook = open_xls(file.bytes());
    if (!workbook) return {"kan niet open " + std::to_string(static_cast<int>(workbook.error()))};
    const auto cells = (*workbook)->read_sheet(sheet);
    if (!cells) return {"kan niet lezen " + std::to_string(static_cast<int>(cells.error()))};
    return shown(*cells, **workbook);
}

} // namespace tavelo::testing_xls
