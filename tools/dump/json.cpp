#include "json.h"

#include "basis/number.h"

#include <array>
#include <charconv>

namespace tavelo {

void JsonWriter::value(std::string_view text) {
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    begin_value();
    out_ << '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            out_ << '\\' << c;
        else if (byte < 0x20)
            out_ << "\\u00" << hexadecimal[byte >> 4] << hexadecimal[byte & 15U];
        else
            out_ << c;
    }
    out_ << '"';
}

void JsonWriter::value(double number) {
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    plain(std::string_view(text.data(), result.ptr));
}

} // namespace tavelo
