// tavelo-dump: shows what the program reads in a file, for the helpdesk.
//   tavelo-dump --blad N [--land en-US] BESTAND    a sheet of an Excel workbook as CSV
#include "excel/open_workbook.h"
#include "excel/sheet_csv.h"
#include "excel/text/locale.h"

#include <charconv>
#include <iostream>
#include <optional>
#include <span>
#include <string_view>

namespace {

using namespace tavelo;

constexpr int cannot_open = 1;
constexpr int wrong_use = 2;

int dump_blad(std::string_view bestand, std::size_t blad, std::string_view land) {
    const auto workbook = open_workbook(bestand);
    if (!workbook) {
        std::cerr << sentence_of(workbook.error()) << '\n';
        return cannot_open;
    }
    const auto csv = blad_als_csv(**workbook, blad, locale_named(land));
    if (!csv) {
        std::cerr << sentence_of(csv.error()) << '\n';
        return cannot_open;
    }
    std::cout.write(csv->data(), static_cast<std::streamsize>(csv->size()));
    return std::cout.flush() ? 0 : cannot_open;
}

std::optional<std::size_t> sheet_number(std::string_view text) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || number == 0) return std::nullopt;
    return number;
}

int show_usage() {
    std::cerr << "Gebruik: tavelo-dump --blad N [--land nl-NL] BESTAND\n";
    return wrong_use;
}

} // namespace

int main(int count, char** words) {
    const std::span arguments(words, static_cast<std::size_t>(count));
    std::optional<std::size_t> blad;
    std::string_view land = "nl-NL";
    std::string_view bestand;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string_view word = arguments[i];
        const bool has_value = i + 1 < arguments.size();
        if (word == "--blad" && has_value) {
            blad = sheet_number(arguments[++i]);
        } else if (word == "--land" && has_value) {
            land = arguments[++i];
        } else if (bestand.empty()) {
            bestand = word;
        } else {
            return show_usage();
        }
    }
    if (!blad || bestand.empty()) return show_usage();
    return dump_blad(bestand, *blad, land);
}
