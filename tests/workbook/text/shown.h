// Short forms for the tests of displayed texts.
#pragma once

#include "workbook/text/number_format.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace tavelo {

inline std::string shown(double value, std::string_view code, std::string_view language = "en-US",
                         DateSystem dates = DateSystem::from_1900) {
    const Locale& locale = locale_named(language);
    return NumberFormat(code_in_locale(code, locale)).show_number(value, dates, locale);
}

inline std::string shown_in_dutch(double value, std::string_view code) { return shown(value, code, "nl-NL"); }

inline std::string shown_from_1904(double value, std::string_view code) {
    return shown(value, code, "en-US", DateSystem::from_1904);
}

struct Shown {
    double value;
    std::string_view code;
    std::string_view text;
};

inline void expect_shown(std::initializer_list<Shown> table, std::string_view language = "en-US",
                         DateSystem dates = DateSystem::from_1900) {
    for (const auto& [value, code, text] : table)
        EXPECT_EQ(shown(value, code, language, dates), text) << value << " under " << code;
}

} // namespace tavelo
