#include "workbook/text/numerals.h"

#include <algorithm>
#include <array>

namespace tavelo {

namespace {

constexpr std::size_t group_size = 4;
constexpr std::size_t most_spelled_digits = 16;

struct NumeralSet {
    std::array<std::string_view, 10> digits;
    std::array<std::string_view, group_size> units; // of one, ten, hundred, thousand
    std::array<std::string_view, 4> groups;         // of ten thousand to the power 0, 1, 2, 3
};

constexpr NumeralSet everyday{
    {"〇", "一", "二", "三", "四", "五", "六", "七", "八", "九"}, {"", "十", "百", "千"}, {"", "万", "亿", "兆"}};
constexpr NumeralSet formal{
    {"零", "壹", "贰", "叁", "肆", "伍", "陆", "柒", "捌", "玖"}, {"", "拾", "佰", "仟"}, {"", "万", "亿", "兆"}};

bool is_digit(char symbol) { return symbol >= '0' && symbol <= '9'; }

std::string_view digit_in(const NumeralSet& set, char digit) {
    return set.digits.at(static_cast<std::size_t>(digit - '0'));
}

std::string digit_by_digit(std::string_view digits, const NumeralSet& set) {
    std::string out;
    for (const char digit : digits)
        out += digit_in(set, digit);
    return out;
}

// One zero stands for all zeros between two other digits; those at the end are silent.
std::string spelled(std::string_view digits, const NumeralSet& set) {
    std::string out;
    bool zero_skipped = false;
    bool group_has_digits = false;
    for (std::size_t at = 0; at < digits.size(); ++at) {
        const std::size_t place = digits.size() - 1 - at;
        if (digits[at] == '0') {
            zero_skipped = true;
        } else {
            if (zero_skipped && !out.empty()) out += set.digits.front();
            zero_skipped = false;
            group_has_digits = true;
            out += digit_in(set, digits[at]);
            out += set.units.at(place % group_size);
        }
        if (place % group_size != 0) continue;
        if (group_has_digits) out += set.groups.at(place / group_size);
        group_has_digits = false;
    }
    return out.empty() ? std::string(set.digits.front()) : out;
}

std::string calendar_number(std::string_view digits, const NumeralSet& set) {
    if (digits.size() > 2 || digits.front() == '0') return digit_by_digit(digits, set);
    std::string out = spelled(digits, set);
    if (digits.size() == 2 && digits.front() == '1') out.erase(0, set.digits[1].size());
    return out;
}

} // namespace

std::string with_numerals(std::string_view text, Numerals numerals, NumeralStyle style) {
    if (numerals == Numerals::western) return std::string(text);
    const NumeralSet& set = numerals == Numerals::chinese ? everyday : formal;
    std::string out;
    bool behind_point = false;
    while (!text.empty()) {
        const auto end = std::find_if_not(text.begin(), text.end(), is_digit);
        const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
        if (digits.empty()) {
            behind_point = text.front() == '.' || text.front() == ',';
            out += text.front();
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(digits.size());
        if (style == NumeralStyle::digits || behind_point || digits.size() > most_spelled_digits)
            out += digit_by_digit(digits, set);
        else
            out += style == NumeralStyle::spelled ? spelled(digits, set) : calendar_number(digits, set);
    }
    return out;
}

} // namespace tavelo
