#include "schedule/herlees_rooster.h"

#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/items.h"
#include "schedule/record/kolommen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tavelo {

namespace {

constexpr std::array vergeleken_kolommen = {kolom_cnr,   kolom_naam,       kolom_hc, kolom_paard,
                                            kolom_vader, kolom_vereniging, kolom_kl, kolom_cat};

double nummer_van(const Grid& grid, int rij) { return leading_number(grid.text(rij, kolom_inr)); }

// A change of letter case, of "(HC)" or of the number of blanks between words in a name is no change.
std::string naam_voor_vergelijking(std::string_view naam) {
    std::string zonder = removed(naam, "(HC)");
    const auto weer_een_spatie = [](char links, char rechts) { return links == ' ' && rechts == ' '; };
    zonder.erase(std::ranges::unique(zonder, weer_een_spatie).begin(), zonder.end());
    return lower_case(trimmed(zonder));
}

bool is_anders(int kolom, std::string_view oud, std::string_view nieuw) {
    if (oud == nieuw) return false;
    switch (kolom) {
    case kolom_cnr:
        return !nieuw.empty();
    case kolom_naam:
        return naam_voor_vergelijking(oud) != naam_voor_vergelijking(nieuw);
    default:
        return lower_case(oud) != lower_case(nieuw);
    }
}

// A row for every number. Nearly all are numbers of combinations.
class RijPerNummer {
  public:
    // Nothing for a number without a row.
    [[nodiscard]] std::optional<int> zoek(double nummer) const {
        if (is_combinatie(nummer)) {
            const int rij = combinaties_[static_cast<std::size_t>(nummer)];
            return rij != 0 ? std::optional(rij) : std::nullopt;
        }
        const auto gevonden = overige_.find(nummer);
        return gevonden != overige_.end() ? std::optional(gevonden->second) : std::nullopt;
    }
    // The first row of a number counts; `rij` is not the title row.
    void voeg_toe(double nummer, int rij) {
        if (!is_combinatie(nummer))
            overige_.try_emplace(nummer, rij);
        else if (int& plaats = combinaties_[static_cast<std::size_t>(nummer)]; plaats == 0)
            plaats = rij;
    }

  private:
    [[nodiscard]] static bool is_combinatie(double nummer) {
        return nummer >= 0 && nummer <= hoogste_deelnemer && nummer == std::floor(nummer);
    }

    std::vector<int> combinaties_ = std::vector<int>(hoogste_deelnemer + 1); // 0 is none
    std::unordered_map<double, int> overige_;
};

// Finds rows by number, in constant time, while rows are inserted. Where a number stands more than once the first row
// counts. Rows are inserted from the top down: what stands above the last one, inserted or older, never moves again,
// and the older rows below it have moved down by all rows inserted so far.
class RijenIndex {
  public:
    explicit RijenIndex(const Grid& grid) {
        for (int rij = 1; rij < grid.rows(); ++rij)
            if (const double nummer = nummer_van(grid, rij); nummer > 0) oude_rijen_.voeg_toe(nummer, rij);
    }

    [[nodiscard]] std::optional<int> zoek(double nummer) const {
        if (const std::optional<int> nieuw = nieuwe_rijen_.zoek(nummer)) return nieuw;
        const std::optional<int> oud = oude_rijen_.zoek(nummer);
        if (!oud) return std::nullopt;
        return *oud < eerste_verschuivende() ? vaste_rijen_[static_cast<std::size_t>(*oud)] : *oud + ingevoegd_;
    }

    // `rij` is beyond every row inserted before.
    void ingevoegd(double nummer, int rij) {
        while (eerste_verschuivende() + ingevoegd_ < rij)
            vaste_rijen_.push_back(eerste_verschuivende() + ingevoegd_);
        ++ingevoegd_;
        nieuwe_rijen_.voeg_toe(nummer, rij);
    }

  private:
    // Of the older rows, as they stood before the merge.
    [[nodiscard]] int eerste_verschuivende() const { return static_cast<int>(vaste_rijen_.size()); }

    RijPerNummer oude_rijen_; // where they stood before the merge
    RijPerNummer nieuwe_rijen_;
    std::vector<int> vaste_rijen_; // where the older rows above the last inserted one stand now
    int ingevoegd_ = 0;
};

// Assembles the lines of the report; without a listener there is nothing to assemble.
class Verslag {
  public:
    explicit Verslag(WijzigingenLijst* lijst) : lijst_(lijst) {}

    void begin_rij() {
        if (!lijst_) return;
        van_ = "gewijzigd\tvan";
        naar_ = "\tnaar";
    }
    void kolom(std::string_view oud, std::string_view nieuw) {
        if (!lijst_) return;
        van_.append("\t").append(oud);
        naar_.append("\t").append(nieuw);
    }
    void einde_rij() {
        if (!lijst_) return;
        lijst_->regel(van_);
        lijst_->regel(naar_);
    }
    void hele_rij(std::string_view woord, const Grid& grid, int rij) {
        if (!lijst_) return;
        std::string regel(woord);
        regel.append("\t");
        for (int kolom = kolom_naam; kolom <= kolom_cat; ++kolom)
            regel.append("\t").append(grid.text(rij, kolom));
        lijst_->regel(regel);
    }

  private:
    WijzigingenLijst* lijst_;
    std::string van_;
    std::string naar_;
};

class Samenvoeging {
  public:
    Samenvoeging(Grid& doel, const Grid& bron, Schedule& schedule, WijzigingenLijst* wijzigingen)
        : doel_(doel), bron_(bron), schedule_(schedule), verslag_(wijzigingen), index_(doel) {}

    void voer_uit() {
        for (int rij = 1; rij < bron_.rows(); ++rij) {
            const double nummer = nummer_van(bron_, rij);
            if (nummer <= 0) continue; // pauses take no part
            if (const std::optional<int> gevonden = index_.zoek(nummer))
                werk_bij(*gevonden, rij, nummer);
            else
                voeg_in(rij, nummer);
        }
        verwijder_overschot();
    }

  private:
    void werk_bij(int doelrij, int bronrij, double nummer) {
        verslag_.begin_rij();
        for (const int kolom : vergeleken_kolommen) {
            const std::string_view oud = doel_.text(doelrij, kolom);
            const std::string_view nieuw = bron_.text(bronrij, kolom);
            const bool anders = is_anders(kolom, oud, nieuw);
            verslag_.kolom(oud, anders ? nieuw : oud);
            if (anders)
                doel_.set_text(doelrij, kolom, nieuw);
            else if (kolom == kolom_cnr)
                bewaar_cnr(nummer, oud);
        }
        verslag_.einde_rij();
        doel_.set_text(doelrij, kolom_hnr, bron_.text(bronrij, kolom_hnr));
        doel_.set_row_value(doelrij, bronrij);
    }

    // The display shows the same number as the grid.
    void bewaar_cnr(double nummer, std::string_view cnr) {
        const std::optional<std::int32_t> n = to_int32(nummer);
        if (!n || *n > hoogste_deelnemer) return;
        const std::string& record = schedule_.deelnemer(*n);
        if (!heeft_waarde_al("co", record, cnr)) schedule_.zet_deelnemer(*n, zet_waarde("co", record, cnr));
    }

    void voeg_in(int bronrij, double nummer) {
        std::vector<std::string_view> teksten;
        for (int kolom = 0; kolom < bron_.columns(); ++kolom)
            teksten.push_back(bron_.text(bronrij, kolom));
        const int plaats = std::min(bronrij, doel_.rows()); // beyond the end: nothing new is lost
        doel_.insert_row(plaats, teksten);
        index_.ingevoegd(nummer, plaats);
        verslag_.hele_rij("toegevoegd", bron_, bronrij);
    }

    void verwijder_overschot() {
        for (int rij = bron_.rows(); rij < doel_.rows(); ++rij)
            if (nummer_van(doel_, rij) != 0) verslag_.hele_rij("verwijderd", doel_, rij);
        while (doel_.rows() > bron_.rows())
            doel_.remove_row(doel_.rows() - 1);
    }

    Grid& doel_;
    const Grid& bron_;
    Schedule& schedule_;
    Verslag verslag_;
    RijenIndex index_;
};

} // namespace

void voeg_rooster_samen(Grid& doel, const Grid& bron, Schedule& schedule, WijzigingenLijst* wijzigingen) {
    Samenvoeging(doel, bron, schedule, wijzigingen).voer_uit();
}

bool herlees_rooster(std::string_view pad, const RoosterDoel& doel, Grid& grdImport, WijzigingenLijst* wijzigingen) {
    const std::expected<Roosterbestand, GeenRooster> bestand = open_roosterbestand(pad);
    if (bestand) herlees_rooster(*bestand, doel, grdImport, wijzigingen);
    return bestand.has_value();
}

void herlees_rooster(const Roosterbestand& bestand, const RoosterDoel& doel, Grid& grdImport,
                     WijzigingenLijst* wijzigingen) {
    SilentMessages geen_berichten; // nobody asked for this read
    doel.schedule.wis_tabellen();
    lees_regels(bestand.regels(), doel.schedule, geen_berichten, doel.logboek);
    vul_rooster({grdImport, doel.schedule, doel.labels, geen_berichten, doel.logboek}, doel.schedule.rubriek_record);
    voeg_rooster_samen(doel.grid, grdImport, doel.schedule, wijzigingen);
}

} // namespace tavelo
