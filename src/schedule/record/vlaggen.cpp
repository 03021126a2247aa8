#include "schedule/record/vlaggen.h"

#include "basis/text.h"

#include <algorithm>

namespace tavelo {

namespace {

using SleutelRij = std::array<std::string_view, aantal_gegevens>;

constexpr SleutelRij sleutels_geen = {"hnr", "co", "na", "pa", "va", "ve", "ca", "rhc"};

constexpr SleutelRij met(const std::array<std::string_view, 6>& van_discipline) {
    SleutelRij rij = sleutels_geen;
    std::ranges::copy(van_discipline, rij.end() - van_discipline.size());
    return rij;
}
constexpr SleutelRij sleutels_dressuur = met({"dk", "dh", "d_coup", "d_res", "d_sel", "d_gr"});
constexpr SleutelRij sleutels_springen = met({"sk", "sh", "s_coup", "s_res", "s_sel", "s_gr"});
constexpr SleutelRij sleutels_mennen_dressuur = met({"mdk", "mdh", "md_coup", "md_res", "md_sel", "md_gr"});
constexpr SleutelRij sleutels_mennen_vaardigheid = met({"mvk", "mvh", "mv_coup", "mv_res", "mv_sel", "mv_gr"});

const SleutelRij& sleutels_van(std::int16_t ringtype) {
    switch (discipline_van(ringtype)) {
    case Discipline::dressuur:
        return sleutels_dressuur;
    case Discipline::springen:
        return sleutels_springen;
    case Discipline::mennen_dressuur:
        return sleutels_mennen_dressuur;
    case Discipline::mennen_vaardigheid:
        return sleutels_mennen_vaardigheid;
    case Discipline::geen:
        break;
    }
    return sleutels_geen;
}

enum class Handicap { geen, discipline, deze_rubriek, niet_deze_rubriek };

Handicap handicap_van(std::string_view rid, const Deelname& deelname) {
    Handicap handicap = deelname.staat_aan(Gegeven::handicap) ? Handicap::discipline : Handicap::geen;
    if (deelname[Gegeven::rhc].empty()) return handicap;
    Parts elementen(deelname[Gegeven::rhc], ',');
    while (const std::optional<std::string_view> element = elementen.next()) {
        if (!element->starts_with(rid)) continue;
        const std::string_view achter = element->substr(rid.size());
        if (achter == "(1)") handicap = Handicap::deze_rubriek;
        if (achter == "(2)") handicap = Handicap::niet_deze_rubriek;
    }
    return handicap;
}

} // namespace

DeelnameLezer::DeelnameLezer(std::int16_t ringtype) : sleutels_(sleutels_van(ringtype)) {}

void DeelnameLezer::lees(std::string_view record, Deelname& deelname) const {
    sleutels_.zoek(record, deelname.waarden_);
}

std::string_view resultaat_tekst(const Deelname& deelname) {
    return deelname.staat_aan(Gegeven::resultaat) ? " (res)" : "";
}

std::string_view selectie_tekst(const Deelname& deelname) {
    return deelname.staat_aan(Gegeven::selectie) ? " (Sel)" : "";
}

std::string_view impuls_tekst(const Deelname& deelname) {
    return deelname.staat_aan(Gegeven::impuls) ? " (impuls)" : "";
}

std::string_view handicap_tekst(std::string_view rid, const Deelname& deelname) {
    switch (handicap_van(rid, deelname)) {
    case Handicap::discipline:
    case Handicap::deze_rubriek:
        return " (HC)";
    case Handicap::geen:
    case Handicap::niet_deze_rubriek:
        break;
    }
    return "";
}

std::string_view handicap_kolom(std::string_view rid, const Deelname& deelname) {
    switch (handicap_van(rid, deelname)) {
    case Handicap::discipline:
        return "HC";
    case Handicap::deze_rubriek:
        return "(HC)";
    case Handicap::niet_deze_rubriek:
        return "()";
    case Handicap::geen:
        break;
    }
    return "";
}

} // namespace tavelo
