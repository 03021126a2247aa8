// tavelo-dump: shows what the program reads in a file, for the helpdesk.
//   tavelo-dump BESTAND                            a schedule, as one JSON object
//     --daarna BESTAND2                              re-read over it, as the program does while it runs
//     --nummer N                                     with the display of that number in an area of
//     --breedte TWIPS --hoogte TWIPS                   this size
//     --instelling sleutel=waarde                    with this setting; may be repeated
//     --maat raster                                  measured by a fixed metric instead of this computer's fonts
//     --log                                          in place of that, a line for all that was left out, and why
//   tavelo-dump --blad N [--land en-US] BESTAND    a sheet of an Excel workbook as CSV
//   tavelo-dump --help
#include "dump_rooster.h"

#include "basis/number.h"
#include "excel/builtin_excel.h"
#include "meter.h"
#include "workbook/workbook.h"

#include <charconv>
#include <iostream>
#include <span>
#include <string_view>

namespace {

using namespace tavelo;

constexpr int no_output = 1; // the file cannot be opened, or what it holds cannot be written
constexpr int wrong_use = 2;

struct Vraag {
    DumpVraag rooster;
    std::optional<std::size_t> blad;
    std::string land = "nl-NL";
    bool raster = false;
};

std::optional<std::size_t> sheet_number(std::string_view text) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || number == 0) return std::nullopt;
    return number;
}

// False when the text is no size that an area can have.
bool neem_maat(double& twips, std::string_view tekst) {
    const std::optional<double> getal = number_in(tekst);
    if (!getal || !to_int32(*getal) || *getal < 0) return false;
    twips = *getal;
    return true;
}

bool neem_optie(Vraag& vraag, std::string_view optie, std::string_view waarde) {
    if (optie == "--daarna") {
        vraag.rooster.daarna = waarde;
    } else if (optie == "--nummer") {
        vraag.rooster.nummer = waarde;
    } else if (optie == "--breedte") {
        return neem_maat(vraag.rooster.breedte, waarde);
    } else if (optie == "--hoogte") {
        return neem_maat(vraag.rooster.hoogte, waarde);
    } else if (optie == "--land") {
        vraag.land = waarde;
    } else if (optie == "--maat") {
        vraag.raster = true;
        return waarde == "raster";
    } else if (optie == "--blad") {
        vraag.blad = sheet_number(waarde);
        return vraag.blad.has_value();
    } else if (optie == "--instelling") {
        const std::size_t is = waarde.find('=');
        if (is == std::string_view::npos) return false;
        vraag.rooster.instellingen.emplace_back(waarde.substr(0, is), waarde.substr(is + 1));
    } else {
        return false;
    }
    return true;
}

std::optional<Vraag> lees_vraag(std::span<char*> woorden) {
    Vraag vraag;
    for (std::size_t i = 1; i < woorden.size(); ++i) {
        const std::string_view woord = woorden[i];
        if (woord == "--log") {
            vraag.rooster.log = true;
        } else if (!woord.starts_with("--")) {
            if (!vraag.rooster.bestand.empty()) return std::nullopt;
            vraag.rooster.bestand = woord;
        } else if (i + 1 >= woorden.size() || !neem_optie(vraag, woord, woorden[++i])) {
            return std::nullopt;
        }
    }
    if (vraag.rooster.bestand.empty()) return std::nullopt;
    return vraag;
}

int sluit_uitvoer() {
    if (std::cout.flush()) return 0;
    std::cerr << "De uitvoer kan niet worden geschreven.\n";
    return no_output;
}

int dump_blad(std::string_view bestand, std::size_t blad, std::string_view land) {
    const auto workbook = open_workbook(bestand);
    if (!workbook) {
        std::cerr << sentence_of(workbook.error()) << '\n';
        return no_output;
    }
    const auto csv = blad_als_csv(**workbook, blad, locale_named(land));
    if (!csv) {
        std::cerr << sentence_of(csv.error()) << '\n';
        return no_output;
    }
    std::cout.write(csv->data(), static_cast<std::streamsize>(csv->size()));
    return sluit_uitvoer();
}

constexpr std::string_view gebruik =
    "Gebruik: tavelo-dump [--log] [--daarna BESTAND2] [--nummer N --breedte TWIPS --hoogte TWIPS]\n"
    "                     [--instelling sleutel=waarde ...] [--maat raster] [--land nl-NL] BESTAND\n"
    "         tavelo-dump --blad N [--land nl-NL] BESTAND\n"
    "         tavelo-dump --help\n";

constexpr std::string_view uitleg =
    "\n"
    "Laat zien wat Tavelo uit een bestand leest: een rooster (.rst) of een startlijst uit Excel.\n"
    "\n"
    "  BESTAND                      alles wat het programma ervan maakt, als JSON\n"
    "  --log                        in plaats daarvan: wat is overgeslagen, met regel, sleutel en reden\n"
    "  --daarna BESTAND2            lees daarna dit bestand, zoals het programma een herschreven rooster\n"
    "                               samenvoegt, en noem wat er wijzigde\n"
    "  --nummer N                   met de weergave van deze combinatie\n"
    "  --breedte, --hoogte TWIPS    in een vlak van deze maat (1440 twips is een inch; 19200 bij 10800)\n"
    "  --instelling sleutel=waarde  met deze instelling; mag vaker\n"
    "  --maat raster                gemeten met een vaste maat in plaats van de lettertypen van deze computer\n"
    "  --blad N                     werkblad N van een werkmap, als CSV\n"
    "  --land nl-NL                 getallen en datums zoals in dit land\n";

int weiger() {
    std::cerr << gebruik;
    return wrong_use;
}

int help() {
    std::cout << gebruik << uitleg;
    return sluit_uitvoer();
}

} // namespace

int main(int aantal, char** woorden) {
    if (aantal == 2 && std::string_view(woorden[1]) == "--help") return help();
    const std::optional<Vraag> vraag = lees_vraag(std::span(woorden, static_cast<std::size_t>(aantal)));
    if (!vraag) return weiger();
    if (vraag->blad) return dump_blad(vraag->rooster.bestand, *vraag->blad, vraag->land);

    // Without a number nothing is composed, so nothing is measured.
    const bool raster = vraag->raster || !vraag->rooster.nummer;
    const std::unique_ptr<TextMeasure> meter = raster ? raster_meter() : letter_meter(aantal, woorden);
    if (!meter) {
        std::cerr << "Deze tavelo-dump meet geen lettertypen; geef --maat raster op.\n";
        return wrong_use;
    }
    const std::unique_ptr<ExcelApplication> excel = builtin_excel(locale_named(vraag->land));
    return dump_rooster(vraag->rooster, *meter, *excel, std::cout) ? sluit_uitvoer() : weiger();
}
