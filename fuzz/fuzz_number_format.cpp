// Eight bytes of value, then a format code: shown in both locales and both date systems, as a number and as a text.
#include "workbook/text/number_format.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavelo;
    double value = 0;
    if (size < sizeof value) return 0;
    std::memcpy(&value, data, sizeof value);
    const std::string_view code(reinterpret_cast<const char*>(data) + sizeof value, size - sizeof value);
    const NumberFormat format(code);
    const std::string_view text = "Bo\u00f4me";
    // Long values have some 350 digits with their separators, and a code can ask for the value in every 7 characters of
    // it.
    const std::size_t most = 400 + code.size() * 60;
    for (const char* language : {"nl-NL", "en-US"})
        for (const auto dates : {DateSystem::from_1900, DateSystem::from_1904})
            if (format.show_number(value, dates, locale_named(language)).size() > most) std::abort();
    if (format.show_text(text).size() > code.size() * text.size() + text.size()) std::abort();
    return 0;
}
