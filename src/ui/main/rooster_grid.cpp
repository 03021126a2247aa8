#include "ui/main/rooster_grid.h"

#include "schedule/record/kolommen.h"
#include "vocabulary/codeTaal.h"
#include "vocabulary/rubriek_woorden.h"

#include <array>

namespace tavelo {

namespace {

struct KolomOntwerp {
    std::string_view titel;
    bool vertaald; // through the words of the header language
    CellAlignment uitlijning;
    int breedte; // twips
};

constexpr auto links = CellAlignment::left_centre;
constexpr auto midden = CellAlignment::centre_centre;
constexpr auto rechts = CellAlignment::right_centre;

// The titles before anything was read; a reader writes "Paard" over "Paard/Pony".
constexpr std::array<KolomOntwerp, kolom_laatste + 1> ontwerp = {{
    {"nr.--tijd", false, rechts, 1020},
    {"Inr", false, rechts, 480},
    {"Hnr", true, rechts, 480},
    {"Cnr", true, links, 0}, // filled, but never visible: it is meant so
    {"Naam", true, links, 2400},
    {"HC", false, midden, 480},
    {"Paard/Pony", true, links, 1680},
    {"Vader", true, links, 1680},
    {"Vereniging", true, links, 1680},
    {"Kl.", true, midden, 660},
    {"Cat.", true, midden, 660},
}};

const KolomOntwerp& ontwerp_van(int kolom) { return ontwerp[static_cast<std::size_t>(kolom)]; }

} // namespace

void richt_grid_in(Grid& grid) {
    grid.set_columns(kolom_laatste + 1);
    grid.set_rows(2);
    grid.set_fixed_rows(1);
    grid.set_rows(1);
    for (int kolom = 0; kolom <= kolom_laatste; ++kolom) {
        const KolomOntwerp& k = ontwerp_van(kolom);
        grid.set_text(0, kolom, k.vertaald ? vertaal(k.titel) : std::string(k.titel));
    }
    for (int kolom = 0; kolom <= kolom_laatste; ++kolom)
        grid.set_column_alignment(kolom, ontwerp_van(kolom).uitlijning);
}

void wis_rooster(Bediening& bediening) {
    Programma& p = bediening.programma;
    p.schedule.wis_tabellen();
    p.schedule.rubriek_record.clear();
    for (int kolom = 0; kolom <= kolom_laatste; ++kolom)
        p.grdRooster.set_column_width(kolom, ontwerp_van(kolom).breedte);
    rubriek_leeg(p.grdRooster, p.schedule, p.labels);
    p.schedule.rubriek_nummer = 1;
}

} // namespace tavelo
