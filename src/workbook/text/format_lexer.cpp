#include "workbook/text/format_lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace tavelo {

namespace {

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

class Lexer {
  public:
    explicit Lexer(std::string_view code) : rest_(code) {}

    std::vector<FormatSection> sections() {
        std::vector<FormatSection> found = cut();
        if (refused_) return {};
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
                if (found.size() > most_sections) break;
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
            section.add_literal(take(code_point_length(rest_)));
            return;
        case '_': // as wide as the next character: one space
            take(1);
            if (!take(code_point_length(rest_)).empty()) section.add_literal(" ");
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
                read_character(section);
        }
    }

    // Shown as it is, without quotes.
    void read_character(FormatSection& section) {
        refused_ = refused_ || lower(rest_.front()) == 'n';
        section.add_literal(take(code_point_length(rest_)));
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
        section.add_literal(take(end));
        take(1);
    }

    void read_bracket(FormatSection& section) {
        const std::size_t end = closing_brackets_left_ ? rest_.find(']') : std::string_view::npos;
        if (end == std::string_view::npos) {
            closing_brackets_left_ = false;
            section.add_literal(take(1));
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
        section.add_literal(inside.substr(0, dash));
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
                section.add_literal(take(run));
            break;
        case 'b':
            if (run == 1 && !digit_seen_ && (after == '1' || after == '2')) { // chooses a calendar
                section.hijri = after == '2';
                take(2);
            } else {
                add(section, PieceKind::era_year, rest_.front(), run);
            }
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
                section.add_literal(take(run));
            break;
        default:
            add(section, kind_of_date_letter(letter, run), 0, run);
        }
        return true;
    }

    std::string_view rest_;
    bool digit_seen_ = false; // in this section
    bool closing_brackets_left_ = true;
    bool refused_ = false;
    bool chinese_ = false; // other languages of the numeral tags are not known here
};

} // namespace

std::vector<FormatSection> cut_format_code(std::string_view code) { return Lexer(code).sections(); }

} // namespace tavelo
