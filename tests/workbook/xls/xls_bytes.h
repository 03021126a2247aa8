// Small .xls workbooks, written byte by byte, so that each test says exactly which record layout the reader meets.
#pragma once

#include "workbook/book/containers.h"

#include <bit>
#include <string_view>

namespace tavelo::testing_xls {

class Bytes {
  public:
    Bytes& u8(unsigned value) {
        bytes_.push_back(static_cast<std::byte>(value));
        return *this;
    }
    Bytes& u16(unsigned value) { return u8(value & 0xFF).u8(value >> 8 & 0xFF); }
    Bytes& u32(std::uint32_t value) { return u16(value & 0xFFFF).u16(value >> 16); }
    Bytes& f64(double value) {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        return u32(static_cast<std::uint32_t>(bits)).u32(static_cast<std::uint32_t>(bits >> 32));
    }
    // One byte a character.
    Bytes& narrow(std::string_view text) {
        for (const char character : text)
            u8(static_cast<unsigned char>(character));
        return *this;
    }
    Bytes& wide(std::u16string_view text) {
        for (const char16_t character : text)
            u16(character);
        return *this;
    }
    Bytes& zeros(std::size_t count) {
        bytes_.resize(bytes_.size() + count);
        return *this;
    }
    Bytes& add(const Bytes& other);
    Bytes& record(unsigned type, const Bytes& data = {});
    // Writes over what is there.
    Bytes& put_u8(std::size_t place, unsigned value) {
        bytes_.at(place) = static_cast<std::byte>(value);
        return *this;
    }
    Bytes& put_u32(std::size_t place, std::uint32_t value) {
        for (unsigned i = 0; i < 4; ++i)
            put_u8(place + i, value >> 8 * i & 0xFF);
        return *this;
    }
    Bytes& cut(std::size_t size) {
        bytes_.resize(size);
        return *this;
    }
    // Zeros up to a multiple of `unit`.
    Bytes& pad(std::size_t unit) { return zeros((unit - size() % unit) % unit); }

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] const std::vector<std::byte>& bytes() const { return bytes_; }

  private:
    std::vector<std::byte> bytes_;
};

constexpr unsigned globals = 0x05, worksheet = 0x10, chart = 0x20, macro_sheet = 0x40;

[[nodiscard]] Bytes bof_8(unsigned kind);
[[nodiscard]] Bytes bof_5(unsigned kind);

// Row, column, number of the XF record: how every cell begins.
[[nodiscard]] Bytes place(unsigned row, unsigned column, unsigned xf = 0);
[[nodiscard]] Bytes number(unsigned row, unsigned column, double value, unsigned xf = 0);
[[nodiscard]] Bytes blank(unsigned row, unsigned column);
[[nodiscard]] Bytes label_8(unsigned row, unsigned column, std::string_view text);
[[nodiscard]] Bytes label_5(unsigned row, unsigned column, std::string_view text);
[[nodiscard]] Bytes shared(unsigned row, unsigned column, std::uint32_t string);
[[nodiscard]] Bytes format_8(unsigned id, std::string_view code);
[[nodiscard]] Bytes xf(unsigned format, unsigned font = 0);
[[nodiscard]] Bytes font_8(unsigned points, std::string_view name);

struct SheetBytes {
    std::string name;
    Bytes records = {};       // between BOF and EOF
    unsigned stored_kind = 0; // as the globals say it: 0 sheet, 1 macro, 2 chart, 6 modules
    unsigned bof_kind = worksheet;
};

// A whole stream: the globals with `records` and the names of the sheets, then the sheets.
[[nodiscard]] Bytes book_8(const std::vector<SheetBytes>& sheets, const Bytes& records = {});
[[nodiscard]] Bytes book_5(const std::vector<SheetBytes>& sheets, const Bytes& records = {});
// The same with one worksheet.
[[nodiscard]] Bytes sheet_8(const Bytes& cells, const Bytes& records = {});
[[nodiscard]] Bytes sheet_5(const Bytes& cells, const Bytes& records = {});

// The cells as the tests write them: "A1=tekst", "B1=1.5", "C1=waar", "D1=fout 42"; a blank cell is its place alone.
[[nodiscard]] std::vector<std::string> shown(const Sheet& sheet, const Workbook& workbook);
// The same of a file; "kan niet open" or "kan niet lezen" with the number of the failure when it fails.
[[nodiscard]] std::vector<std::string> shown(const Bytes& file, std::size_t sheet = 0);

} // namespace tavelo::testing_xls
