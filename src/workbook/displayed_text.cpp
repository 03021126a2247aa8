#include "workbook/displayed_text.h"

#include <array>
#include <cstddef>
#include <tuple>

namespace tavelo {

namespace {

// Locale::errors has them in this order.
constexpr std::array error_order{
    CellError::null,    CellError::division,      CellError::value,        CellError::reference, CellError::name,
    CellError::number,  CellError::not_available, CellError::getting_data, CellError::spill,     CellError::connect,
    CellError::blocked, CellError::field,         CellError::calc};
static_assert(error_order.size() == std::tuple_size_v<decltype(Locale::errors)>);

std::string_view error_text(double code, const Locale& locale) {
    for (std::size_t i = 0; i < error_order.size(); ++i) {
        if (static_cast<double>(error_order[i]) == code) return locale.errors[i];
    }
    return locale.errors.front();
}

std::string_view text_under(const NumberFormat& format, std::string_view text, std::string& room) {
    if (!format.changes_texts()) return text;
    room = format.show_text(text);
    return room;
}

} // namespace

std::string_view DisplayedTexts::of(const Cell& cell, std::string& room) {
    const std::string_view text = cut_to_longest(whole_text_of(cell, room));
    if (text.size() > bytes_left_) bytes_left_ = 0;
    if (bytes_left_ == 0) return {};
    bytes_left_ -= text.size();
    return text;
}

std::string_view DisplayedTexts::whole_text_of(const Cell& cell, std::string& room) {
    switch (cell.kind) {
    case CellKind::blank:
        return {};
    case CellKind::number:
        format_of(cell).show_number(cell.number, dates_, locale_, room);
        return room;
    case CellKind::text:
        return text_under(format_of(cell), texts_[cell.text], room);
    case CellKind::boolean:
        return text_under(format_of(cell), cell.number != 0 ? locale_.true_word : locale_.false_word, room);
    case CellKind::error:
        return error_text(cell.number, locale_);
    }
    return {};
}

const NumberFormat& DisplayedTexts::parsed_format_of(const Cell& cell) {
    const auto codes = workbook_.formats();
    if (cell.format >= codes.size()) return general_;
    if (formats_.size() <= cell.format) formats_.resize(codes.size());
    const std::string_view code = codes[cell.format];
    const std::string_view shown = code.size() <= longest_format_code ? code_in_locale(code, locale_) : "";
    return *(formats_[cell.format] = std::make_unique<const NumberFormat>(shown));
}

} // namespace tavelo
