#include "workbook/xls/cell_styles.h"

#include "workbook/book/column_width.h"
#include "workbook/text/number_format.h"

namespace tavelo {

namespace {

// The numbers that cells, styles and fonts are found by have 16 bits; no record beyond that can be meant.
constexpr std::size_t most_records = 65536;

} // namespace

std::uint32_t FormatCodes::number_of(std::string_view code) {
    if (const auto known = numbers_.find(code); known != numbers_.end()) return known->second;
    const auto number = static_cast<std::uint32_t>(codes_.size());
    codes_.emplace_back(code);
    numbers_.emplace(code, number);
    return number;
}

void CellStyles::take(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding) {
    if (xfs_.size() == most_records || fonts_.size() == most_records || formats_.size() == most_records) return;
    switch (record.type) {
    case biff::format_2:
    case biff::format:
        take_format(record, cursor, encoding);
        break;
    case biff::font:
    case biff::font_3:
        take_font(record, cursor, encoding);
        break;
    case biff::xf_2:
        xfs_.push_back({.font = byte_at(record.data, 0), .format = byte_at(record.data, 2) & 0x3FU});
        break;
    case biff::xf_3:
    case biff::xf_4:
        xfs_.push_back({.font = byte_at(record.data, 0), .format = byte_at(record.data, 1)});
        break;
    case biff::xf:
        xfs_.push_back({.font = word_at(record.data, 0), .format = word_at(record.data, 2)});
        break;
    case biff::style: {
        constexpr unsigned built_in = 0x8000;
        constexpr unsigned normal_style = 0;
        const unsigned head = word_at(record.data, 0);
        if ((head & built_in) != 0 && byte_at(record.data, 2) == normal_style) normal_xf_ = head & 0x0FFFU;
        break;
    }
    default:
        break;
    }
}

void CellStyles::take_format(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding) {
    BiffText text(cursor, record.data);
    auto number = static_cast<unsigned>(formats_.size()); // up to BIFF4 the place of the record is its number
    if (record.type == biff::format) {
        const unsigned stored = text.word();
        if (encoding.version >= Biff::biff5) number = stored;
    }
    const std::size_t length = encoding.version == Biff::biff8 ? text.word() : text.byte();
    formats_[number] = text.string(length, encoding);
}

void CellStyles::take_font(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding) {
    constexpr double twips_per_point = 20.0;
    // The fields between the height and the name grew with the versions.
    const std::size_t between = encoding.version == Biff::biff2 ? 2 : encoding.version < Biff::biff5 ? 4 : 12;
    BiffText text(cursor, record.data);
    Font font;
    font.points = text.word() / twips_per_point;
    text.skip(between);
    const std::size_t length = text.byte();
    font.name = text.string(length, encoding);
    fonts_.push_back(std::move(font));
}

std::string_view CellStyles::code_of(Biff version, unsigned format) const {
    if (const auto own = formats_.find(format); own != formats_.end()) return own->second;
    return version >= Biff::biff5 ? builtin_format(format) : std::string_view{};
}

std::vector<std::uint32_t> CellStyles::cell_formats(Biff version, FormatCodes& codes) const {
    std::vector<std::uint32_t> numbers;
    if (version == Biff::biff2) {
        for (const auto& [format, code] : formats_)
            numbers.push_back(codes.number_of(code));
        return numbers;
    }
    numbers.reserve(xfs_.size());
    for (const CellXf& xf : xfs_)
        numbers.push_back(codes.number_of(code_of(version, xf.format)));
    return numbers;
}

int CellStyles::normal_digit_pixels() const {
    std::size_t number = normal_xf_ < xfs_.size() ? xfs_[normal_xf_].font : 0;
    if (number > 4) --number; // font 4 does not exist: the numbers skip it
    const Font font = number < fonts_.size() ? fonts_[number] : Font{};
    return digit_pixels(font.name, font.points);
}

} // namespace tavelo
