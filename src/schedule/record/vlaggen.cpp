#include "schedule/record/vlaggen.h"

#include "basis/text.h"

namespace tavelo {

namespace {

bool staat_aan(std::string_view sleutel, const RecordItems& combinatie) {
    return !sleutel.empty() && combinatie.staat_aan(sleutel);
}

enum class Handicap { geen, discipline, deze_rubriek, niet_deze_rubriek };

Handicap handicap_van(std::string_view rid, std::int16_t ringtype, const RecordItems& combinatie) {
    Handicap handicap = staat_aan(sleutels_van(ringtype).handicap, combinatie) ? Handicap::discipline : Handicap::geen;
    Parts elementen(combinatie.waarde("rhc"), ',');
    while (const std::optional<std::string_view> element = elementen.next()) {
        if (!element->starts_with(rid)) continue;
        const std::string_view achter = element->substr(rid.size());
        if (achter == "(1)") handicap = Handicap::deze_rubriek;
        if (achter == "(2)") handicap = Handicap::niet_deze_rubriek;
    }
    return handicap;
}

} // namespace

const DisciplineSleutels& sleutels_van(std::int16_t ringtype) {
    static constexpr DisciplineSleutels geen{};
    static constexpr DisciplineSleutels dressuur{"dk", "dh", "d_coup", "d_res", "d_sel", "d_gr"};
    static constexpr DisciplineSleutels springen{"sk", "sh", "s_coup", "s_res", "s_sel", "s_gr"};
    static constexpr DisciplineSleutels mennen_dressuur{"mdk", "mdh", "md_coup", "md_res", "md_sel", "md_gr"};
    static constexpr DisciplineSleutels mennen_vaardigheid{"mvk", "mvh", "mv_coup", "mv_res", "mv_sel", "mv_gr"};
    switch (discipline_van(ringtype)) {
    case Discipline::dressuur:
        return dressuur;
    case Discipline::springen:
        return springen;
    case Discipline::mennen_dressuur:
        return mennen_dressuur;
    case Discipline::mennen_vaardigheid:
        return mennen_vaardigheid;
    case Discipline::geen:
        break;
    }
    return geen;
}

std::string_view resultaat_tekst(std::int16_t ringtype, const RecordItems& combinatie) {
    return staat_aan(sleutels_van(ringtype).resultaat, combinatie) ? " (res)" : "";
}

std::string_view selectie_tekst(std::int16_t ringtype, const RecordItems& combinatie) {
    return staat_aan(sleutels_van(ringtype).selectie, combinatie) ? " (Sel)" : "";
}

std::string_view impuls_tekst(std::int16_t ringtype, const RecordItems& combinatie) {
    return staat_aan(sleutels_van(ringtype).impuls, combinatie) ? " (impuls)" : "";
}

std::string_view handicap_tekst(std::string_view rid, std::int16_t ringtype, const RecordItems& combinatie) {
    switch (handicap_van(rid, ringtype, combinatie)) {
    case Handicap::discipline:
    case Handicap::deze_rubriek:
        return " (HC)";
    case Handicap::geen:
    case Handicap::niet_deze_rubriek:
        break;
    }
    return "";
}

std::string_view handicap_kolom(std::string_view rid, std::int16_t ringtype, const RecordItems& combinatie) {
    switch (handicap_van(rid, ringtype, combinatie)) {
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
