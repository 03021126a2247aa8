#include "ui/main/open_rooster.h"

#include "basis/codeBestand.h"
#include "basis/codeDatumTijd.h"
#include "basis/native_path.h"
#include "basis/scoped.h"
#include "basis/text.h"
#include "excel/codeExcel.h"
#include "ui/main/leesfout.h"
#include "ui/main/rooster_grid.h"
#include "vocabulary/rubriek_woorden.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace tavelo {

namespace {

// The second closing parenthesis behind the workbooks is part of the text.
constexpr std::string_view dialoog_filter =
    "Roosterbestanden (*.rst)|*.rst|Excel bestanden (*.xls;*.xlsx))|*.xls;*.xlsx";

// Whether a file can be made in the folder (which ends in a separator): a probe is made and deleted at once.
bool is_beschrijfbaar(std::string_view map) {
    const std::string proef = std::string(map) + "~tmp.tmp";
    const std::filesystem::path pad = native_path(proef);
    {
        std::ofstream bestand(pad, std::ios::binary);
        if (!bestand) return false;
    }
    std::error_code genegeerd; // made a moment ago, so it can be deleted
    std::filesystem::remove(pad, genegeerd);
    return true;
}

std::string startmap(const Programma& p) {
    const std::string map = p.instellingen.lastfolder.empty() ? p.paden.mijn_bestanden : p.instellingen.lastfolder;
    return is_beschrijfbaar(map) ? map : p.paden.mijn_bestanden;
}

std::string soort_bestand(std::string_view pad) {
    const std::string extensie = lower_case(bestand_extensie(pad));
    if (extensie == "rst") return "rst";
    if (extensie == "xls" || extensie == "xlsx") return "xls";
    return "";
}

RoosterSlot& slot_van(Programma& p, int slot) { return p.slots[slot == 1 ? 1 : 0]; }

void vul_slot(Programma& p, int slot) {
    slot_van(p, slot) = {p.rooster_bestand, p.rooster_tijdstempel, p.rooster_extensie};
}

void vraag_bestand(Bediening& bediening, int slot) {
    Programma& p = bediening.programma;
    OpenRequest vraag{startmap(p), std::string(dialoog_filter), slot_van(p, slot).extensie == "xls" ? 2 : 1};
    if (const std::optional<std::string> pad = bediening.omgeving.open_dialoog.ask(vraag))
        kies_bestand(bediening, *pad, slot);
    else
        vul_slot(p, slot); // after a cancel the slot gets the current file, even that of the other slot: it is meant so
}

// Of what was read before.
void vergeet_lezing(Programma& p) {
    p.rooster_kenmerk.reset();
    p.leesfout.reset();
}

std::expected<Roosterbestand, GeenRooster> gelezen_bestand(Programma& p) {
    // What was not read has the kenmerk of no file, so that the poll reads it as soon as that can be done.
    p.rooster_kenmerk = Bestandskenmerk{};
    if (!bestandbestaat(p.rooster_bestand)) return std::unexpected(GeenRooster::niet_te_openen);
    auto gelezen = lees_bestand_met_begin(p.rooster_bestand, eerste_regel_rooster, grootste_rooster);
    if (gelezen) p.rooster_kenmerk = gelezen->kenmerk;
    return als_roosterbestand(std::move(gelezen));
}

bool is_geen_rooster(GeenRooster fout) {
    return fout == GeenRooster::andere_eerste_regel || fout == GeenRooster::te_groot;
}

void lees_roosterbestand(Bediening& bediening, int slot) {
    Programma& p = bediening.programma;
    const Omgeving& omgeving = bediening.omgeving;
    const std::expected<Roosterbestand, GeenRooster> bestand = gelezen_bestand(p);
    if (!bestand) {
        noteer_lezing(bediening, bestand.error());
        // A file that cannot be read keeps its slot and the caption: on a share it may come back.
        if (is_geen_rooster(bestand.error())) {
            slot_van(p, slot) = {};
            p.bijschrift = bijschrift_naamloos;
        }
        return;
    }
    p.bijschrift = lees_rooster(*bestand, p.rooster_bestand,
                                {p.grdRooster, p.schedule, p.labels, omgeving.berichten, omgeving.logboek});
    vul_rubriek_labels(p.schedule, p.labels);
}

void laad_roosterbestand(Bediening& bediening, int slot) {
    const BusyPointer bezig(bediening.omgeving.muisaanwijzer);
    lees_roosterbestand(bediening, slot);
    // Also when nothing was read: the title over the times is no longer that of the last file.
    Programma& p = bediening.programma;
    vul_nr_tijd(p.grdRooster, p.schedule.huidige_rubriek, bediening.omgeving.berichten);
}

// A workbook has no ring, and its own title goes with it: it is meant so. An empty class shows nothing else.
void wis_labels(RubriekLabels& labels) {
    labels.lblRoosterOmschrijving.clear();
    labels.lblRingNaam.clear();
}

} // namespace

void open_rooster(Bediening& bediening, std::string_view bestand, int slot) {
    if (bestand.empty()) vraag_bestand(bediening, slot);
    laad_rooster(bediening, slot);
}

void kies_bestand(Bediening& bediening, std::string_view pad, int slot) {
    Programma& p = bediening.programma;
    p.rooster_bestand = pad;
    p.rooster_tijdstempel = bestand_tijdstempel(bediening.omgeving.tijdstempels, pad, tijdstempel_vorm);
    p.instellingen.lastfolder = bestand_map(pad);
    p.rooster_extensie = soort_bestand(pad);
    vul_slot(p, slot);
}

void laad_rooster(Bediening& bediening, int slot) {
    Programma& p = bediening.programma;
    const Omgeving& omgeving = bediening.omgeving;
    wis_rooster(bediening);
    vergeet_lezing(p);
    p.lijst = {slot, p.rooster_bestand, p.lijst.lezing + 1, false};
    const WithoutRedraw ongezien(p.grdRooster);
    const std::string soort = slot_van(p, slot).extensie;
    if (soort == "rst") laad_roosterbestand(bediening, slot);
    if (soort == "xls") { // shows the hourglass itself, and puts it away before it speaks
        open_excel_rooster(p.rooster_bestand, slot, p, omgeving.excel, omgeving.berichten, omgeving.muisaanwijzer);
        wis_labels(p.labels);
    }
}

void klik_slot(Bediening& bediening, int slot, Muisknop knop) {
    Programma& p = bediening.programma;
    const RoosterSlot gekozen = slot_van(p, slot);
    p.rooster_slot = slot == 1 ? 1 : 0;
    p.rooster_bestand = gekozen.bestand;
    p.rooster_tijdstempel = gekozen.tijdstempel;
    p.rooster_extensie = gekozen.extensie;
    vergeet_lezing(p);

    const int bovenste_rij = p.grdRooster.top_row();
    const int rij = p.grdRooster.row();
    if (knop == Muisknop::links) open_rooster(bediening, p.rooster_bestand, slot);
    if (knop == Muisknop::rechts) open_rooster(bediening, "", slot);
    p.grdRooster.set_top_row(bovenste_rij);
    p.grdRooster.highlight_row(rij);
}

} // namespace tavelo
