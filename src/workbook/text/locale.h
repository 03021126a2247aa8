// The regional settings that decide how a stored value is shown: given to the renderer as a value, never read from the
// system here.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tavelo {

// The codes of the built-in formats 5 to 8, 37 to 40 and 41 to 44, in this order. Excel takes them from the regional
// settings, as it does the dates.
using AmountFormats = std::array<std::string_view, 12>;

struct Locale {
    std::string name; // "nl-NL"
    std::string decimal_separator;
    std::string thousands_separator;
    std::string date_separator; // what "/" in a date format shows
    std::string time_separator; // what ":" shows
    std::array<std::string, 12> months;
    std::array<std::string, 12> short_months;
    std::array<std::string, 7> weekdays; // Sunday first
    std::array<std::string, 7> short_weekdays;
    std::string am;
    std::string pm;
    std::string short_date; // format code of the system's short date, for built-in 14 and 22
    std::string short_time; // of a 24-hour clock, for built-in 20 and 22
    std::string long_date;  // for [$-F800]
    std::string long_time;  // for [$-F400] and built-in 21
    std::string true_word;
    std::string false_word;
    // Error values in the order #NULL! #DIV/0! #VALUE! #REF! #NAME? #NUM! #N/A #GETTING_DATA #SPILL! #CONNECT!
    // #BLOCKED! #FIELD! #CALC!
    std::array<std::string, 13> errors;
    AmountFormats amounts;
};

// For a country that is not known (de-AT) another one of the same language, for an unknown language nl-NL: this is a
// Dutch program.
[[nodiscard]] const Locale& locale_named(std::string_view name);

} // namespace tavelo
