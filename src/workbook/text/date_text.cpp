#include "workbook/text/date_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

namespace tavelo {

namespace {

constexpr std::int64_t seconds_per_day = 86'400;
constexpr std::int64_t days_beyond_year_9999 = 2'958'466; // counted from 1900
constexpr std::int64_t days_from_1900_to_1904 = 1'462;

struct CalendarDay {
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    std::size_t weekday = 0; // 0 is Sunday
};

// Day 60 is 29 February 1900, which never was; day 0 is 0 January 1900, a Saturday.
CalendarDay calendar_day(std::int64_t serial) {
    constexpr std::int64_t days_per_week = 7;
    constexpr std::int64_t leap_day_of_1900 = 60;
    const auto weekday = static_cast<std::size_t>((serial + days_per_week - 1) % days_per_week);
    if (serial == 0) return {1900, 1, 0, weekday};
    if (serial == leap_day_of_1900) return {1900, 2, 29, weekday};
    using namespace std::chrono;
    const sys_days start = year{1899} / December / (serial < leap_day_of_1900 ? 31 : 30);
    const year_month_day date{start + days{serial}};
    return {static_cast<int>(date.year()), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
            weekday};
}

// In the Islamic calendar as Microsoft counts it: 30 years of 12 months with 30 and 29 days by turns, the last month a
// day longer in 11 of them, from 15 July 622 (Julian) on. Day 0 is shown as day 1.
CalendarDay hijri_day(std::int64_t serial) {
    constexpr std::int64_t days_before_1900 = 466'581; // from the first day of the calendar to 31 December 1899
    constexpr std::int64_t days_of_cycle = 10'631;
    constexpr std::int64_t leap_day_of_1900 = 60;
    const std::int64_t day = days_before_1900 + std::max<std::int64_t>(serial, 1) - (serial > leap_day_of_1900 ? 1 : 0);
    std::int64_t rest = day % days_of_cycle;
    int year = 1;
    const auto days_of = [](int of_year) { return (11 * of_year + 14) % 30 < 11 ? 355 : 354; };
    for (; rest >= days_of(year); ++year)
        rest -= days_of(year);
    unsigned month = 1;
    for (; month < 12 && rest >= 29 + month % 2; ++month)
        rest -= 29 + month % 2;
    return {static_cast<int>(day / days_of_cycle) * 30 + year, month, static_cast<unsigned>(rest) + 1,
            calendar_day(serial).weekday};
}

std::int64_t power_of_ten(std::uint32_t exponent) {
    std::int64_t power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

void add_number(std::string& out, std::int64_t number, std::size_t least_digits) {
    std::array<char, 20> digits{};
    const auto* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    const auto size = static_cast<std::size_t>(end - digits.begin());
    if (size < least_digits) out.append(least_digits - size, '0');
    out.append(digits.begin(), size);
}

std::string_view first_character(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return text.substr(0, length);
}

class DateWriter {
  public:
    DateWriter(const FormatSection& section, const Locale& locale)
        : section_(section),
          locale_(locale),
          names_(section.language.empty() ? locale : locale_named(section.language)) {}

    [[nodiscard]] bool add_to(std::string& out, double serial, DateSystem dates) {
        if (!set_moment(serial, dates)) return false;
        for (const FormatPiece& piece : section_.pieces)
            add_piece(out, piece);
        return true;
    }

  private:
    // Times are rounded to the smallest unit that is shown, seconds at least.
    bool set_moment(double serial, DateSystem dates) {
        const std::int64_t shift = dates == DateSystem::from_1904 ? days_from_1900_to_1904 : 0;
        const double whole = std::floor(serial);
        if (whole >= static_cast<double>(days_beyond_year_9999 - shift)) return false;
        auto days = static_cast<std::int64_t>(whole);
        const std::int64_t ticks_per_second = power_of_ten(section_.subsecond_digits);
        const auto ticks_per_day = seconds_per_day * ticks_per_second;
        auto ticks = static_cast<std::int64_t>(std::floor((serial - whole) * static_cast<double>(ticks_per_day) + 0.5));
        if (ticks >= ticks_per_day && section_.shows_time) {
            ticks -= ticks_per_day;
            ++days;
        }
        if (days >= days_beyond_year_9999 - shift) return false;
        day_ = section_.hijri ? hijri_day(days + shift) : calendar_day(days + shift);
        second_of_day_ = std::min(ticks / ticks_per_second, seconds_per_day - 1);
        subsecond_ = ticks % ticks_per_second;
        elapsed_seconds_ = days * seconds_per_day + second_of_day_;
        return true;
    }

    void add_piece(std::string& out, const FormatPiece& piece) const {
        constexpr std::int64_t seconds_per_minute = 60;
        constexpr std::int64_t seconds_per_hour = 3600;
        const std::size_t two_at_most = std::min<std::size_t>(piece.count, 2);
        switch (piece.kind) {
        case PieceKind::literal:
            out += section_.literal(piece);
            break;
        case PieceKind::year:
            add_year(out, day_.year, piece.count);
            break;
        case PieceKind::buddhist_year:
            add_year(out, day_.year + 543, piece.count);
            break;
        case PieceKind::month:
            add_month(out, piece.count);
            break;
        case PieceKind::day:
            add_number(out, day_.day, two_at_most);
            break;
        case PieceKind::weekday:
            out += piece.count == 3 ? names_.short_weekdays[day_.weekday] : names_.weekdays[day_.weekday];
            break;
        case PieceKind::hour:
            add_number(out, shown_hour(), two_at_most);
            break;
        case PieceKind::minute:
            add_number(out, second_of_day_ % seconds_per_hour / seconds_per_minute, two_at_most);
            break;
        case PieceKind::second:
            add_number(out, second_of_day_ % seconds_per_minute, two_at_most);
            break;
        case PieceKind::second_fraction:
            add_second_fraction(out, piece.count);
            break;
        case PieceKind::elapsed_hours:
            add_number(out, elapsed_seconds_ / seconds_per_hour, piece.count);
            break;
        case PieceKind::elapsed_minutes:
            add_number(out, elapsed_seconds_ / seconds_per_minute, piece.count);
            break;
        case PieceKind::elapsed_seconds:
            add_number(out, elapsed_seconds_, piece.count);
            break;
        case PieceKind::am_pm:
            out += is_afternoon() ? names_.pm : names_.am;
            break;
        case PieceKind::a_p:
            out += static_cast<char>((is_afternoon() ? 'P' : 'A') + (piece.symbol == 'a' ? 'a' - 'A' : 0));
            break;
        case PieceKind::date_separator:
            out += locale_.date_separator;
            break;
        case PieceKind::time_separator:
            out += locale_.time_separator;
            break;
        default:
            break;
        }
    }

    static void add_year(std::string& out, int year, std::uint32_t letters) {
        if (letters > 2)
            add_number(out, year, 4);
        else
            add_number(out, year % 100, 2);
    }

    void add_month(std::string& out, std::uint32_t letters) const {
        const std::size_t month = day_.month - 1;
        switch (section_.hijri ? std::min(letters, 2U) : letters) {
        case 1:
        case 2:
            add_number(out, day_.month, std::min(letters, 2U));
            break;
        case 3:
            out += names_.short_months[month];
            break;
        case 5:
            out += first_character(names_.months[month]);
            break;
        default:
            out += names_.months[month];
        }
    }

    void add_second_fraction(std::string& out, std::uint32_t digits) const {
        out += locale_.decimal_separator;
        std::string fraction;
        add_number(fraction, subsecond_, section_.subsecond_digits);
        fraction.resize(digits, '0');
        out += fraction;
    }

    [[nodiscard]] bool is_afternoon() const { return second_of_day_ >= seconds_per_day / 2; }

    [[nodiscard]] std::int64_t shown_hour() const {
        const std::int64_t hour = second_of_day_ / 3600;
        if (!section_.twelve_hours) return hour;
        return hour % 12 == 0 ? 12 : hour % 12;
    }

    const FormatSection& section_;
    const Locale& locale_;
    const Locale& names_;
    CalendarDay day_;
    std::int64_t second_of_day_ = 0;
    std::int64_t subsecond_ = 0;
    std::int64_t elapsed_seconds_ = 0;
};

std::string system_code(SystemFormat format, const Locale& locale) {
    switch (format) {
    case SystemFormat::short_date:
        return locale.short_date;
    case SystemFormat::short_date_and_time:
        return locale.short_date + ' ' + locale.short_time;
    case SystemFormat::short_time:
        return locale.short_time;
    case SystemFormat::long_date:
        return locale.long_date;
    case SystemFormat::long_time:
        return locale.long_time;
    case SystemFormat::none:
        break;
    }
    return {};
}

} // namespace

bool add_date(std::string& out, const FormatSection& section, double serial, DateSystem dates, const Locale& locale) {
    if (section.system == SystemFormat::none) return DateWriter(section, locale).add_to(out, serial, dates);
    const FormatCode code = parse_format_code(system_code(section.system, locale));
    return !code.numbers.empty() && DateWriter(code.numbers.front(), locale).add_to(out, serial, dates);
}

} // namespace tavelo
