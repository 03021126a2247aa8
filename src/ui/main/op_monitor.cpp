#include "ui/main/op_monitor.h"

#include "basis/number.h"
#include "basis/text.h"
#include "excel/codeExcel.h"
#include "schedule/codeCombinaties.h"
#include "schedule/record/kolommen.h"

#include <algorithm>
#include <vector>

namespace tavelo {

namespace {

constexpr double speling = 15; // twips: a pixel of white above or below the letters

double nummer_in_rij(const Grid& grid, int rij) { return leading_number(grid.text(rij, kolom_inr)); }

// A merge writes a record that keeps an older value anew, with its items in another order.
std::string geordend(std::string_view record) {
    std::vector<std::string_view> items = split(record, "\t");
    std::erase(items, std::string_view());
    std::ranges::sort(items);
    std::string tekst;
    for (const std::string_view item : items)
        tekst.append(item).append("\t");
    return tekst;
}

std::string gegevens_van(std::optional<int> rij, int nummer, const Programma& p) {
    std::string tekst;
    // The time of a row moves with every row that is added above it, and is only sometimes shown.
    const int eerste = p.instellingen.shownumber == 1 ? kolom_nrtijd : kolom_inr;
    for (int kolom = eerste; rij && kolom <= kolom_laatste; ++kolom)
        tekst.append(p.grdRooster.text(*rij, kolom)).append("\n");
    if (p.rooster_extensie == "rst") tekst += geordend(p.schedule.deelnemer(nummer));
    return tekst;
}

} // namespace

OpMonitor op_monitor_nu(const Programma& p, const Clock& klok) {
    OpMonitor op;
    op.nummer = p.huidig_nummer;
    op.regel = p.huidige_regel;
    op.naam_in_rij = p.huidig_naam;
    op.naam = p.huidig_naam;
    op.slot = p.lijst.slot;
    op.bestand = p.lijst.bestand;
    op.lezing = p.lijst.lezing;
    if (p.rooster_extensie == "rst" && !p.schedule.deelnemer(op.nummer).empty()) {
        CombinatieRecord record;
        lees_combinatie(record, op.nummer, p.schedule, klok);
        op.naam = record.naam_zonder_ster;
        op.in_bestand = true;
    } else if (p.rooster_extensie == "xls" && op.regel >= 1) {
        op.naam = excel_kolom(p.grdExcel, op.regel - 1, p.instellingen.col_rider_name);
    }
    op.combinatie = op.in_bestand || op.regel >= 1 || !op.naam.empty();
    op.gegevens = gegevens_van(rij_op_monitor(op, p), op.nummer, p);
    return op;
}

std::optional<int> rij_op_monitor(const OpMonitor& op, const Programma& p) {
    const Grid& grid = p.grdRooster;
    if (!op.combinatie || op.bestand != p.lijst.bestand) return std::nullopt;
    const auto is_deze = [&](int rij) {
        if (nummer_in_rij(grid, rij) != op.nummer) return false;
        return op.nummer != 0 || grid.text(rij, kolom_naam) == op.naam_in_rij;
    };
    if (op.regel >= 1 && op.regel < grid.rows() && is_deze(op.regel)) return op.regel;
    for (int rij = grid.rows() - 1; rij >= 1; --rij)
        if (is_deze(rij)) return rij;
    return std::nullopt;
}

Verouderd verouderd(const OpMonitor& op, const Programma& p) {
    if (!op.combinatie) return Verouderd::nee;
    if (op.slot != p.lijst.slot || op.bestand != p.lijst.bestand) return Verouderd::andere_lijst;
    if (op.lezing != p.lijst.lezing) return Verouderd::heropend;
    const std::optional<int> rij = rij_op_monitor(op, p);
    // A row may outlive its combination: rows are removed from the end of the list.
    const bool record_weg = op.in_bestand && p.schedule.deelnemer(op.nummer).empty();
    if (record_weg || (op.regel >= 1 && !rij)) return Verouderd::verdwenen;
    return gegevens_van(rij, op.nummer, p) != op.gegevens ? Verouderd::gewijzigd : Verouderd::nee;
}

int regels_buiten_beeld(const Vertoning& vertoning, const TextMeasure& meter) {
    const auto buiten = [&](const Tekenvlak& vlak) {
        return std::ranges::count_if(vlak.regels(), [&](const GeplaatsteTekst& regel) {
            if (regel.tekst.empty()) return false;
            const double onder = regel.y + meter.height(vlak.lettertype, regel.punten);
            const double rechts = regel.x + meter.width(vlak.lettertype, regel.punten, regel.tekst);
            return regel.y < -speling || regel.x < -speling || onder > vlak.hoogte + speling ||
                   rechts > vlak.breedte + speling;
        });
    };
    auto aantal = buiten(vertoning.picDeelnemer);
    if (vertoning.picRubriek.zichtbaar) aantal += buiten(vertoning.picRubriek);
    return static_cast<int>(aantal);
}

} // namespace tavelo
