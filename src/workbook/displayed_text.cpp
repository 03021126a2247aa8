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

std::string error_text(double code, const Locale& locale) {
    for (std::size_t i = 0; i < error_order.size(); ++i) {
        if (static_cast<double>(error_order[i]) == code) return locale.errors[i];
    }
    return locale.errors.front();
}

} // namespace

std::string DisplayedTexts::of(const Cell& cell) {
    switch (cell.kind) {
    case CellKind::blank:
        return {};
    case CellKind::number:
        return format_of(cell).show_number(
            cell.number, workbook_.dates_from_1904() ? DateSystem::from_1904 : DateSystem::from_1900, locale_);
    case CellKind::text: {
        const auto texts = workbook_.texts();
        return cell.text < texts.size() ? format_of(cell).show_text(texts[cell.text]) : std::string();
    }
    case CellKind::boolean:
        return format_of(cell).show_text(cell.number != 0 ? locale_.true_word : locale_.false_word);
    case CellKind::error:
        return error_text(cell.number, locale_);
    }
    return {};
}

const NumberFormat& DisplayedTexts::format_of(const Cell& cell) {
    const auto codes = workbook_.formats();
    if (cell.format >= codes.size()) return general_;
    if (formats_.size() <= cell.format) formats_.resize(codes.size());
    auto& format = formats_[cell.format];
    if (!format) format.emplace(code_in_locale(codes[cell.format], locale_));
    return *format;
}

} // namespace tavelo
