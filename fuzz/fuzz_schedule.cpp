// Reads the bytes as the lines of a schedule and composes the display for its first rows. The first bytes choose the
// area and the settings. Every text must come out placed at finite positions and in a size that a font can have.
#include "eis.h"
#include "fakes/los_rooster.h"
#include "fakes/seams.h"

#include "app/instellingen.h"
#include "basis/number.h"
#include "schedule/record/kolommen.h"
#include "ui/display/codeOpmaak.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace {

using namespace tavelo;

struct Keuze {
    std::uint16_t breedte;
    std::uint16_t hoogte;
    std::uint16_t vlaggen;
    std::uint8_t nummer;
    std::uint8_t uitlijning;
    std::int16_t tekstgrootte;
    std::int16_t kopgrootte;
};

Instellingen instellingen(const Keuze& keuze) {
    Instellingen uitkomst = laad_instellingen(test::FakeSettings{});
    int bit = 0;
    for (std::int16_t Instellingen::*vlag :
         {&Instellingen::showrubric, &Instellingen::showridername, &Instellingen::showhorsename,
          &Instellingen::showhorsesire, &Instellingen::showhorsesiredamr, &Instellingen::showhorsecolor,
          &Instellingen::showhorsegender, &Instellingen::showhorseage, &Instellingen::showhorsebreed,
          &Instellingen::showhorsebreeder, &Instellingen::showunionname})
        uitkomst.*vlag = static_cast<std::int16_t>((keuze.vlaggen >> bit++) & 1);
    uitkomst.shownumber = static_cast<std::int16_t>(keuze.nummer % 4);
    uitkomst.alignment = static_cast<std::int16_t>(keuze.uitlijning % 4);
    uitkomst.rubricalignment = static_cast<std::int16_t>(keuze.uitlijning / 4 % 4);
    uitkomst.textsize = keuze.tekstgrootte;
    uitkomst.rubrictextsize = keuze.kopgrootte;
    return uitkomst;
}

void controleer(const Tekenvlak& vlak) {
    eis(std::isfinite(vlak.breedte) && std::isfinite(vlak.hoogte) && vlak.punten() >= 1);
    for (const GeplaatsteTekst& regel : vlak.regels())
        eis(std::isfinite(regel.x) && std::isfinite(regel.y) && std::isfinite(regel.punten) && regel.punten >= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Keuze keuze{};
    if (size < sizeof keuze) return 0;
    std::memcpy(&keuze, data, sizeof keuze);

    test::LosRooster rooster;
    rooster.lees({reinterpret_cast<const char*>(data) + sizeof keuze, size - sizeof keuze});
    eis(rooster.grid.columns() == kolom_laatste + 1);

    Programma programma;
    programma.instellingen = instellingen(keuze);
    programma.rooster_extensie = "rst";
    programma.txtINR = "1";
    const Grid& grid = rooster.grid;
    programma.schedule = std::move(rooster.schedule);
    constexpr int meeste_rijen = 6;
    for (int rij = 1; rij < std::min(grid.rows(), meeste_rijen); ++rij) {
        programma.huidig_nr_tijd = grid.text(rij, kolom_nrtijd);
        programma.huidig_hnr = grid.text(rij, kolom_hnr);
        Vertoning venster;
        venster.picDeelnemer.breedte = keuze.breedte;
        venster.picDeelnemer.hoogte = keuze.hoogte;
        const auto nummer = int16_of(grid.text(rij, kolom_inr)).value_or(0);
        toon_combinatie(venster, nummer, rij, grid.text(rij, kolom_naam), programma, test::FakeMeasure{},
                        test::FakeClock{});
        controleer(venster.picRubriek);
        controleer(venster.picDeelnemer);
    }
    return 0;
}
