#include "workbook/book/text_table.h"

namespace tavelo {

std::string_view cut_long_text(std::string_view text) {
    std::size_t units = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const bool continues = (byte & 0xC0U) == 0x80U;
        if (continues) continue;
        units += byte >= 0xF0U ? 2 : 1; // outside the first plane: a pair of units
        if (units > longest_text) return text.substr(0, at);
    }
    return text;
}

std::optional<std::uint32_t> TextTable::add(std::string_view text) {
    text = cut_to_longest(text);
    if (ends_.size() == most_texts || text.size() > most_text_bytes - bytes_.size()) return std::nullopt;
    bytes_ += text;
    ends_.push_back(static_cast<std::uint32_t>(bytes_.size()));
    return static_cast<std::uint32_t>(ends_.size() - 1);
}

void TextTable::clear() {
    bytes_ = {};
    ends_ = {};
}

} // namespace tavelo
