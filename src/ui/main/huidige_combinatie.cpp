#include "ui/main/huidige_combinatie.h"

#include "basis/number.h"
#include "basis/scoped.h"
#include "schedule/record/kolommen.h"
#include "ui/display/codeOpmaak.h"

#include <optional>

namespace tavelo {

namespace {

double nummer_in_rij(const Grid& grid, int rij) { return leading_number(grid.text(rij, kolom_inr)); }

// All rows are compared: of several with the same number the last one counts. It is meant so.
std::optional<int> zoek_rij(const Grid& grid, double nummer) {
    std::optional<int> gevonden;
    for (int rij = 1; rij < grid.rows(); ++rij)
        if (nummer_in_rij(grid, rij) == nummer) gevonden = rij;
    return gevonden;
}

// The number in the box, for whoever asks; one that does not fit 16 bits selects nothing.
std::int16_t nummer_in_vak(const Programma& p) { return int16_of(p.txtINR).value_or(0); }

void neem_rij_over(Programma& p, int rij) {
    p.huidige_regel = rij;
    p.huidig_nr_tijd = p.grdRooster.text(rij, kolom_nrtijd);
    p.huidig_hnr = p.grdRooster.text(rij, kolom_hnr);
}

void txtINR_gewijzigd(Bediening& bediening) {
    Programma& p = bediening.programma;
    p.huidige_regel = 0;
    p.huidig_nummer = nummer_in_vak(p);
    p.huidig_nr_tijd.clear();
    p.huidig_hnr.clear();
    p.huidig_naam.clear();

    Grid& grid = p.grdRooster;
    if (!p.zoek_op_nummer) {
        neem_rij_over(p, grid.row());
    } else if (const auto rij = p.huidig_nummer != 0 ? zoek_rij(grid, p.huidig_nummer) : std::nullopt) {
        grid.highlight_row(*rij);
        neem_rij_over(p, *rij);
    } else {
        grid.set_row(1);
        grid.set_column(1);
    }
    if (p.huidige_regel >= 1) p.huidig_naam = grid.text(p.huidige_regel, kolom_naam);
    toon_overal(bediening);
}

// Through a blank, so that the change is seen also when the box held that text already.
void schrijf_txtINR(Bediening& bediening, const std::string& tekst) {
    zet_txtINR(bediening, " ");
    zet_txtINR(bediening, tekst);
}

// The nearest row above or below `rij` that carries a number; pauses are passed over.
std::optional<int> volgende_met_nummer(const Grid& grid, int rij, int stap) {
    for (int r = rij + stap; r >= 1 && r < grid.rows(); r += stap)
        if (nummer_in_rij(grid, r) != 0) return r;
    return std::nullopt;
}

} // namespace

void zet_txtINR(Bediening& bediening, std::string_view tekst) {
    if (bediening.programma.txtINR == tekst) return;
    typ_txtINR(bediening, tekst);
}

void typ_txtINR(Bediening& bediening, std::string_view tekst) {
    bediening.programma.txtINR = tekst;
    txtINR_gewijzigd(bediening);
}

void kies_rij(Bediening& bediening) {
    Programma& p = bediening.programma;
    const int rij = p.grdRooster.row();
    if (rij < 1) return;
    const ScopedFlag deze_rij(p.zoek_op_nummer, false);
    p.grdRooster.highlight_row(rij);
    const std::string nummer(p.grdRooster.text(rij, kolom_inr)); // the grid may change meanwhile
    schrijf_txtINR(bediening, nummer);
}

void blader(Bediening& bediening, Blader richting) {
    Programma& p = bediening.programma;
    if (richting == Blader::wis) {
        schrijf_txtINR(bediening, "");
        bediening.voorbeeld.picRubriek.wis();
        return;
    }
    const std::int16_t nummer = nummer_in_vak(p);
    if (nummer == 0) return;
    Grid& grid = p.grdRooster;
    const int begin = zoek_rij(grid, nummer).value_or(grid.row());
    const std::optional<int> rij = volgende_met_nummer(grid, begin, richting == Blader::vorige ? -1 : 1);
    if (!rij) return;
    grid.highlight_row(*rij);
    // Searched again by its number, so of duplicates the last one is shown: it is meant so.
    const std::string gevonden(grid.text(*rij, kolom_inr));
    schrijf_txtINR(bediening, gevonden);
}

void toon_voorbeeld(Bediening& bediening) {
    const Programma& p = bediening.programma;
    toon_combinatie(bediening.voorbeeld, p.huidig_nummer, p.huidige_regel, p.huidig_naam, p, bediening.omgeving.meter,
                    bediening.omgeving.klok);
    if (!p.deelnemer_open) bediening.op_monitor = op_monitor_nu(p, bediening.omgeving.klok);
}

void toon_deelnemer_venster(Bediening& bediening) {
    const Programma& p = bediening.programma;
    if (!p.deelnemer_open) return;
    toon_combinatie(bediening.deelnemer_venster, p.huidig_nummer, p.huidige_regel, p.huidig_naam, p,
                    bediening.omgeving.meter, bediening.omgeving.klok);
    bediening.op_monitor = op_monitor_nu(p, bediening.omgeving.klok);
}

void toon_overal(Bediening& bediening) {
    toon_voorbeeld(bediening);
    toon_deelnemer_venster(bediening);
}

} // namespace tavelo
