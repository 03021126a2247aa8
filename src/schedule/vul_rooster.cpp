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
#include <vector>

namespace tavelo {

namespace {

using Item = std::optional<std::string_view>;
using Cellen = std::vector<std::string>; // of one row, by column

// Steps through a record and remembers the last thing that went wrong.
class Vuller {
  public:
    explicit Vuller(const RoosterDoel& doel) : doel_(doel), rubriek_(doel.schedule.huidige_rubriek) {}

    void vul(std::string_view record) {
        Parts items(record, '\t');
        while (const Item deel = items.next()) {
            const std::string_view item = trimmed(*deel);
            const std::string sleutel = sleutel_van(item);
            if (sleutel == "dnr")
                voeg_rij_toe(waarde_van(item), items);
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
    void voeg_rij_toe(std::string_view inr, Parts& items) {
        std::array<Item, 6> bijbehorend;
        for (Item& item : bijbehorend)
            item = items.next();

        const std::optional<std::int16_t> nummer = int16_of(inr);
        int n = nummer.value_or(0);
        if (!nummer) meld("dnr", fout_overloop);
        if (nummer ? n > hoogste_deelnemer : leading_number(inr) > 0) {
            n = 0;
            inr = "0";
        }
        if (n < 0) meld("dnr", fout_index);
        Cellen cellen(kolom_laatste + 1);
        cellen[kolom_inr] = inr;
        std::int32_t minuten = 0;
        if (const std::string& deelnemer = doel_.schedule.deelnemer(n); n > 0 && !deelnemer.empty())
            vul_combinatie(cellen, n, deelnemer, doel_.grid.rows());
        else
            minuten = vul_pauze(cellen, inr, bijbehorend[0], bijbehorend[1]);
        const int rij = doel_.grid.append_row(std::vector<std::string_view>(cellen.begin(), cellen.end()));
        doel_.grid.set_row_value(rij, minuten);
    }

    // Only an upper-case "P" carries a length, which is the result, and a text.
    std::int32_t vul_pauze(Cellen& cellen, std::string_view inr, const Item& lengte, const Item& tekst) {
        cellen[kolom_naam] = "pauze";
        if (inr != "P") return 0;
        if (tekst) cellen[kolom_naam] = trimmed(*tekst);
        const std::optional<std::int32_t> minuten = int32_of(lengte.value_or(""));
        if (!minuten) meld("dnr", fout_overloop);
        return minuten.value_or(0);
    }

    // A combination may stand in a start list any number of times; its record, of any size, is taken apart once.
    void vul_combinatie(Cellen& cellen, int n, std::string_view deelnemer, int rij) {
        if (rubriek_.rid != rid_ || rubriek_.rcom != rcom_) {
            rid_ = rubriek_.rid;
            rcom_ = rubriek_.rcom;
            eerste_rijen_.assign(eerste_rijen_.size(), 0);
        }
        int& eerste_rij = eerste_rijen_[static_cast<std::size_t>(n)];
        if (eerste_rij == 0) {
            eerste_rij = rij;
            vul_combinatie(cellen, n, deelnemer);
            return;
        }
        for (int kolom = kolom_hnr; kolom <= kolom_laatste; ++kolom)
            cellen[static_cast<std::size_t>(kolom)] = doel_.grid.text(eerste_rij, kolom);
    }

    void vul_combinatie(Cellen& cellen, int n, std::string_view deelnemer) const {
        const RecordItems record(deelnemer);
        const std::int16_t ringtype = rubriek_.rcom;
        const DisciplineSleutels& sleutels = sleutels_van(ringtype);

        cellen[kolom_hnr] = hoofdstelnummer(n, record, doel_.schedule.hoofdstelnummerautomatisch);
        cellen[kolom_cnr] = record.waarde("co");
        std::string& naam = cellen[kolom_naam];
        naam = record.waarde("na");
        naam.append(handicap_tekst(rubriek_.rid, ringtype, record))
            .append(selectie_tekst(ringtype, record))
            .append(impuls_tekst(ringtype, record));
        // The star in front of a name stands for a coupé horse in this discipline and no other.
        if (naam.starts_with('*')) naam.erase(0, 1);
        if (!sleutels.coupe.empty() && record.staat_aan(sleutels.coupe)) naam.insert(0, "*");
        cellen[kolom_hc] = handicap_kolom(rubriek_.rid, ringtype, record);
        cellen[kolom_paard] = record.waarde("pa");
        cellen[kolom_paard].append(resultaat_tekst(ringtype, record));
        cellen[kolom_vader] = record.waarde("va");
        cellen[kolom_vereniging] = record.waarde("ve");
        if (!sleutels.klasse.empty()) cellen[kolom_kl] = record.waarde(sleutels.klasse);
        const std::string_view categorie = record.waarde("ca");
        cellen[kolom_cat] = categorie_namen(categorie, ringtype, categorie);
    }

    const RoosterDoel& doel_;
    RubriekRecord& rubriek_;
    std::string fout_;

    // Row in which each number stood first, 0 for none, as long as these two of the class stay the same.
    std::vector<int> eerste_rijen_ = std::vector<int>(hoogste_deelnemer + 1);
    std::string rid_;
    std::int16_t rcom_ = 0;
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
