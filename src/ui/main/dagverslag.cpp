#include "ui/main/dagverslag.h"

#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/kolommen.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t kolom_wijziging = 1;
constexpr std::size_t kolom_richting = 2;
constexpr std::size_t eerste_cel = 3;

std::string twee_cijfers(int getal) { return (getal < 10 ? "0" : "") + std::to_string(getal); }

std::size_t omvang_van(const VerslagRij& rij) {
    return std::accumulate(rij.teksten.begin(), rij.teksten.end(), sizeof rij,
                           [](std::size_t som, const std::string& tekst) { return som + tekst.capacity(); });
}

} // namespace

void Dagverslag::begin(const LocalTime& tijd) {
    tijd_ = twee_cijfers(tijd.hour) + ":" + twee_cijfers(tijd.minute);
    nieuw_.clear();
    gewijzigd_ = toegevoegd_ = verwijderd_ = 0;
}

void Dagverslag::regel(std::string_view tekst) {
    VerslagRij rij;
    rij.teksten[0] = tijd_;
    std::size_t kolom = kolom_wijziging;
    Parts delen(tekst, '\t');
    for (auto deel = delen.next(); deel && kolom < rij.teksten.size(); deel = delen.next()) {
        // A whole row has no "Cnr": its first cell is the name.
        if (kolom == eerste_cel && rij.teksten[kolom_richting].empty()) ++kolom;
        rij.teksten[kolom++] = *deel;
    }
    if (rij.teksten[kolom_richting] == "van") {
        van_ = std::move(rij);
        return;
    }
    if (rij.teksten[kolom_richting] != "naar") {
        ++(rij.teksten[kolom_wijziging] == "toegevoegd" ? toegevoegd_ : verwijderd_);
        nieuw_.push_back(std::move(rij));
        return;
    }
    for (std::size_t cel = eerste_cel; cel < rij.teksten.size(); ++cel)
        rij.anders[cel] = van_.teksten[cel] != rij.teksten[cel];
    if (std::ranges::find(rij.anders, true) == rij.anders.end()) return;
    ++gewijzigd_;
    van_.anders = rij.anders;
    nieuw_.push_back(std::move(van_));
    nieuw_.push_back(std::move(rij));
}

void Dagverslag::einde() {
    ++herlezingen_;
    samenvatting_ = tijd_ + ": ";
    if (nieuw_.empty())
        samenvatting_ += "herlezen, niets gewijzigd";
    else
        samenvatting_ += "gewijzigd " + std::to_string(gewijzigd_) + ", toegevoegd " + std::to_string(toegevoegd_) +
                         ", verwijderd " + std::to_string(verwijderd_);
    for (const VerslagRij& rij : nieuw_)
        omvang_ += omvang_van(rij);
    rijen_.insert(rijen_.begin(), std::move_iterator(nieuw_.begin()), std::move_iterator(nieuw_.end()));
    nieuw_ = {};
    houd_binnen_omvang();
}

void Dagverslag::houd_binnen_omvang() {
    while (omvang_ > hoogste_omvang) {
        omvang_ -= omvang_van(rijen_.back());
        rijen_.pop_back();
    }
}

void Dagverslag::wis() { *this = Dagverslag(); }

std::string als_tekst(std::span<const VerslagRij> rijen) {
    std::string tekst;
    const auto voeg_toe = [&](const auto& cellen) {
        for (std::size_t i = 0; i < cellen.size(); ++i)
            tekst.append(i == 0 ? "" : "\t").append(cellen[i]);
        tekst.append("\n");
    };
    voeg_toe(verslag_titels);
    for (const VerslagRij& rij : rijen)
        voeg_toe(rij.teksten);
    return tekst;
}

bool wijkt_af(const Grid& lijst, const Grid& bestand) {
    if (lijst.rows() != bestand.rows()) return true;
    for (int rij = 1; rij < lijst.rows(); ++rij) {
        const double nummer = leading_number(lijst.text(rij, kolom_inr));
        if (nummer != leading_number(bestand.text(rij, kolom_inr))) return true;
        // A pause is known by its text alone.
        if (nummer == 0 && lijst.text(rij, kolom_naam) != bestand.text(rij, kolom_naam)) return true;
    }
    return false;
}

} // namespace tavelo
