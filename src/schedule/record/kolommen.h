// The columns of every schedule grid. Readers and writers address them through these names only.
#pragma once

#include <array>
#include <string_view>

namespace tavelo {

inline constexpr int kolom_nrtijd = 0;     // start number and time
inline constexpr int kolom_inr = 1;        // number of the combination, "P" for a pause
inline constexpr int kolom_hnr = 2;        // head number
inline constexpr int kolom_cnr = 3;        // combination number of the federation; filled but never visible
inline constexpr int kolom_naam = 4;       // rider
inline constexpr int kolom_hc = 5;         // hors concours
inline constexpr int kolom_paard = 6;      // horse or pony
inline constexpr int kolom_vader = 7;      // sire
inline constexpr int kolom_vereniging = 8; // club
inline constexpr int kolom_kl = 9;         // class
inline constexpr int kolom_cat = 10;       // category
inline constexpr int kolom_laatste = 10;

// The titles that every reader writes into row 0, by column.
inline constexpr std::array<std::string_view, kolom_laatste + 1> kolom_titels = {
    "nr.--tijd", "Inr", "Hnr", "Cnr", "Naam", "HC", "Paard", "Vader", "Vereniging", "Kl.", "Cat."};

} // namespace tavelo
