// The schedule in memory: what one schedule file said, plus what earlier files said of numbers that it does not
// mention.
#pragma once

#include "schedule/record/rubriek_record.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

inline constexpr int hoogste_deelnemer = 4000; // combinations have the numbers 0 to 4000
inline constexpr int hoogste_rubriek = 2000;   // entries of the list of classes have the numbers 1 to 2000

class Schedule {
  public:
    std::int16_t singlesignin = 0; // 1: class and category of a rubriek come from the entries selected in "rrubi"
    bool hoofdstelnummerautomatisch = false; // derive an empty head number from the combination number
    std::int16_t rubriek_nummer = 0;
    std::string rubriek_record; // the schedule's own rubriek, as in the file
    RubriekRecord huidige_rubriek;
    std::int16_t laatste_dnr = 0;

    // The record of a combination, "" when there is none; a number outside 0 to 4000 has none.
    [[nodiscard]] const std::string& deelnemer(int nummer) const;
    // Only a hint that this record is wanted soon: a start list goes through them in an order of its own.
    void kondig_deelnemer_aan(int nummer) const;
    void zet_deelnemer(int nummer, std::string_view record);
    // The same record, to be written where it is kept; null when there is none.
    [[nodiscard]] std::string* deelnemer_plaats(int nummer);

    // An entry of the list of classes, taken from its record here; an empty one for a number outside 1 to 2000.
    [[nodiscard]] RubriekLijstRecord rubriek(int nummer) const;
    void zet_rubriek(int nummer, std::string_view record);
    [[nodiscard]] std::string* rubriek_plaats(int nummer);

    // Empties both tables.
    void wis_tabellen();

  private:
    std::vector<std::string> deelnemers_ = std::vector<std::string>(hoogste_deelnemer + 1);
    std::vector<std::string> rubrieken_ = std::vector<std::string>(hoogste_rubriek + 1);
};

} // namespace tavelo
