#include "workbook/text/number_text.h"

#include "basis/text.h"
#include "workbook/text/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t group_size = 3;

// What a placeholder shows where the number has no digit.
void add_padding(std::string& out, char placeholder) {
    if (placeholder == '0') out += '0';
    if (placeholder == '?') out += ' ';
}

// Hands the digits of a whole number out over its placeholders: the last digit to the last placeholder, what is left
// over to the first one.
class PlaceFiller {
  public:
    PlaceFiller(std::string digits, std::size_t places, std::string_view separator = {})
        : digits_(std::move(digits)), separator_(separator), left_(places) {}

    void fill(std::string& out, char placeholder) {
        if (left_ == 0) return;
        put_surplus(out);
        if (left_ <= digits_.size()) {
            out += digits_[digits_.size() - left_];
            put_separator(out, left_, placeholder);
        } else {
            add_padding(out, placeholder);
            if (placeholder != '#') put_separator(out, left_, placeholder);
        }
        --left_;
    }

    // The digits that no placeholder was there for.
    void put_surplus(std::string& out) {
        if (std::exchange(surplus_is_out_, true)) return;
        for (std::size_t place = digits_.size(); place > left_; --place) {
            out += digits_[digits_.size() - place];
            put_separator(out, place, '0');
        }
    }

  private:
    void put_separator(std::string& out, std::size_t place, char placeholder) const {
        if (separator_.empty() || place == 1 || (place - 1) % group_size != 0) return;
        const bool in_padding = place > digits_.size() && placeholder == '?';
        if (in_padding)
            out += ' ';
        else
            out += separator_;
    }

    std::string digits_;
    std::string_view separator_;
    std::size_t left_;
    bool surplus_is_out_ = false;
};

// Hands the digits behind the decimal point out, the first to the first placeholder.
class DecimalsFiller {
  public:
    explicit DecimalsFiller(const Decimal& number) : number_(number) {}

    void fill(std::string& out, char placeholder) {
        if (next_ < number_.decimals())
            out += number_.decimal_digit(next_);
        else
            add_padding(out, placeholder);
        ++next_;
    }

  private:
    const Decimal& number_;
    std::int64_t next_ = 0;
};

void add_exponent(std::string& out, std::int64_t exponent, std::size_t least_digits) {
    out += exponent < 0 ? "E-" : "E+";
    const std::string digits = std::to_string(std::abs(exponent));
    if (digits.size() < least_digits) out.append(least_digits - digits.size(), '0');
    out += digits;
}

void add_decimals(std::string& out, const Decimal& number, const Locale& locale) {
    if (number.decimals() == 0) return;
    out += locale.decimal_separator;
    for (std::int64_t n = 0; n < number.decimals(); ++n)
        out += number.decimal_digit(n);
}

void add_general_with_exponent(std::string& out, Decimal mantissa, const Locale& locale) {
    constexpr std::int64_t three_digits_from = 100;
    std::int64_t exponent = mantissa.exponent();
    mantissa.scale(-exponent);
    mantissa.round(std::abs(exponent) >= three_digits_from ? 4 : 5);
    if (mantissa.exponent() > 0) {
        mantissa.scale(-1);
        ++exponent;
    }
    out += mantissa.integer_digits();
    add_decimals(out, mantissa, locale);
    add_exponent(out, exponent, 2);
}

double scaled(double size, const FormatSection& section) {
    return section.scale == 0 ? size : size * std::pow(10.0, static_cast<double>(section.scale));
}

// The pieces that look the same in every kind of number.
void add_plain_piece(std::string& out, const FormatSection& section, const FormatPiece& piece, double size,
                     const Locale& locale) {
    if (piece.kind == PieceKind::literal) out += section.literal(piece);
    if (piece.kind == PieceKind::decimal_point) out += locale.decimal_separator;
    if (piece.kind == PieceKind::general || piece.kind == PieceKind::text)
        add_general(out, scaled(size, section), locale);
}

// False when the size was rounded away.
bool add_decimal(std::string& out, const FormatSection& section, double size, const Locale& locale) {
    Decimal number(size);
    number.scale(section.scale);
    number.round(static_cast<std::int64_t>(section.decimal_places));
    PlaceFiller integer(number.integer_digits(), section.integer_places,
                        section.grouped ? std::string_view(locale.thousands_separator) : std::string_view());
    DecimalsFiller decimals(number);
    for (const FormatPiece& piece : section.pieces) {
        switch (piece.kind) {
        case PieceKind::integer_digit:
            integer.fill(out, piece.symbol);
            break;
        case PieceKind::decimal_point:
            integer.put_surplus(out);
            out += locale.decimal_separator;
            break;
        case PieceKind::decimal_digit:
            decimals.fill(out, piece.symbol);
            break;
        default:
            add_plain_piece(out, section, piece, size, locale);
        }
    }
    return !number.is_zero();
}

// With more than one digit before the point the exponent is a multiple of their number.
std::int64_t shown_exponent(std::int64_t exponent, std::int64_t places) {
    if (places == 0) return exponent + 1;
    const std::int64_t remainder = exponent % places;
    return exponent - (remainder < 0 ? remainder + places : remainder);
}

void add_scientific(std::string& out, const FormatSection& section, double size, const Locale& locale) {
    const auto places = static_cast<std::int64_t>(section.integer_places);
    Decimal mantissa(size);
    mantissa.scale(section.scale);
    std::int64_t exponent = mantissa.is_zero() ? 0 : shown_exponent(mantissa.exponent(), places);
    mantissa.scale(-exponent);
    mantissa.round(static_cast<std::int64_t>(section.decimal_places));
    if (!mantissa.is_zero() && mantissa.exponent() >= places) { // 9.99 was rounded to 10
        const std::int64_t step = std::max<std::int64_t>(places, 1);
        mantissa.scale(-step);
        exponent += step;
    }
    std::string integer_digits = mantissa.integer_digits();
    if (integer_digits.empty() && places > 0) integer_digits = "0";
    PlaceFiller integer(std::move(integer_digits), section.integer_places);
    PlaceFiller exponent_digits(std::to_string(std::abs(exponent)), section.exponent_places);
    DecimalsFiller decimals(mantissa);
    char sign = 0; // still to be shown
    for (const FormatPiece& piece : section.pieces) {
        switch (piece.kind) {
        case PieceKind::integer_digit:
            integer.fill(out, piece.symbol);
            break;
        case PieceKind::decimal_point:
            integer.put_surplus(out);
            out += locale.decimal_separator;
            break;
        case PieceKind::decimal_digit:
            decimals.fill(out, piece.symbol);
            break;
        case PieceKind::exponent:
            out += 'E';
            sign = exponent < 0 ? '-' : piece.symbol;
            if (sign == '-' && exponent >= 0) sign = 0;
            if (section.exponent_places > 0) break;
            if (sign != 0) out += std::exchange(sign, '\0');
            if (exponent != 0) exponent_digits.put_surplus(out);
            break;
        case PieceKind::exponent_digit:
            if (sign != 0) out += std::exchange(sign, '\0');
            exponent_digits.fill(out, piece.symbol);
            break;
        default:
            add_plain_piece(out, section, piece, size, locale);
        }
    }
}

struct Ratio {
    double numerator = 0;
    double denominator = 1;
};

// The last convergent of the continued fraction whose denominator fits. Computed in doubles on purpose: 0.3 in single
// digits is 2/7, as Excel has it, because of the rounding on the way.
Ratio approximate(double value, double largest_denominator) {
    constexpr double near_enough = 5e-8;
    Ratio before{1, 0};
    Ratio last{std::floor(value), 1};
    double rest = value - last.numerator;
    while (rest > near_enough) {
        const double inverse = 1 / rest;
        const double term = std::floor(inverse);
        const Ratio next{term * last.numerator + before.numerator, term * last.denominator + before.denominator};
        if (next.denominator > largest_denominator) break;
        before = std::exchange(last, next);
        rest = inverse - term;
    }
    return last;
}

// Excel looks for no denominator of more than seven digits, however many the code has room for.
double largest_denominator_of(std::size_t places) {
    constexpr std::size_t most_places = 7;
    double largest = 0;
    for (std::size_t place = 0; place < std::min(places, most_places); ++place)
        largest = largest * 10 + 9;
    return largest;
}

std::string whole_digits(double whole) { return Decimal(whole).integer_digits(); }

class FractionWriter {
  public:
    FractionWriter(const FormatSection& section, double size, const Locale& locale)
        : section_(section), size_(size), locale_(locale), mixed_(section.integer_places > 0) {
        split(scaled(size, section));
        blank_ = is_blank();
    }

    void add_to(std::string& out) const {
        const std::string_view separator = section_.grouped ? std::string_view(locale_.thousands_separator) : "";
        PlaceFiller integer(whole_ == 0 && !blank_ ? "" : digits_or_zero(whole_), section_.integer_places, separator);
        PlaceFiller numerator(digits_or_zero(ratio_.numerator), section_.numerator_places);
        const std::string denominator = denominator_digits();
        const auto [blank_begin, blank_end] = blank_room();
        std::size_t denominators_out = 0;
        for (std::size_t at = 0; at < section_.pieces.size(); ++at) {
            const FormatPiece& piece = section_.pieces[at];
            if (at >= blank_begin && at < blank_end) {
                out.append(width_of(piece), ' ');
                continue;
            }
            switch (piece.kind) {
            case PieceKind::integer_digit:
                integer.fill(out, piece.symbol);
                break;
            case PieceKind::numerator_digit:
                numerator.fill(out, piece.symbol);
                break;
            case PieceKind::fraction_bar:
                out += '/';
                break;
            case PieceKind::denominator_digit:
                if (++denominators_out <= denominator.size())
                    out += denominator[denominators_out - 1];
                else if (denominators_out > section_.denominator_places) // behind the denominator # is a zero too
                    out += piece.symbol == '?' ? ' ' : '0';
                else
                    add_padding(out, piece.symbol);
                break;
            case PieceKind::fixed_denominator:
                out += std::to_string(piece.count);
                break;
            default:
                add_plain_piece(out, section_, piece, size_, locale_);
            }
        }
    }

  private:
    void split(double value) {
        const double whole = std::floor(value);
        const double part = mixed_ ? value - whole : value;
        if (section_.fixed_denominator != 0)
            ratio_ = {std::floor(part * section_.fixed_denominator + 0.5),
                      static_cast<double>(section_.fixed_denominator)};
        else
            ratio_ = approximate(part, largest_denominator_of(section_.denominator_places));
        if (!mixed_) return;
        whole_ = whole;
        if (ratio_.numerator == ratio_.denominator) {
            whole_ += 1;
            ratio_.numerator = 0;
            if (section_.fixed_denominator == 0) ratio_.denominator = 1;
        }
    }

    // A whole number leaves the room of its fraction empty, unless the code asks for a zero there.
    [[nodiscard]] bool is_blank() const {
        return mixed_ && ratio_.numerator == 0 &&
               std::none_of(section_.pieces.begin(), section_.pieces.end(), [](const FormatPiece& piece) {
                   return piece.kind == PieceKind::numerator_digit && piece.symbol == '0';
               });
    }

    static bool is_fraction_place(const FormatPiece& piece) {
        return piece.kind == PieceKind::numerator_digit || piece.kind == PieceKind::denominator_digit ||
               piece.kind == PieceKind::fixed_denominator;
    }

    // The pieces that a whole number leaves empty: from behind its last digit up to the last digit of the fraction,
    // with all texts in between.
    [[nodiscard]] std::pair<std::size_t, std::size_t> blank_room() const {
        if (!blank_) return {0, 0};
        const auto& pieces = section_.pieces;
        const auto behind_last = [&pieces](auto matches) {
            return static_cast<std::size_t>(std::find_if(pieces.rbegin(), pieces.rend(), matches).base() -
                                            pieces.begin());
        };
        return {behind_last([](const FormatPiece& piece) { return piece.kind == PieceKind::integer_digit; }),
                behind_last(is_fraction_place)};
    }

    [[nodiscard]] std::size_t width_of(const FormatPiece& piece) const {
        if (piece.kind == PieceKind::literal) return code_points(section_.literal(piece)).size();
        return piece.kind == PieceKind::fixed_denominator ? std::to_string(piece.count).size() : 1;
    }

    // Written from the left, but for a run of zeros, which is filled up on the left.
    [[nodiscard]] std::string denominator_digits() const {
        std::string digits = digits_or_zero(ratio_.denominator);
        const auto is_denominator = [](const FormatPiece& piece) { return piece.kind == PieceKind::denominator_digit; };
        const auto begin = std::find_if(section_.pieces.begin(), section_.pieces.end(), is_denominator);
        const auto end = std::find_if_not(begin, section_.pieces.end(), [is_denominator](const FormatPiece& piece) {
            return is_denominator(piece) && piece.symbol == '0';
        });
        if (static_cast<std::size_t>(end - begin) == section_.denominator_places &&
            digits.size() < section_.denominator_places)
            digits.insert(0, section_.denominator_places - digits.size(), '0');
        return digits;
    }

    static std::string digits_or_zero(double whole) { return whole == 0 ? "0" : whole_digits(whole); }

    const FormatSection& section_;
    double size_;
    const Locale& locale_;
    bool mixed_;
    bool blank_ = false;
    double whole_ = 0;
    Ratio ratio_;
};

} // namespace

void add_general(std::string& out, double size, const Locale& locale) {
    constexpr double exponent_from = 1e11;
    if (size < exponent_from && size == static_cast<double>(static_cast<std::int64_t>(size))) {
        std::array<char, 16> digits{};
        out.append(digits.begin(), std::to_chars(digits.begin(), digits.end(), static_cast<std::int64_t>(size)).ptr);
        return;
    }
    constexpr std::int64_t most_characters = 11;
    constexpr std::int64_t most_decimals = 9;
    constexpr std::int64_t smallest_exponent = -4;
    const Decimal exact(size);
    const bool too_small = exact.exponent() < smallest_exponent && exact.decimals() > most_decimals;
    if (too_small || exact.exponent() >= most_characters) return add_general_with_exponent(out, exact, locale);
    Decimal shown = exact;
    const std::int64_t before_point = std::max<std::int64_t>(exact.exponent(), 0) + 1;
    shown.round(std::clamp<std::int64_t>(most_characters - 1 - before_point, 0, most_decimals));
    if (shown.exponent() >= most_characters) return add_general_with_exponent(out, exact, locale);
    const std::string integer = shown.integer_digits();
    out += integer.empty() ? "0" : integer;
    add_decimals(out, shown, locale);
}

bool add_number(std::string& out, const FormatSection& section, double size, const Locale& locale) {
    switch (section.kind) {
    case SectionKind::scientific:
        add_scientific(out, section, size, locale);
        return true;
    case SectionKind::fraction:
        FractionWriter(section, size, locale).add_to(out);
        return true;
    case SectionKind::number:
        return add_decimal(out, section, size, locale);
    default:
        for (const FormatPiece& piece : section.pieces)
            add_plain_piece(out, section, piece, size, locale);
        return true;
    }
}

} // namespace tavelo
