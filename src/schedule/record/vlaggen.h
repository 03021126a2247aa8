// How a combination takes part in a rubriek: result only, hors concours, selection, impulse. The flags stand in the
// combination's record, one set for each group of disciplines; a flag is set by exactly "1".
#pragma once

#include "schedule/record/items.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavelo {

// What a rubriek shows of a combination's record, by the names of the keys. From `klasse` on each group of disciplines
// has keys of its own; a ring type without discipline has none.
enum class Gegeven : std::uint8_t {
    hnr,
    co,
    na,
    pa,
    va,
    ve,
    ca,
    rhc,
    klasse,
    handicap,
    coupe,
    resultaat,
    selectie,
    impuls,
};
inline constexpr std::size_t aantal_gegevens = 14;

// Those values of one record; views on it.
class Deelname {
  public:
    // A flag of a combination is set by exactly "1".
    [[nodiscard]] bool staat_aan(Gegeven vlag) const { return (*this)[vlag] == "1"; }
    [[nodiscard]] std::string_view operator[](Gegeven gegeven) const {
        return waarden_[static_cast<std::size_t>(gegeven)];
    }

  private:
    friend class DeelnameLezer;
    std::array<std::string_view, aantal_gegevens> waarden_;
};

// Takes records apart for one ring type.
class DeelnameLezer {
  public:
    explicit DeelnameLezer(std::int16_t ringtype);
    void lees(std::string_view record, Deelname& deelname) const;

  private:
    Sleutels sleutels_;
};

// " (res)", " (Sel)" and " (impuls)", or "".
[[nodiscard]] std::string_view resultaat_tekst(const Deelname& deelname);
[[nodiscard]] std::string_view selectie_tekst(const Deelname& deelname);
[[nodiscard]] std::string_view impuls_tekst(const Deelname& deelname);

// Hors concours behind the name: " (HC)" or "". The combination's list "rhc" overrules the flag for single classes,
// with their identifier followed by "(1)" or "(2)"; the last element for `rid` wins.
[[nodiscard]] std::string_view handicap_tekst(std::string_view rid, const Deelname& deelname);
// In its own column: "HC" for the discipline, "(HC)" or "()" when set or cleared for this class alone. Meant to differ.
[[nodiscard]] std::string_view handicap_kolom(std::string_view rid, const Deelname& deelname);

} // namespace tavelo
