#include "workbook/xlsx/iso_date.h"

#include <chrono>
#include <cstddef>

namespace tavelo {

namespace {

// Takes exactly `digits` digits off the front.
std::optional<int> take_number(std::string_view& text, std::size_t digits) {
    if (text.size() < digits) return std::nullopt;
    int number = 0;
    for (const char c : text.substr(0, digits)) {
        if (c < '0' || c > '9') return std::nullopt;
        number = number * 10 + (c - '0');
    }
    text.remove_prefix(digits);
    return number;
}

bool take(std::string_view& text, char c) {
    if (text.empty() || text.front() != c) return false;
    text.remove_prefix(1);
    return true;
}

std::optional<double> take_date(std::string_view& text, DateSystem dates) {
    const auto year = take_number(text, 4);
    if (!year || !take(text, '-')) return std::nullopt;
    const auto month = take_number(text, 2);
    if (!month || !take(text, '-')) return std::nullopt;
    const auto day = take_number(text, 2);
    if (!day) return std::nullopt;

    using namespace std::chrono;
    const year_month_day date{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(*month)},
                              std::chrono::day{static_cast<unsigned>(*day)}};
    if (!date.ok()) return std::nullopt;
    if (dates == DateSystem::from_1904) return (sys_days{date} - sys_days{1904y / January / 1}).count();
    const auto serial = (sys_days{date} - sys_days{1899y / December / 31}).count();
    return serial >= 60 ? serial + 1 : serial; // 29 February 1900 exists for Excel
}

// The part of a day; the fraction of a second may have any number of digits.
std::optional<double> take_time(std::string_view& text) {
    const auto hours = take_number(text, 2);
    if (!hours || !take(text, ':')) return std::nullopt;
    const auto minutes = take_number(text, 2);
    if (!minutes || *hours > 24 || *minutes > 59) return std::nullopt;
    double seconds = 0;
    if (take(text, ':')) {
        const auto whole = take_number(text, 2);
        if (!whole || *whole > 59) return std::nullopt;
        seconds = *whole;
        double weight = 0.1;
        if (take(text, '.')) {
            while (const auto digit = take_number(text, 1)) {
                seconds += *digit * weight;
                weight /= 10;
            }
        }
    }
    return (*hours * 3600 + *minutes * 60 + seconds) / 86400;
}

} // namespace

std::optional<double> serial_of_iso_date(std::string_view text, DateSystem dates) {
    double serial = 0;
    if (text.find('-') != std::string_view::npos) {
        const auto date = take_date(text, dates);
        if (!date) return std::nullopt;
        serial = *date;
        if (text.empty() || text == "Z") return serial;
        if (!take(text, 'T') && !take(text, ' ')) return std::nullopt;
    }
    const auto time = take_time(text);
    if (!time) return std::nullopt;
    take(text, 'Z');
    if (!text.empty()) return std::nullopt;
    return serial + *time;
}

} // namespace tavelo
