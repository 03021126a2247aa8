// The merge of a re-read start list, written down row by row as plainly as it can be: every row is searched from the
// top. Slow, and therefore easy to believe; the program's merge must have the same outcome.
#pragma once

#include "basis/number.h"
#include "basis/text.h"
#include "schedule/herlees_rooster.h"
#include "schedule/record/items.h"
#include "schedule/record/kolommen.h"

#include <string>
#include <vector>

namespace tavelo::test {

struct Verslag final : WijzigingenLijst {
    std::vector<std::string> regels;
    void regel(std::string_view tekst) override { regels.emplace_back(tekst); }
};

inline bool cel_is_anders(int kolom, const std::string& oud, const std::string& nieuw) {
    if (kolom == kolom_cnr) return oud != nieuw && !nieuw.empty();
    if (kolom != kolom_naam) return lower_case(oud) != lower_case(nieuw);
    const auto kaal = [](const std::string& naam) {
        std::string tekst = replaced(naam, "(HC)", "");
        while (tekst.contains("  "))
            tekst = replaced(tekst, "  ", " ");
        return lower_case(trimmed(tekst));
    };
    return kaal(oud) != kaal(nieuw);
}

inline std::string kolommen_van_naam_af(const Grid& grid, int rij) {
    std::string tekst;
    for (int kolom = kolom_naam; kolom <= kolom_cat; ++kolom)
        tekst.append("\t").append(grid.text(rij, kolom));
    return tekst;
}

inline void voeg_rij_voor_rij_samen(Grid& doel, const Grid& bron, Schedule& schedule, WijzigingenLijst& verslag) {
    for (int i = 1; i < bron.rows(); ++i) {
        const double sleutel = leading_number(trimmed(bron.text(i, kolom_inr)));
        if (sleutel <= 0) continue;
        int j = 1;
        while (j < doel.rows() && leading_number(doel.text(j, kolom_inr)) != sleutel)
            ++j;
        if (j == doel.rows()) {
            std::vector<std::string_view> teksten;
            for (int kolom = 0; kolom < bron.columns(); ++kolom)
                teksten.push_back(bron.text(i, kolom));
            doel.insert_row(i, teksten);
            verslag.regel("toegevoegd\t" + kolommen_van_naam_af(bron, i));
            continue;
        }
        std::string van = "gewijzigd\tvan";
        std::string naar = "\tnaar";
        for (const int kolom :
             {kolom_cnr, kolom_naam, kolom_hc, kolom_paard, kolom_vader, kolom_vereniging, kolom_kl, kolom_cat}) {
            const std::string oud(doel.text(j, kolom));
            const std::string nieuw(bron.text(i, kolom));
            const bool anders = cel_is_anders(kolom, oud, nieuw);
            if (anders) doel.set_text(j, kolom, nieuw);
            if (kolom == kolom_cnr && !anders && sleutel < hoogste_deelnemer + 0.5) {
                const int n = to_int32(sleutel).value();
                schedule.zet_deelnemer(n, zet_waarde("co", schedule.deelnemer(n), oud));
            }
            van += "\t" + oud;
            naar += "\t" + (anders ? nieuw : oud);
        }
        doel.set_text(j, kolom_hnr, bron.text(i, kolom_hnr));
        doel.set_row_value(j, i);
        verslag.regel(van);
        verslag.regel(naar);
    }
    for (int j = bron.rows(); j < doel.rows(); ++j)
        if (leading_number(doel.text(j, kolom_inr)) != 0) verslag.regel("verwijderd\t" + kolommen_van_naam_af(doel, j));
    while (doel.rows() > bron.rows())
        doel.remove_row(doel.rows() - 1);
}

} // namespace tavelo::test
