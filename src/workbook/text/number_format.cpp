#include "workbook/text/number_format.h"

#include "workbook/book/text_table.h"
#include "workbook/text/date_text.h"
#include "workbook/text/format_code.h"
#include "workbook/text/number_text.h"

#include <cmath>
#include <limits>
#include <utility>

namespace tavelo {

namespace {

// What stands for a value that its format can't show: a date before the start of the calendar, a number that no section
// takes.
constexpr std::string_view not_showable = "######";

enum class Minus : std::uint8_t { shown, implied };

struct Choice {
    const FormatSection* section = nullptr; // null: General
    Minus minus = Minus::shown;             // for a value below zero
    bool showable = true;
};

bool has_places(const FormatSection& section) { return section.kind != SectionKind::literal; }

NumeralStyle numeral_style(const FormatSection& section) {
    if (section.kind == SectionKind::general) return NumeralStyle::spelled;
    return section.kind == SectionKind::date ? NumeralStyle::calendar : NumeralStyle::digits;
}

// The minus of a value that meets an explicit condition. A section that only negative numbers reach brings its own
// sign, and so does one that shows no number at all.
Minus minus_under(const FormatSection& section) {
    return section.condition->only_negative() || !has_places(section) ? Minus::implied : Minus::shown;
}

// The minus of a value that failed the first section's condition, where nothing else is asked.
Minus minus_after(const Condition& failed) {
    switch (failed.comparison) {
    case Comparison::less:
    case Comparison::less_or_equal:
        return Minus::implied; // even where positive numbers remain: Excel has it so
    case Comparison::not_equal:
    case Comparison::greater:
        return failed.operand < 0 ? Minus::implied : Minus::shown;
    case Comparison::greater_or_equal:
        return failed.operand <= 0 ? Minus::implied : Minus::shown;
    case Comparison::equal:
        return Minus::shown;
    }
    return Minus::shown;
}

Choice choose_from_one(const FormatSection& only, double value) {
    if (!only.condition) return {&only, Minus::shown};
    if (only.condition->holds(value)) return {&only, minus_under(only)};
    return {nullptr, minus_after(*only.condition)};
}

Choice choose_from_more(const std::vector<FormatSection>& sections, double value) {
    const FormatSection& first = sections[0];
    const FormatSection& second = sections[1];
    const bool has_third = sections.size() > 2;
    const bool zero_has_own_section = has_third || second.condition;
    if (first.condition ? first.condition->holds(value) : zero_has_own_section ? value > 0 : value >= 0)
        return {&first, first.condition ? minus_under(first) : Minus::shown};
    if (second.condition) {
        if (second.condition->holds(value)) return {&second, minus_under(second)};
        if (has_third) return {&sections[2], Minus::shown};
        if (value == 0 && !first.condition) return {&first, Minus::shown};
        return {nullptr, Minus::shown, false};
    }
    if (has_third && !(value < 0)) return {&sections[2], Minus::shown};
    if (has_third || !first.condition) return {&second, Minus::implied};
    return {&second, has_places(second) ? minus_after(*first.condition) : Minus::implied};
}

Choice choose(const std::vector<FormatSection>& sections, double value) {
    if (sections.empty()) return {};
    return sections.size() == 1 ? choose_from_one(sections.front(), value) : choose_from_more(sections, value);
}

// False for a finite value that its format can't show.
bool add_shown(std::string& out, const std::vector<FormatSection>& sections, double value, DateSystem dates,
               const Locale& locale) {
    const auto [section, minus, showable] = choose(sections, value);
    if (!showable) return false;
    const bool negative = value < 0;
    const double size = std::fabs(value);
    bool rounded_away = false;
    if (section == nullptr) {
        add_general(out, size, locale);
    } else if (section->kind == SectionKind::date) {
        // The calendar of 1900 knows no negative dates, that of 1904 shows them with a minus.
        if (negative && dates == DateSystem::from_1900 && !section->only_elapsed) return false;
        if (!add_date(out, *section, size, dates, locale)) return false;
    } else {
        rounded_away = !add_number(out, *section, size, locale);
    }
    if (section != nullptr && section->numerals != Numerals::western)
        out = with_numerals(out, section->numerals, numeral_style(*section));
    if (negative && minus == Minus::shown && !rounded_away) out.insert(0, 1, '-');
    return true;
}

} // namespace

struct NumberFormat::Parsed {
    FormatCode code;
};

NumberFormat::NumberFormat(std::string_view code)
    : parsed_(std::make_unique<const Parsed>(Parsed{parse_format_code(code)})),
      changes_texts_(parsed_->code.text.has_value()) {}
NumberFormat::NumberFormat(NumberFormat&&) noexcept = default;
NumberFormat& NumberFormat::operator=(NumberFormat&&) noexcept = default;
NumberFormat::~NumberFormat() = default;

std::string NumberFormat::show_number(double value, DateSystem dates, const Locale& locale) const {
    std::string text;
    show_number(value, dates, locale, text);
    return text;
}

void NumberFormat::show_number(double value, DateSystem dates, const Locale& locale, std::string& text) const {
    text.clear();
    // Excel writes no such number; of a quiet NaN it would show the bits as 2.69653970229347E+308, which helps nobody.
    constexpr std::size_t number_error = 5;
    if (!std::isfinite(value))
        text = locale.errors[number_error];
    else if (!add_shown(text, parsed_->code.numbers, value, dates, locale))
        text = not_showable;
}

std::string NumberFormat::show_text(std::string_view text) const {
    if (!changes_texts()) return std::string(text);
    const FormatSection& section = *parsed_->code.text;
    std::string out;
    for (const FormatPiece& piece : section.pieces) {
        if (out.size() > longest_text_bytes) break;
        switch (piece.kind) {
        case PieceKind::text:
        case PieceKind::general:
            out += text;
            break;
        case PieceKind::literal:
            out += section.literal(piece);
            break;
        case PieceKind::decimal_point:
            out += '.';
            break;
        case PieceKind::date_separator:
            out += '/';
            break;
        case PieceKind::time_separator:
            out += ':';
            break;
        default:
            break; // a value has no place in a text
        }
    }
    return out;
}

} // namespace tavelo
