// The record of one combination (a rider with a horse or pony), decoded from its text in the schedule.
#pragma once

#include "basis/seams.h"
#include "schedule/record/schedule.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavelo {

// Texts as in the file, untrimmed; a number that is absent, no number, or does not fit 16 bits is 0. The rows of four
// hold one value for each group of disciplines: dressage, show jumping, driving dressage, driving skills.
struct CombinatieRecord {
    template <class T>
    using PerDiscipline = std::array<T, 4>;

    std::string nr;
    std::string type;
    std::string hnr; // head number as in the grid
    std::string co;  // combination number of the federation
    std::string pe_nr;
    std::string na;     // rider
    std::string gebdat; // rider's date of birth
    std::string gesl;
    std::string ad;
    std::string pc;
    std::string wp;
    std::string ld;
    std::string di_nr;
    std::string pa;    // horse or pony
    std::string va;    // sire
    std::string mo;    // the dam's side of the pedigree
    std::string di_kl; // colour
    std::string di_gs; // sex code
    std::string di_gb; // date of birth, "d-m-yyyy"
    std::string ei;
    std::string di_fok; // breeder
    std::string di_st;  // studbook
    std::string di_stna;
    std::string di_stnr;
    std::string di_chip;
    std::string ca; // category
    std::string ve_nr;
    std::string ve; // club
    std::string ve_pl;
    std::string kr;
    PerDiscipline<std::string> klasse; // dk, sk, mdk, mvk; in upper case
    PerDiscipline<std::int16_t> a{};   // da, sa, mda, mva
    PerDiscipline<std::int16_t> handicap{};
    PerDiscipline<std::int16_t> coup{};
    PerDiscipline<std::int16_t> af{};
    PerDiscipline<std::int16_t> res{};
    PerDiscipline<std::int16_t> sel{};
    PerDiscipline<std::int16_t> gr{};
    PerDiscipline<std::int16_t> kur{};
    PerDiscipline<std::int16_t> flex{};
    PerDiscipline<std::string> dagen; // dr_dagen, sp_dagen, medr_dagen, meva_dagen

    std::string naam_zonder_ster; // the rider's name without any "*"
    std::string geslacht;         // the horse's sex in words
    std::string leeftijd;         // the horse's age in whole years
};

// The head number of combination `n`: as written (`hnr`), or else n, or the digits of the combination number (`co`)
// where the file says so; what is derived is cut to its last three characters. "" for 0.
[[nodiscard]] std::string hoofdstelnummer(int n, std::string_view hnr, std::string_view co,
                                          bool hoofdstelnummerautomatisch);

// Decodes combination n; a number outside 0 to 4000 leaves `entry` empty. Ages count to today on `klok`.
void lees_combinatie(CombinatieRecord& entry, int n, const Schedule& schedule, const Clock& klok);

// Age in whole years between two dates of the form "d-m-yyyy"; a missing day or month is the first. "" when a date is
// empty.
[[nodiscard]] std::string leeftijd_van(std::string_view geboortedatum, std::string_view vandaag);

} // namespace tavelo
