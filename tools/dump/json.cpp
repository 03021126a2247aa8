#include "json.h"

#include "basis/text.h"

#include <array>
#include <charconv>

namespace tavelo {

void JsonWriter::value(std::string_view text) {
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char32_t c : code_points(text)) { // the name of a file may hold bytes that are not UTF-8
        if (c == U'"' || c == U'\\') quoted.push_back('\\');
        if (c < 0x20)
            quoted.append("\\u00").append({hexadecimal[c >> 4], hexadecimal[c & 15U]});
        else
            append_utf8(quoted, c);
    }
    quoted.push_back('"');
    plain(quoted);
}

void JsonWriter::value(double number) {
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    plain(std::string_view(text.data(), result.ptr));
}

} // namespace tavelo
