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
using Cellen = std::array<std::string_view, kolom_laatste + 1>; // of one row, by column

// The texts one behind the other: in `ruimte`, or where it stands when only one of them says something.
std::string_view samen(std::initializer_list<std::string_view> delen, std::string& ruimte) {
    std::string_view enige;
    std::size_t gevuld = 0;
    for (const std::string_view deel : delen) {
        if (deel.empty()) continue;
        enige = deel;
        ++gevuld;
    }
    if (gevuld <= 1) return enige;
    ruimte.clear();
    for (const std::string_view deel : delen)
        ruimte.append(deel);
    return ruimte;
}

// Steps through a record and remembers the last thing that went wrong.
class Vuller {
  public:
    explicit Vuller(const RoosterDoel& doel) : doel_(doel), rubriek_(doel.schedule.huidige_rubriek) {}

    void vul(std::string_view record) {
        Parts items(record, '\t');
        for (Item deel = volgend_item(items); deel;) {
            const std::string_view item = *deel;
            if (is_item_van(item, "dnr")) { // nearly all of them
                deel = voeg_rij_toe(trimmed(item.substr(4)), items);
                continue;
            }
            const std::string sleutel = sleutel_van(item);
            if (sleutel == "dnr") {
                deel = voeg_rij_toe(waarde_van(item), items);
                continue;
            }
            if (const auto gezet = zet_rubriek_veld(rubriek_, sleutel, waarde_van(item)); !gezet)
                meld(sleutel, gezet.error());
            deel = volgend_item(items);
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

    // The record of an entry that comes next is on its way while the row before it is made.
    Item volgend_item(Parts& items) const {
        const Item item = items.next();
        if (item && is_item_van(*item, "dnr"))
            if (const std::optional<std::int16_t> nummer = int16_of(item->substr(4)))
                doel_.schedule.kondig_deelnemer_aan(*nummer);
        return item;
    }

    // An entry is its "dnr" item and six more that go by their place; only a pause uses them. Gives the item behind it.
    Item voeg_rij_toe(std::string_view inr, Parts& items) {
        const Item lengte = items.next();
        const Item tekst = items.next();
        for (int i = 2; i < 6; ++i)
            items.next();
        const Item volgend = volgend_item(items);

        int n = 0;
        bool bestaat_niet = false;
        if (const std::optional<std::int16_t> nummer = int16_of(inr)) {
            n = *nummer;
            bestaat_niet = n > hoogste_deelnemer;
        } else {
            meld("dnr", fout_overloop);
            bestaat_niet = leading_number(inr) > 0;
        }
        if (bestaat_niet) {
            n = 0;
            inr = "0";
        }
        if (n < 0) meld("dnr", fout_index);
        const std::string& deelnemer = doel_.schedule.deelnemer(n);
        if (n > 0 && !deelnemer.empty())
            voeg_combinatie_toe(inr, n, deelnemer);
        else
            voeg_pauze_toe(inr, lengte, tekst);
        return volgend;
    }

    // Only an upper-case "P" carries a length, which is the result, and a text.
    void voeg_pauze_toe(std::string_view inr, const Item& lengte, const Item& tekst) {
        Cellen cellen;
        cellen[kolom_inr] = inr;
        cellen[kolom_naam] = "pauze";
        std::int32_t lengte_in_minuten = 0;
        if (inr == "P") {
            if (tekst) cellen[kolom_naam] = trimmed(*tekst);
            const std::optional<std::int32_t> minuten = int32_of(lengte.value_or(""));
            if (!minuten) meld("dnr", fout_overloop);
            lengte_in_minuten = minuten.value_or(0);
        }
        doel_.grid.set_row_value(doel_.grid.append_row(cellen), lengte_in_minuten);
    }

    // A combination may stand in a start list any number of times; its record, of any size, is taken apart once.
    void voeg_combinatie_toe(std::string_view inr, int n, std::string_view deelnemer) {
        if (!lezer_ || rubriek_.rid != rid_ || rubriek_.rcom != rcom_) {
            rid_ = rubriek_.rid;
            rcom_ = rubriek_.rcom;
            lezer_.emplace(rcom_);
            eerste_rijen_.assign(eerste_rijen_.size(), 0);
        }
        int& eerste_rij = eerste_rijen_[static_cast<std::size_t>(n)];
        if (eerste_rij == 0) {
            lezer_->lees(deelnemer, deelname_);
            eerste_rij = voeg_deelname_toe(inr, n, deelname_);
            return;
        }
        Cellen cellen;
        for (int kolom = kolom_inr; kolom <= kolom_laatste; ++kolom)
            cellen[static_cast<std::size_t>(kolom)] = doel_.grid.text(eerste_rij, kolom);
        cellen[kolom_inr] = inr;
        doel_.grid.append_row(cellen);
    }

    // Gives the place of its row.
    int voeg_deelname_toe(std::string_view inr, int n, const Deelname& deelname) {
        const std::string hnr = hoofdstelnummer(n, deelname[Gegeven::hnr], deelname[Gegeven::co],
                                                doel_.schedule.hoofdstelnummerautomatisch);
        // The star in front of a name stands for a coupé horse in this discipline and no other.
        const std::string_view ster = deelname.staat_aan(Gegeven::coupe) ? "*" : "";
        std::string_view naam = samen(
            {deelname[Gegeven::na], handicap_tekst(rid_, deelname), selectie_tekst(deelname), impuls_tekst(deelname)},
            naam_);
        if (naam.starts_with('*')) naam.remove_prefix(1);
        naam = samen({ster, naam}, naam_met_ster_);
        const std::string categorie = categorie_namen(deelname[Gegeven::ca], rcom_, deelname[Gegeven::ca]);

        cellen_[kolom_inr] = inr;
        cellen_[kolom_hnr] = hnr;
        cellen_[kolom_cnr] = deelname[Gegeven::co];
        cellen_[kolom_naam] = naam;
        cellen_[kolom_hc] = handicap_kolom(rid_, deelname);
        cellen_[kolom_paard] = samen({deelname[Gegeven::pa], resultaat_tekst(deelname)}, paard_);
        cellen_[kolom_vader] = deelname[Gegeven::va];
        cellen_[kolom_vereniging] = deelname[Gegeven::ve];
        cellen_[kolom_kl] = deelname[Gegeven::klasse];
        cellen_[kolom_cat] = categorie;
        return doel_.grid.append_row(cellen_);
    }

    const RoosterDoel& doel_;
    RubriekRecord& rubriek_;
    std::string fout_;

    // Row in which each number stood first, 0 for none, as long as these two of the class stay the same.
    std::vector<int> eerste_rijen_ = std::vector<int>(hoogste_deelnemer + 1);
    std::string rid_;
    std::int16_t rcom_ = 0;
    std::optional<DeelnameLezer> lezer_;

    // Of the combination at hand; kept because four thousand follow each other.
    Deelname deelname_;
    Cellen cellen_; // the first one, of the number and time, stays empty
    std::string naam_;
    std::string naam_met_ster_;
    std::string paard_;
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
