#include "workbook/xlsx/ciphers.h"

#include <cstdint>

namespace tavelo {

namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

std::optional<Bytes> from_base64(std::string_view text) {
    if (text.empty() || text.size() % 4 != 0 || text.size() > 4096) return std::nullopt;
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with("=") ? 1 : 0;
    Bytes bytes;
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t six = i < text.size() - padding ? letters.find(text[i]) : 0;
        if (six == std::string_view::npos) return std::nullopt;
        bits = (bits << 6) | static_cast<std::uint32_t>(six);
        if (i % 4 != 3) continue;
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<std::byte>((bits >> shift) & 0xFF));
    }
    bytes.resize(bytes.size() - padding);
    return bytes;
}

} // namespace tavelo
