#include "workbook/text/format_code.h"

#include "workbook/text/format_lexer.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tavelo {

namespace {

constexpr std::int64_t most_percent_signs = 20;
constexpr std::uint32_t most_subsecond_digits = 3; // what Excel knows of a second; further digits are zeros

bool is_digit_like(const FormatPiece& piece) {
    return piece.kind == PieceKind::digit || piece.kind == PieceKind::literal_digit;
}

bool is_date_piece(PieceKind kind) {
    switch (kind) {
    case PieceKind::year:
    case PieceKind::buddhist_year:
    case PieceKind::month:
    case PieceKind::day:
    case PieceKind::weekday:
    case PieceKind::hour:
    case PieceKind::minute:
    case PieceKind::second:
    case PieceKind::elapsed_hours:
    case PieceKind::elapsed_minutes:
    case PieceKind::elapsed_seconds:
    case PieceKind::am_pm:
    case PieceKind::a_p:
    case PieceKind::month_or_minute:
        return true;
    default:
        return false;
    }
}

bool is_elapsed(PieceKind kind) {
    return kind == PieceKind::elapsed_hours || kind == PieceKind::elapsed_minutes || kind == PieceKind::elapsed_seconds;
}

// An m is minutes behind hours and before seconds, otherwise the month.
void settle_minutes(std::vector<FormatPiece>& pieces) {
    FormatPiece* undecided = nullptr;
    auto before = PieceKind::literal;
    for (FormatPiece& piece : pieces) {
        if (!is_date_piece(piece.kind) || piece.kind == PieceKind::am_pm || piece.kind == PieceKind::a_p) continue;
        if (undecided != nullptr) {
            const bool seconds = piece.kind == PieceKind::second || piece.kind == PieceKind::elapsed_seconds;
            undecided->kind = seconds ? PieceKind::minute : PieceKind::month;
            undecided = nullptr;
        }
        if (piece.kind == PieceKind::month_or_minute) {
            if (before == PieceKind::hour || before == PieceKind::elapsed_hours)
                piece.kind = PieceKind::minute;
            else
                undecided = &piece;
        }
        before = piece.kind;
    }
    if (undecided != nullptr) undecided->kind = PieceKind::month;
}

int clock_unit(PieceKind kind) {
    switch (kind) {
    case PieceKind::hour:
    case PieceKind::elapsed_hours:
        return 3;
    case PieceKind::minute:
    case PieceKind::elapsed_minutes:
        return 2;
    case PieceKind::second:
    case PieceKind::elapsed_seconds:
        return 1;
    default:
        return 0;
    }
}

// An elapsed time counts everything above it, so nothing as large may stand beside it.
bool clock_makes_sense(const std::vector<FormatPiece>& pieces) {
    const auto elapsed = std::ranges::find_if(pieces, is_elapsed, &FormatPiece::kind);
    if (elapsed == pieces.end()) return true;
    return std::ranges::none_of(pieces, [&](const FormatPiece& piece) {
        if (&piece == &*elapsed) return false;
        return is_elapsed(piece.kind) || clock_unit(piece.kind) >= clock_unit(elapsed->kind);
    });
}

// False for what Excel refuses.
bool settle_date(FormatSection& section) {
    bool accepted = true;
    section.kind = SectionKind::date;
    settle_minutes(section.pieces);
    const std::vector<FormatPiece> raw = std::exchange(section.pieces, {});
    section.only_elapsed = true;
    for (std::size_t at = 0; at < raw.size(); ++at) {
        const FormatPiece& piece = raw[at];
        if (is_date_piece(piece.kind)) {
            section.only_elapsed = section.only_elapsed && is_elapsed(piece.kind);
            section.twelve_hours =
                section.twelve_hours || piece.kind == PieceKind::am_pm || piece.kind == PieceKind::a_p;
            section.shows_time = section.shows_time || is_elapsed(piece.kind) || piece.kind == PieceKind::hour ||
                                 piece.kind == PieceKind::minute || piece.kind == PieceKind::second ||
                                 section.twelve_hours;
            section.pieces.push_back(piece);
            continue;
        }
        switch (piece.kind) {
        case PieceKind::slash:
            section.pieces.push_back({PieceKind::date_separator, 0, 1, 0});
            break;
        case PieceKind::colon:
            section.pieces.push_back({PieceKind::time_separator, 0, 1, 0});
            break;
        case PieceKind::point: {
            std::uint32_t zeros = 0;
            while (at + 1 < raw.size() && raw[at + 1].kind == PieceKind::digit && raw[at + 1].symbol == '0') {
                ++zeros;
                ++at;
            }
            if (zeros == 0) {
                section.add_literal(".");
                break;
            }
            section.pieces.push_back({PieceKind::second_fraction, 0, zeros, 0});
            section.subsecond_digits = std::max(section.subsecond_digits, std::min(zeros, most_subsecond_digits));
            section.shows_time = true;
            break;
        }
        case PieceKind::digit:
            accepted = false;
            break;
        case PieceKind::literal_digit:
            section.add_literal(std::string_view(&piece.symbol, 1));
            break;
        case PieceKind::era_year:
            section.only_elapsed = false;
            if ((piece.symbol == 'b' || piece.symbol == 'B'))
                section.pieces.push_back({PieceKind::buddhist_year, 0, piece.count, 0});
            else
                section.pieces.push_back({PieceKind::year, 0, 4, 0});
            break;
        case PieceKind::comma:
            section.add_literal(",");
            break;
        case PieceKind::percent:
            section.add_literal("%");
            break;
        default:
            section.pieces.push_back(piece);
        }
    }
    return accepted && clock_makes_sense(section.pieces);
}

// Gives every digit, point and comma of a number its place. Works from the left, with a look ahead for what ends where.
class NumberSettler {
  public:
    explicit NumberSettler(FormatSection& section) : section_(section), raw_(std::exchange(section.pieces, {})) {}

    void settle() {
        find_landmarks();
        find_fraction();
        for (at_ = 0; at_ < raw_.size();)
            settle_piece();
        if (fraction_bar_ != none_)
            section_.kind = SectionKind::fraction;
        else if (exponent_ != none_)
            section_.kind = SectionKind::scientific;
        else if (section_.integer_places + section_.decimal_places > 0)
            section_.kind = SectionKind::number;
        else if (general_)
            section_.kind = SectionKind::general;
    }

  private:
    void find_landmarks() {
        for (std::size_t at = 0; at < raw_.size(); ++at) {
            const auto kind = raw_[at].kind;
            if (kind == PieceKind::general) general_ = true;
            if (kind == PieceKind::exponent && exponent_ == none_) exponent_ = at;
            if (kind == PieceKind::point && point_ == none_ && exponent_ == none_) point_ = at;
            if (!is_digit_like(raw_[at]) || exponent_ != none_) continue;
            if (point_ == none_) last_integer_digit_ = at;
            last_mantissa_digit_ = at;
        }
    }

    // A fraction needs digits on both sides of the bar and has neither point nor exponent.
    void find_fraction() {
        if (point_ != none_ || exponent_ != none_) return;
        const auto is_digit = [](const FormatPiece& piece) { return piece.kind == PieceKind::digit; };
        for (std::size_t bar = 1; bar < raw_.size(); ++bar) {
            if (raw_[bar].kind != PieceKind::slash) continue;
            std::size_t end = bar;
            while (end > 0 && raw_[end - 1].kind == PieceKind::literal)
                --end;
            std::size_t begin = end;
            while (begin > 0 && is_digit(raw_[begin - 1]))
                --begin;
            const auto after = std::find_if_not(raw_.begin() + static_cast<std::ptrdiff_t>(bar) + 1, raw_.end(),
                                                [](const auto& piece) { return piece.kind == PieceKind::literal; });
            if (begin == end || after == raw_.end() || !is_digit_like(*after)) return;
            fraction_bar_ = bar;
            numerator_begin_ = begin;
            denominator_begin_ = static_cast<std::size_t>(after - raw_.begin());
            denominator_end_ = static_cast<std::size_t>(std::find_if_not(after, raw_.end(), is_digit) - raw_.begin());
            return;
        }
    }

    void settle_piece() {
        const FormatPiece& piece = raw_[at_];
        switch (piece.kind) {
        case PieceKind::digit:
            if (at_ == denominator_begin_ && starts_with_fixed_denominator()) return;
            settle_digit(piece.symbol);
            break;
        case PieceKind::literal_digit:
            if (at_ == denominator_begin_ && starts_with_fixed_denominator()) return;
            section_.add_literal(std::string_view(&piece.symbol, 1));
            break;
        case PieceKind::comma:
            settle_commas();
            return;
        case PieceKind::point:
            if (exponent_ != none_ && at_ > exponent_)
                section_.add_literal(".");
            else
                section_.pieces.push_back({PieceKind::decimal_point, 0, 1, 0});
            break;
        case PieceKind::percent:
            if (++percent_signs_ <= most_percent_signs) section_.scale += 2;
            section_.add_literal("%");
            break;
        case PieceKind::exponent:
            if (at_ == exponent_)
                section_.pieces.push_back(piece);
            else
                section_.add_literal(piece.symbol == '+' ? "E+" : "E-");
            break;
        case PieceKind::slash:
            if (at_ == fraction_bar_)
                section_.pieces.push_back({PieceKind::fraction_bar, 0, 1, 0});
            else
                section_.add_literal("/");
            break;
        case PieceKind::colon:
            section_.add_literal(":");
            break;
        case PieceKind::era_year:
            section_.add_literal(std::string(piece.count, piece.symbol));
            break;
        default:
            section_.pieces.push_back(piece);
        }
        ++at_;
    }

    void settle_digit(char symbol) {
        const auto place = [this, symbol](PieceKind kind, std::size_t& places) {
            section_.pieces.push_back({kind, symbol, 1, 0});
            ++places;
        };
        if (exponent_ != none_ && at_ > exponent_)
            place(PieceKind::exponent_digit, section_.exponent_places);
        else if (point_ != none_ && at_ > point_)
            place(PieceKind::decimal_digit, section_.decimal_places);
        else if (fraction_bar_ != none_ && at_ >= denominator_end_)
            section_.pieces.push_back({PieceKind::denominator_digit, symbol, 1, 0}); // only ever filled up
        else if (fraction_bar_ != none_ && at_ > fraction_bar_)
            place(PieceKind::denominator_digit, section_.denominator_places);
        else if (fraction_bar_ != none_ && at_ >= numerator_begin_)
            place(PieceKind::numerator_digit, section_.numerator_places);
        else
            place(PieceKind::integer_digit, section_.integer_places);
    }

    // The written number of formats such as # ?/16.
    bool starts_with_fixed_denominator() {
        if (raw_[at_].kind != PieceKind::literal_digit) return false;
        constexpr std::uint32_t largest = 99'999'999;
        std::uint32_t number = 0;
        for (; at_ < raw_.size() && is_digit_like(raw_[at_]) && number <= largest; ++at_)
            number = number * 10 + static_cast<std::uint32_t>(std::max(raw_[at_].symbol, '0') - '0') % 10;
        section_.fixed_denominator = number;
        section_.pieces.push_back({PieceKind::fixed_denominator, 0, number, 0});
        return true;
    }

    // Between digits of the integer part a comma asks for groups of thousands, behind the last digit it divides by a
    // thousand, away from digits it is a comma.
    void settle_commas() {
        const bool behind_point = at_ > 1 && at_ == point_ + 1; // "0.," scales as "0," does
        const bool behind_digit = at_ > 0 && is_digit_like(raw_[at_ - (behind_point ? 2 : 1)]);
        const std::size_t begin = at_;
        while (at_ < raw_.size() && raw_[at_].kind == PieceKind::comma)
            ++at_;
        const bool in_exponent = exponent_ != none_ && begin > exponent_;
        if (!behind_digit || in_exponent) {
            section_.add_literal(",");
            return;
        }
        const bool in_decimals = point_ != none_ && begin > point_;
        const bool before_digit = at_ < raw_.size() && is_digit_like(raw_[at_]);
        const std::size_t last_digit = in_decimals ? last_mantissa_digit_ : last_integer_digit_;
        if (before_digit)
            section_.grouped = section_.grouped || !in_decimals;
        else if (last_digit < begin)
            section_.scale -= 3 * static_cast<std::int64_t>(at_ - begin);
    }

    static constexpr std::size_t none_ = std::numeric_limits<std::size_t>::max();

    FormatSection& section_;
    const std::vector<FormatPiece> raw_;
    std::size_t at_ = 0;
    std::size_t point_ = none_;
    std::size_t exponent_ = none_;
    std::size_t last_integer_digit_ = 0;
    std::size_t last_mantissa_digit_ = 0;
    std::size_t fraction_bar_ = none_;
    std::size_t numerator_begin_ = none_;
    std::size_t denominator_begin_ = none_;
    std::size_t denominator_end_ = none_;
    std::int64_t percent_signs_ = 0;
    bool general_ = false;
};

bool shows_date(const FormatSection& section) {
    if (section.system != SystemFormat::none) return true;
    const auto has = [&section](auto matches) {
        return std::any_of(section.pieces.begin(), section.pieces.end(),
                           [matches](const FormatPiece& piece) { return matches(piece.kind); });
    };
    if (has(is_date_piece)) return true;
    return has([](PieceKind kind) { return kind == PieceKind::era_year; }) &&
           !has([](PieceKind kind) { return kind == PieceKind::digit || kind == PieceKind::general; });
}

// False for what Excel refuses.
bool settle(FormatSection& section) {
    if (shows_date(section)) return settle_date(section);
    NumberSettler(section).settle();
    return true;
}

// Nothing for a code that Excel refuses.
std::optional<FormatCode> parse(std::string_view code) {
    FormatCode parsed;
    parsed.numbers = cut_format_code(code);
    if (parsed.numbers.empty() || parsed.numbers.size() > most_sections) return std::nullopt;
    auto& last = parsed.numbers.back();
    if (parsed.numbers.size() == most_sections || last.has_text_piece) {
        parsed.text = std::move(last);
        parsed.numbers.pop_back();
        settle(*parsed.text); // no value is shown in it, so nothing of it is refused
    }
    for (FormatSection& section : parsed.numbers)
        if (!settle(section)) return std::nullopt;
    return parsed;
}

} // namespace

void FormatSection::add_literal(std::string_view text) {
    if (text.empty()) return;
    const auto offset = static_cast<std::uint32_t>(texts.size());
    const auto length = static_cast<std::uint32_t>(text.size());
    texts += text;
    if (!pieces.empty() && pieces.back().kind == PieceKind::literal &&
        pieces.back().offset + pieces.back().count == offset)
        pieces.back().count += length;
    else
        pieces.push_back({PieceKind::literal, 0, length, offset});
}

bool Condition::holds(double value) const {
    switch (comparison) {
    case Comparison::less:
        return value < operand;
    case Comparison::less_or_equal:
        return value <= operand;
    case Comparison::equal:
        return value == operand;
    case Comparison::not_equal:
        return value != operand;
    case Comparison::greater_or_equal:
        return value >= operand;
    case Comparison::greater:
        return value > operand;
    }
    return false;
}

bool Condition::only_negative() const {
    switch (comparison) {
    case Comparison::less:
        return operand <= 0;
    case Comparison::less_or_equal:
    case Comparison::equal:
        return operand < 0;
    default:
        return false;
    }
}

FormatCode parse_format_code(std::string_view code) {
    if (code.empty() || code == "General") return {};
    return parse(code).value_or(FormatCode{});
}

} // namespace tavelo
