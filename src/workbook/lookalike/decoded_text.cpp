#include "workbook/lookalike/decoded_text.h"

#include "basis/text.h"
#include "workbook/xls/code_page.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t head_size = 4096; // where a page says its character set

unsigned byte_of(char c) { return static_cast<unsigned char>(c); }

enum class ByteOrder { little, big };

std::string from_utf16(std::string_view bytes, ByteOrder order) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned first = byte_of(bytes[i]);
        const unsigned second = byte_of(bytes[i + 1]);
        units += static_cast<char16_t>(order == ByteOrder::little ? second << 8 | first : first << 8 | second);
    }
    return utf8_of(units);
}

// Western texts in UTF-16 have a zero at every second place; the first characters tell.
std::optional<ByteOrder> utf16_without_mark(std::string_view bytes) {
    constexpr std::size_t enough = 64;
    const std::size_t size = std::min(bytes.size(), enough) / 2 * 2;
    if (size < 4) return std::nullopt;
    std::array<std::size_t, 2> zeros{};
    for (std::size_t i = 0; i < size; ++i)
        zeros.at(i % 2) += bytes[i] == '\0' ? 1 : 0;
    if (zeros[0] == 0 && zeros[1] > size / 4) return ByteOrder::little;
    if (zeros[1] == 0 && zeros[0] > size / 4) return ByteOrder::big;
    return std::nullopt;
}

// The word behind the first "charset=" or "encoding=" of the head, in small letters. Empty without markup.
std::string claimed_charset(std::string_view bytes) {
    const std::string head = lower_case(bytes.substr(0, head_size));
    if (!head.contains("<meta") && !head.contains("<?xml")) return {};
    for (const std::string_view key : {"charset", "encoding"}) {
        const auto found = head.find(key);
        if (found == std::string::npos) continue;
        const auto begin = head.find_first_not_of(" =\"'\t\r\n", found + key.size());
        if (begin == std::string::npos) continue;
        return head.substr(begin, head.find_first_of(" \"'>;/?\t\r\n", begin) - begin);
    }
    return {};
}

unsigned code_page_of(std::string_view charset) {
    constexpr std::array<std::pair<std::string_view, unsigned>, 10> pages{{
        {"windows-1250", 1250},
        {"windows-1251", 1251},
        {"windows-1253", 1253},
        {"windows-1254", 1254},
        {"windows-1257", 1257},
        {"windows-1258", 1258},
        {"macintosh", 10000},
        {"shift_jis", 932},
        {"ibm850", 850},
        {"cp850", 850},
    }};
    const auto* const known = std::ranges::find(pages, charset, &std::pair<std::string_view, unsigned>::first);
    return known == pages.end() ? western_code_page : known->second;
}

std::string decoded(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF") && is_utf8(bytes)) return std::string(bytes.substr(3));
    if (bytes.starts_with("\xFF\xFE")) return from_utf16(bytes.substr(2), ByteOrder::little);
    if (bytes.starts_with("\xFE\xFF")) return from_utf16(bytes.substr(2), ByteOrder::big);
    if (const auto order = utf16_without_mark(bytes)) return from_utf16(bytes, *order);
    const unsigned code_page = code_page_of(claimed_charset(bytes));
    if (code_page != western_code_page) return utf8_of(bytes, code_page);
    return is_utf8(bytes) ? std::string(bytes) : from_windows_1252(bytes);
}

bool is_text(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return byte_of(c) >= 0x20 || (c >= '\t' && c <= '\r'); });
}

} // namespace

std::optional<std::string> decoded_text(std::span<const std::byte> bytes) {
    std::string text = decoded({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (text.ends_with('\x1A')) text.pop_back(); // the end of a text, long ago
    if (!is_text(text)) return std::nullopt;
    return text;
}

} // namespace tavelo
