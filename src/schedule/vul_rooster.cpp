#include "schedule/vul_rooster.h"

#include "basis/fouten.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/codeCombinaties.h"
#include "schedule/record/items.h"
#include "schedule/record/kolommen.h"
#include "schedule/record/vlaggen.h"
#include "vocabulary/klassen.h"
#include "vocabulary/rubriek_woorden.h"

#include <array>
#include <optional>

namespace tavelo {

namespace {

using Items = std::optional<std::string_view>;

// Steps through a record and remembers the last thing that went wrong.
class Vuller {
  public:
    explicit Vuller(const RoosterDoel& doel) : doel_(doel), rubriek_(doel.schedule.huidige_rubriek) {}

    void vul(std::string_view record) {
        Items rest = record;
        while (const Items deel = take_part(rest, '\t')) {
            const std::string_view item = trimmed(*deel);
            const std::string sleutel = sleutel_van(item);
            if (sleutel == "dnr")
                voeg_rij_toe(waarde_van(item), rest);
            else if (const auto gezet = zet_rubriek_veld(rubriek_, sleutel, waarde_van(item)); !gezet)
                meld(sleutel, gezet.error());
        }
        doel_.labels.lblRoosterOmschrijving =
            std::string(trimmed(rubriek_.rtype + " " + rubriek_.rring)) + ", " + rubriek_.roms;
    }

    [[nodiscard]] const std::string& fout() const { return fout_; }

  private:
    void meld(std::string_view sleutel, std::string_view fout) {
        fout_ = fout;
        doel_.logboek.skipped(0, sleutel, fout);
    }

    // An entry is its "dnr" item and six more that go by their place; only a pause uses them.
    void voeg_rij_toe(std::string_view inr, Items& rest) {
        std::array<Items, 6> bijbehorend;
        for (Items& item : bijbehorend)
            if (const Items deel = take_part(rest, '\t')) item = trimmed(*deel);

        const std::optional<std::int16_t> nummer = int16_of(inr);
        int n = nummer.value_or(0);
        if (!nummer) meld("dnr", fout_overloop);
        if (nummer ? n > hoogste_deelnemer : leading_number(inr) > 0) {
            n = 0;
            inr = "0";
        }
        const int rij = doel_.grid.append_row();
        doel_.grid.set_text(rij, kolom_inr, inr);
        if (n < 0) meld("dnr", fout_index);
        if (const std::string& deelnemer = doel_.schedule.deelnemer(n); n > 0 && !deelnemer.empty())
            vul_combinatie(rij, n, deelnemer);
        else
            vul_pauze(rij, inr, bijbehorend[0], bijbehorend[1]);
    }

    // Only an upper-case "P" carries a length in minutes and a text.
    void vul_pauze(int rij, std::string_view inr, const Items& lengte, const Items& tekst) {
        std::string_view naam = "pauze";
        std::int32_t minuten = 0;
        if (inr == "P") {
            if (const std::optional<std::int32_t> gelezen = int32_of(lengte.value_or("")))
                minuten = *gelezen;
            else
                meld("dnr", fout_overloop);
            naam = tekst.value_or(naam);
        }
        doel_.grid.set_text(rij, kolom_naam, naam);
        doel_.grid.set_row_value(rij, minuten);
    }

    void vul_combinatie(int rij, int n, std::string_view deelnemer) {
        const RecordItems record(deelnemer);
        const DisciplineSleutels& sleutels = sleutels_van(rubriek_.rcom);
        const auto zet = [&](int kolom, std::string_view tekst) { doel_.grid.set_text(rij, kolom, tekst); };
        const auto met = [](std::string_view begin, auto... vlaggen) {
            std::string tekst(begin);
            (tekst.append(vlaggen), ...);
            return tekst;
        };

        zet(kolom_hnr, hoofdstelnummer(n, record, doel_.schedule.hoofdstelnummerautomatisch));
        zet(kolom_cnr, record.waarde("co"));
        std::string naam = met(record.waarde("na"), handicap_tekst(rubriek_.rid, rubriek_.rcom, record),
                               selectie_tekst(rubriek_.rcom, record), impuls_tekst(rubriek_.rcom, record));
        // The star in front of a name stands for a coupé horse in this discipline and no other.
        if (naam.starts_with('*')) naam.erase(0, 1);
        if (!sleutels.coupe.empty() && record.staat_aan(sleutels.coupe)) naam.insert(0, "*");
        zet(kolom_naam, naam);
        zet(kolom_hc, handicap_kolom(rubriek_.rid, rubriek_.rcom, record));
        zet(kolom_paard, met(record.waarde("pa"), resultaat_tekst(rubriek_.rcom, record)));
        zet(kolom_vader, record.waarde("va"));
        zet(kolom_vereniging, record.waarde("ve"));
        zet(kolom_kl, sleutels.klasse.empty() ? std::string_view() : record.waarde(sleutels.klasse));
        const std::string_view categorie = record.waarde("ca");
        zet(kolom_cat, categorie_namen(categorie, rubriek_.rcom, categorie));
    }

    const RoosterDoel& doel_;
    RubriekRecord& rubriek_;
    std::string fout_;
};

} // namespace

void vul_rooster(const RoosterDoel& doel, std::string_view record) {
    rubriek_leeg(doel.grid, doel.schedule, doel.labels);
    doel.grid.set_columns(kolom_laatste + 1);
    doel.schedule.huidige_rubriek = rubriek_met_standaardwaarden();
    if (record.empty()) return;

    Vuller vuller(doel);
    vuller.vul(record);
    if (!vuller.fout().empty()) doel.berichten.show("Vul rooster error 1: " + vuller.fout());
    for (int kolom = 0; kolom <= kolom_laatste; ++kolom)
        doel.grid.set_text(0, kolom, kolom_titels[static_cast<std::size_t>(kolom)]);
}

} // namespace tavelo
