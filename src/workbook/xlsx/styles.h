// What the styles part says about numbers and widths: the format code of each cell style, and the digit of the Normal
// font.
#pragma once

#include "workbook/book/model.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

class Package;

// Further number formats are left out, so that their cells are General. Excel stops far below, at 250 or so.
inline constexpr std::size_t most_formats = 16384;

struct Styles {
    std::vector<std::string> formats{""};    // each code once; the first is General
    std::vector<std::uint32_t> format_of_xf; // the `s` of a cell -> index in formats
    int digit_pixels = 7; // of the Normal font; 7 for Calibri 11, which a workbook without styles has

    // The index in formats; General for a style that does not exist.
    [[nodiscard]] std::uint32_t format_of(std::size_t style) const {
        return style < format_of_xf.size() ? format_of_xf[style] : 0;
    }
};

[[nodiscard]] std::expected<Styles, OpenFailure> read_styles(const Package& package, std::string_view part);

} // namespace tavelo
