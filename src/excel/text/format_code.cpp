#include "excel/text/format_code.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t most_sections = 4;
constexpr std::int64_t most_percent_signs = 20;
constexpr std::uint32_t most_subsecond_digits = 3; // what Excel knows of a second; further digits are zeros

char lower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

bool starts_with_word(std::string_view text, std::string_view lower_case_word) {
    return text.size() >= lower_case_word.size() &&
           std::equal(lower_case_word.begin(), lower_case_word.end(), text.begin(),
                      [](char expected, char found) { return expected == lower(found); });
}

std::size_t code_point_length(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return std::min(length, text.size());
}

bool is_digit_like(const FormatPiece& piece) {
    return piece.kind == PieceKind::digit || piece.kind == PieceKind::literal_digit;
}

void add_literal(FormatSection& section, std::string_view text) {
    if (text.empty()) return;
    auto& pieces = section.pieces;
    const auto offset = static_cast<std::uint32_t>(section.texts.size());
    const auto length = static_cast<std::uint32_t>(text.size());
    section.texts += text;
    if (!pieces.empty() && pieces.back().kind == PieceKind::literal &&
        pieces.back().offset + pieces.back().count == offset)
        pieces.back().count += length;
    else
        pieces.push_back({PieceKind::literal, 0, length, offset});
}

// The language of a tag such as 413, 10413 or nl-NL; the leading digits of a long number choose calendar and numerals.
std::string_view language_of_tag(std::string_view tag) {
    struct Language {
        unsigned number;
        std::string_view prefix;
        std::string_view name;
    };
    constexpr std::array<Language, 4> languages = {{
        {0x07, "de-", "de-DE"},
        {0x09, "en-", "en-US"},
        {0x0C, "fr-", "fr-FR"},
        {0x13, "nl-", "nl-NL"},
    }};
    constexpr unsigned long language_mask = 0x3FF;
    unsigned long number = 0;
    const auto [end, error] = std::from_chars(tag.data(), tag.data() + tag.size(), number, 16);
    const bool is_number = error == std::errc() && end == tag.data() + tag.size();
    for (const Language& language : languages)
        if (is_number ? (number & language_mask) == language.number : starts_with_word(tag, language.prefix))
            return language.name;
    return {};
}

bool is_chinese(std::string_view tag) {
    return starts_with_word(tag, "804") || starts_with_word(tag, "404") || starts_with_word(tag, "zh-");
}

SystemFormat system_format_of_tag(std::string_view tag) {
    if (tag == "x-shortdate") return SystemFormat::short_date;
    if (tag == "x-shortdatetime") return SystemFormat::short_date_and_time;
    if (tag == "x-shorttime") return SystemFormat::short_time;
    if (tag == "x-longtime") return SystemFormat::long_time;
    if (starts_with_word(tag, "f800") || starts_with_word(tag, "x-sysdate")) return SystemFormat::long_date;
    if (starts_with_word(tag, "f400") || starts_with_word(tag, "x-systime")) return SystemFormat::long_time;
    return SystemFormat::none;
}

std::optional<Condition> parse_condition(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, Comparison>, 6> signs = {{
        {"<=", Comparison::less_or_equal},
        {"<>", Comparison::not_equal},
        {">=", Comparison::greater_or_equal},
        {"<", Comparison::less},
        {"=", Comparison::equal},
        {">", Comparison::greater},
    }};
    for (const auto& [sign, comparison] : signs) {
        if (!text.starts_with(sign)) continue;
        text.remove_prefix(sign.size());
        while (text.starts_with(' ') || text.starts_with('+'))
            text.remove_prefix(1);
        Condition condition{comparison, 0};
        const auto error = std::from_chars(text.data(), text.data() + text.size(), condition.operand).ec;
        return error == std::errc() ? std::optional(condition) : std::nullopt;
    }
    return std::nullopt;
}

// Symbols that are a piece by themselves.
std::optional<PieceKind> kind_of_symbol(char symbol) {
    switch (symbol) {
    case '0':
    case '#':
    case '?':
        return PieceKind::digit;
    case '.':
        return PieceKind::point;
    case ',':
        return PieceKind::comma;
    case '/':
        return PieceKind::slash;
    case ':':
        return PieceKind::colon;
    case '%':
        return PieceKind::percent;
    case '@':
        return PieceKind::text;
    default:
        return symbol >= '1' && symbol <= '9' ? std::optional(PieceKind::literal_digit) : std::nullopt;
    }
}

PieceKind kind_of_date_letter(char letter, std::size_t count) {
    switch (letter) {
    case 'y':
        return PieceKind::year;
    case 'm':
        return count > 2 ? PieceKind::month : PieceKind::month_or_minute;
    case 'd':
        return count > 2 ? PieceKind::weekday : PieceKind::day;
    case 'h':
        return PieceKind::hour;
    default:
        return PieceKind::second;
    }
}

// Cuts the code into sections of plain pieces; what a point, a comma or an m means is settled when a section is
// complete.
class Lexer {
  public:
    explicit Lexer(std::string_view code) : rest_(code) {}

    std::vector<FormatSection> sections() {
        std::vector<FormatSection> found = cut();
        if (chinese_) return found;
        for (FormatSection& section : found)
            section.numerals = Numerals::western;
        return found;
    }

  private:
    std::vector<FormatSection> cut() {
        std::vector<FormatSection> found(1);
        while (!rest_.empty()) {
            if (rest_.front() == ';') {
                if (found.size() == most_sections) break;
                take(1);
                found.emplace_back();
                digit_seen_ = false;
            } else {
                read_piece(found.back());
            }
        }
        return found;
    }

    std::string_view take(std::size_t length) {
        const std::string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    void read_piece(FormatSection& section) {
        switch (const char first = rest_.front()) {
        case '"':
            read_quoted(section);
            return;
        case '\\':
            take(1);
            add_literal(section, take(code_point_length(rest_)));
            return;
        case '_': // as wide as the next character: one space
            take(1);
            if (take(code_point_length(rest_)).size() > 0) add_literal(section, " ");
            return;
        case '*': // fills the column with the next character: nothing in a text
            take(1);
            take(code_point_length(rest_));
            return;
        case '[':
            read_bracket(section);
            return;
        default:
            if (const auto kind = kind_of_symbol(first))
                add(section, *kind, first);
            else if (!read_word(section))
                add_literal(section, take(code_point_length(rest_)));
        }
    }

    void add(FormatSection& section, PieceKind kind, char symbol = 0, std::size_t length = 1) {
        take(length);
        section.pieces.push_back({kind, symbol, static_cast<std::uint32_t>(length), 0});
        if (kind == PieceKind::digit) digit_seen_ = true;
        if (kind == PieceKind::text) section.has_text_piece = true;
    }

    void read_quoted(FormatSection& section) {
        take(1);
        const std::size_t end = rest_.find('"');
        add_literal(section, take(end));
        take(1);
    }

    void read_bracket(FormatSection& section) {
        const std::size_t end = closing_brackets_left_ ? rest_.find(']') : std::string_view::npos;
        if (end == std::string_view::npos) {
            closing_brackets_left_ = false;
            add_literal(section, take(1));
            return;
        }
        const std::string_view inside = take(end + 1).substr(1, end - 1);
        if (inside.starts_with('$'))
            read_locale_tag(section, inside.substr(1));
        else if (const auto condition = parse_condition(inside))
            section.condition = condition;
        else if (starts_with_word(inside, "dbnum1"))
            section.numerals = Numerals::chinese;
        else if (starts_with_word(inside, "dbnum2"))
            section.numerals = Numerals::chinese_formal;
        else
            read_elapsed(section, inside); // anything else is a colour
    }

    void read_locale_tag(FormatSection& section, std::string_view inside) {
        const std::size_t dash = inside.find('-');
        add_literal(section, inside.substr(0, dash));
        if (dash == std::string_view::npos) return;
        const std::string_view tag = inside.substr(dash + 1);
        if (section.system == SystemFormat::none) section.system = system_format_of_tag(tag);
        section.language = language_of_tag(tag);
        chinese_ = chinese_ || is_chinese(tag);
    }

    static void read_elapsed(FormatSection& section, std::string_view inside) {
        if (inside.empty()) return;
        const char letter = lower(inside.front());
        if (!std::all_of(inside.begin(), inside.end(), [letter](char other) { return lower(other) == letter; })) return;
        const auto count = static_cast<std::uint32_t>(inside.size());
        if (letter == 'h') section.pieces.push_back({PieceKind::elapsed_hours, 0, count, 0});
        if (letter == 'm') section.pieces.push_back({PieceKind::elapsed_minutes, 0, count, 0});
        if (letter == 's') section.pieces.push_back({PieceKind::elapsed_seconds, 0, count, 0});
    }

    bool read_word(FormatSection& section) {
        const char first = lower(rest_.front());
        if (starts_with_word(rest_, "general")) {
            add(section, PieceKind::general, 0, std::string_view("general").size());
            return true;
        }
        if (starts_with_word(rest_, "am/pm")) {
            add(section, PieceKind::am_pm, 0, std::string_view("am/pm").size());
            return true;
        }
        if (starts_with_word(rest_, "a/p")) {
            add(section, PieceKind::a_p, rest_.front(), std::string_view("a/p").size());
            return true;
        }
        return read_date_letters(section, first);
    }

    bool read_date_letters(FormatSection& section, char letter) {
        constexpr std::string_view date_letters = "ymdhsabeg";
        if (!date_letters.contains(letter)) return false;
        const auto end =
            std::find_if(rest_.begin(), rest_.end(), [letter](char other) { return lower(other) != letter; });
        const auto run = static_cast<std::size_t>(end - rest_.begin());
        const char after = end == rest_.end() ? '\0' : lower(*end);
        switch (letter) {
        case 'a': // the weekday in codes from East Asia
            if (run > 2)
                add(section, PieceKind::weekday, 0, run);
            else
                add_literal(section, take(run));
            break;
        case 'b':
            if (run == 1 && !digit_seen_ && (after == '1' || after == '2')) // chooses a calendar
                take(2);
            else
                add(section, PieceKind::era_year, rest_.front(), run);
            break;
        case 'e':
            if (digit_seen_ && run == 1 && (after == '+' || after == '-'))
                add(section, PieceKind::exponent, after, 2);
            else
                add(section, PieceKind::era_year, rest_.front(), run);
            break;
        case 'g': // an era, which western dates do not show
            if (!digit_seen_ && (after == 'e' || after == 'y'))
                take(run);
            else
                add_literal(section, take(run));
            break;
        default:
            add(section, kind_of_date_letter(letter, run), 0, run);
        }
        return true;
    }

    std::string_view rest_;
    bool digit_seen_ = false; // in this section
    bool closing_brackets_left_ = true;
    bool chinese_ = false; // other languages of the numeral tags are not known here
};

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

void settle_date(FormatSection& section) {
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
                add_literal(section, ".");
                break;
            }
            section.pieces.push_back({PieceKind::second_fraction, 0, zeros, 0});
            section.subsecond_digits = std::max(section.subsecond_digits, std::min(zeros, most_subsecond_digits));
            section.shows_time = true;
            break;
        }
        case PieceKind::digit:
        case PieceKind::literal_digit:
            add_literal(section, std::string_view(&piece.symbol, 1));
            break;
        case PieceKind::era_year:
            section.only_elapsed = false;
            if (lower(piece.symbol) == 'b')
                section.pieces.push_back({PieceKind::buddhist_year, 0, piece.count, 0});
            else
                section.pieces.push_back({PieceKind::year, 0, 4, 0});
            break;
        case PieceKind::comma:
            add_literal(section, ",");
            break;
        case PieceKind::percent:
            add_literal(section, "%");
            break;
        default:
            section.pieces.push_back(piece);
        }
    }
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
            add_literal(section_, std::string_view(&piece.symbol, 1));
            break;
        case PieceKind::comma:
            settle_commas();
            return;
        case PieceKind::point:
            if (exponent_ != none_ && at_ > exponent_)
                add_literal(section_, ".");
            else
                section_.pieces.push_back({PieceKind::decimal_point, 0, 1, 0});
            break;
        case PieceKind::percent:
            if (++percent_signs_ <= most_percent_signs) section_.scale += 2;
            add_literal(section_, "%");
            break;
        case PieceKind::exponent:
            if (at_ == exponent_)
                section_.pieces.push_back(piece);
            else
                add_literal(section_, piece.symbol == '+' ? "E+" : "E-");
            break;
        case PieceKind::slash:
            if (at_ == fraction_bar_)
                section_.pieces.push_back({PieceKind::fraction_bar, 0, 1, 0});
            else
                add_literal(section_, "/");
            break;
        case PieceKind::colon:
            add_literal(section_, ":");
            break;
        case PieceKind::era_year:
            add_literal(section_, std::string(piece.count, piece.symbol));
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
        const bool behind_digit = at_ > 0 && is_digit_like(raw_[at_ - 1]);
        const std::size_t begin = at_;
        while (at_ < raw_.size() && raw_[at_].kind == PieceKind::comma)
            ++at_;
        const bool in_exponent = exponent_ != none_ && begin > exponent_;
        if (!behind_digit || in_exponent) {
            add_literal(section_, ",");
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

void settle(FormatSection& section) {
    if (shows_date(section))
        settle_date(section);
    else
        NumberSettler(section).settle();
}

} // namespace

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
    FormatCode parsed;
    parsed.numbers = Lexer(code.empty() ? "General" : code).sections();
    auto& last = parsed.numbers.back();
    if (parsed.numbers.size() == most_sections || last.has_text_piece) {
        parsed.text = std::move(last);
        parsed.numbers.pop_back();
        settle(*parsed.text);
    }
    for (FormatSection& section : parsed.numbers)
        settle(section);
    return parsed;
}

} // namespace tavelo
