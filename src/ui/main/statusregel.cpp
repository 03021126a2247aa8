#include "ui/main/statusregel.h"

#include "basis/codeBestand.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/kolommen.h"
#include "ui/main/leesfout.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

namespace {

std::string_view bezwaar(Verouderd verouderd) {
    switch (verouderd) {
    case Verouderd::andere_lijst:
        return " (er is nu een andere lijst open)";
    case Verouderd::heropend:
        return " (de lijst is sindsdien heropend)";
    case Verouderd::gewijzigd:
        return " (sindsdien gewijzigd in het bestand)";
    case Verouderd::verdwenen:
        return " (staat niet meer in het bestand)";
    case Verouderd::nee:
        break;
    }
    return "";
}

StatusDeel over_monitor(const Bediening& b) {
    const OpMonitor& op = b.op_monitor;
    std::string tekst = b.programma.deelnemer_open ? "Op de monitor: " : "Op het voorbeeld: ";
    if (!op.combinatie) return {tekst + "geen combinatie"};
    if (op.nummer != 0) tekst.append(std::to_string(op.nummer)).append(op.naam.empty() ? "" : " ");
    const Verouderd hoe = verouderd(op, b.programma);
    tekst.append(op.naam).append(", rooster ").append(std::to_string(op.slot + 1)).append(bezwaar(hoe));
    return {tekst, hoe != Verouderd::nee};
}

StatusDeel over_venster(const Bediening& b) {
    if (!b.programma.deelnemer_open) return {"monitorvenster gesloten"};
    switch (b.monitorvenster) {
    case Monitorvenster::monitor_weg:
        return {"de monitor is weg", true};
    case Monitorvenster::beeldvullend:
        return {"beeldvullend"};
    case Monitorvenster::gewoon:
        break;
    }
    return {"gewoon venster"};
}

StatusDeel over_regels(const Bediening& b) {
    const int aantal = b.programma.deelnemer_open ? regels_buiten_beeld(b.deelnemer_venster, b.omgeving.meter) : 0;
    if (aantal == 0) return {};
    return {aantal == 1 ? "1 regel valt buiten beeld" : std::to_string(aantal) + " regels vallen buiten beeld", true};
}

// Why the current file was not read, with its name.
std::optional<std::string> niet_gelezen(const Programma& p) {
    const bool onbekende_soort = !p.lijst.bestand.empty() && p.rooster_extensie.empty();
    if (!p.leesfout && !onbekende_soort) return std::nullopt;
    const std::string_view pad = trimmed(p.rooster_bestand);
    const std::string_view reden = leesfout_tekst(p.leesfout.value_or(GeenRooster::andere_eerste_regel));
    return std::string(pad.substr(bestand_map(pad).size())).append(": ").append(reden);
}

StatusDeel over_lijst(const Programma& p) {
    if (const std::optional<std::string> reden = niet_gelezen(p)) return {*reden, true};
    if (p.lijst.wijkt_af) return {"de lijst verschilt van het bestand", true};
    if (!p.lijst.bestand.empty() && p.grdRooster.rows() <= 1) return {"de lijst is leeg", true};
    return {};
}

StatusDeel over_handleiding(Handleiding handleiding) {
    switch (handleiding) {
    case Handleiding::gaat_open:
        return {"de handleiding opent in de browser"};
    case Handleiding::ontbreekt:
        return {"de handleiding staat niet op deze computer", true};
    case Handleiding::geen_browser:
        return {"geen browser gevonden om de handleiding te tonen", true};
    case Handleiding::niet_gevraagd:
        break;
    }
    return {};
}

} // namespace

Statusregel statusregel(const Bediening& b) {
    return {over_monitor(b),
            over_venster(b),
            over_handleiding(b.handleiding),
            over_regels(b),
            over_lijst(b.programma),
            {b.dagverslag.samenvatting()},
            b.programma.lijst.wijkt_af};
}

std::string tekst_in_leeg_rooster(const Programma& p) {
    return p.grdRooster.rows() <= 1 ? "Open een rooster: Ctrl+O\nHandleiding: F1" : "";
}

bool nummer_onbekend(const Programma& p) {
    if (trimmed(p.txtINR).empty()) return false;
    const Grid& grid = p.grdRooster;
    if (p.huidige_regel >= 1 && grid.text(p.huidige_regel, kolom_inr) == p.txtINR) return false;
    const auto nummer = int16_of(p.txtINR).value_or(0);
    if (nummer == 0) return true;
    for (int rij = 1; rij < grid.rows(); ++rij)
        if (leading_number(grid.text(rij, kolom_inr)) == nummer) return false;
    return true;
}

int begin_van_pijltjes(const Bediening& b) {
    const Grid& grid = b.programma.grdRooster;
    const bool gekozen = grid.column() == grid.columns() - 1 && grid.selection_column() == 1;
    return gekozen ? grid.row() : rij_op_monitor(b.op_monitor, b.programma).value_or(grid.row());
}

} // namespace tavelo
