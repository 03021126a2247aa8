#include "basis/codeDatumTijd.h"

namespace tavelo {

namespace {

void append_padded(std::string& text, int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) text.append(width - digits.size(), '0');
    text.append(digits);
}

int part_of(const LocalTime& tijd, char letter) {
    switch (letter) {
    case 'y':
        return tijd.year;
    case 'm':
        return tijd.month;
    case 'd':
        return tijd.day;
    case 'h':
        return tijd.hour;
    case 'n':
        return tijd.minute;
    default:
        return tijd.second;
    }
}

} // namespace

std::string datum_tijd_tekst(const LocalTime& tijd, std::string_view vorm) {
    std::string text;
    while (!vorm.empty()) {
        const char letter = vorm.front();
        const std::size_t width = std::min(vorm.find_first_not_of(letter), vorm.size());
        if (std::string_view("ymdhns").find(letter) == std::string_view::npos)
            text.append(vorm.substr(0, width));
        else
            append_padded(text, part_of(tijd, letter), width);
        vorm.remove_prefix(width);
    }
    return text;
}

std::string bestand_tijdstempel(const FileStamp& stempels, std::string_view pad, std::string_view vorm) {
    const std::optional<LocalTime> tijd = stempels.modified(pad);
    return tijd ? datum_tijd_tekst(*tijd, vorm) : std::string();
}

} // namespace tavelo
