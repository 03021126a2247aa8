// A number format code taken apart: its sections, and of each section the pieces in the order in which they are shown.
//
// A code that Excel refuses shows as General. Microsoft's published grammar ([MS-OE376] 2.1.739, [MS-XLS] 2.4.126) and
// what others saw Excel refuse name more than files hold; these are taken as refused:
//
//     refused                                            as in
//     the letter n, in either case, outside quotes       Standaard, 0 punten
//     two elapsed times in one section                   [h]:[mm]
//     an elapsed time beside a part of the clock that    HH[M], HH[MM], [h] h
//         is as large or larger
//     digit places beside parts of a date, but for       0 d, yyyy #
//         the fraction of a second
//     more than four sections                            0;0;0;@;0
//
// Colours and conditions without sense, quotes that do not end and further letters are shown as well as they can be.
#pragma once

#include "workbook/text/numerals.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

enum class PieceKind : std::uint8_t {
    literal, // `count` bytes of FormatSection::texts from `offset`
    general,
    text, // @
    // One digit each; `symbol` is 0, # or ?
    integer_digit,
    decimal_digit,
    exponent_digit,
    numerator_digit,
    denominator_digit,
    fixed_denominator, // `count` is the denominator
    decimal_point,
    exponent, // E; `symbol` + shows the sign of every exponent, - that of a negative one
    fraction_bar,
    // Dates and times; `count` is how often the letter stands there
    year,
    buddhist_year,
    month,
    day,
    weekday,
    hour,
    minute,
    second,
    second_fraction, // a decimal point and `count` digits
    elapsed_hours,
    elapsed_minutes,
    elapsed_seconds,
    am_pm,
    a_p, // `symbol` a shows small letters
    date_separator,
    time_separator,
    // What only a code that is still being read holds
    digit,
    literal_digit,
    comma,
    point,
    slash,
    colon,
    percent,
    month_or_minute,
    era_year, // e and b: a year only where no number is shown; `symbol` is the letter as written
};

struct FormatPiece {
    PieceKind kind = PieceKind::literal;
    char symbol = 0;
    std::uint32_t count = 1;
    std::uint32_t offset = 0;
};

enum class SectionKind : std::uint8_t { literal, general, number, scientific, fraction, date };

// Formats that the regional settings decide.
enum class SystemFormat : std::uint8_t { none, short_date, short_date_and_time, short_time, long_date, long_time };

enum class Comparison : std::uint8_t { less, less_or_equal, equal, not_equal, greater_or_equal, greater };

struct Condition {
    Comparison comparison = Comparison::equal;
    double operand = 0;

    [[nodiscard]] bool holds(double value) const;
    // No number from 0 up meets it.
    [[nodiscard]] bool only_negative() const;
};

struct FormatSection {
    SectionKind kind = SectionKind::literal;
    std::vector<FormatPiece> pieces;
    std::string texts; // of the literal pieces
    std::optional<Condition> condition;
    std::string_view language; // a name for locale_named, or empty: that of the regional settings
    SystemFormat system = SystemFormat::none;
    Numerals numerals = Numerals::western;
    bool has_text_piece = false;
    // Numbers
    bool grouped = false;
    std::int64_t scale = 0; // power of ten that the value is multiplied with before it is shown
    std::size_t integer_places = 0;
    std::size_t decimal_places = 0;
    std::size_t exponent_places = 0;
    std::size_t numerator_places = 0;
    std::size_t denominator_places = 0;
    std::uint32_t fixed_denominator = 0; // 0: none
    // Dates
    bool hijri = false; // B2
    bool twelve_hours = false;
    bool shows_time = false;
    bool only_elapsed = false; // no calendar and no clock, so it can show a negative value
    std::uint32_t subsecond_digits = 0;

    [[nodiscard]] std::string_view literal(const FormatPiece& piece) const {
        return std::string_view(texts).substr(piece.offset, piece.count);
    }
    // Behind the last piece; part of it when that is a literal too.
    void add_literal(std::string_view text);
};

struct FormatCode {
    std::vector<FormatSection> numbers; // one to three; empty for General, and when the code is for texts alone
    std::optional<FormatSection> text;
};

[[nodiscard]] FormatCode parse_format_code(std::string_view code);

} // namespace tavelo
