// The rules of the settings dialog. Every change of a control is written straight into the settings and shown at once;
// closing with anything but OK puts back the settings as they were when the dialog opened.
#pragma once

#include "ui/main/bediening.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tavelo {

enum class BesturingSoort : std::uint8_t {
    lettertype, // an installed font, by name
    kleur,      // 0xBBGGRR
    grootte,    // scroll bar, percent
    keuze,      // index of the chosen option of three
    vinkje,     // 1 on, 0 off
    kolom,      // a column letter, "" for none
};

// A control and the one setting that it edits. Controls of an array carry their index: "btnKleur_0".
struct InstellingBesturing {
    std::string_view naam;
    BesturingSoort soort;
    InstellingVeld veld;
};

inline constexpr std::size_t aantal_besturingen = 34;
[[nodiscard]] std::span<const InstellingBesturing, aantal_besturingen> instelling_besturingen();
// The place of a control in that table; the name must be one of it.
[[nodiscard]] std::size_t besturing_index(std::string_view naam);

inline constexpr int kleinste_tekstgrootte = 50;
inline constexpr int grootste_tekstgrootte = 400;
inline constexpr int begin_tekstgrootte = 100;
inline constexpr int kleine_stap_tekstgrootte = 5;
inline constexpr int grote_stap_tekstgrootte = 25;

// "A" to "Z" and "AA" to "AZ". Filling the schedule reads the first letter alone, so "AB" means A; it is meant so.
[[nodiscard]] std::vector<std::string> kolomletters();
// Whether a column list can show the text: one of those letters, or "" for none.
[[nodiscard]] bool is_kolomkeuze(std::string_view tekst);

// What one control shows: its number or its text, or nothing. A control that shows nothing gives nothing to read.
using Getoond = std::variant<std::monostate, std::int32_t, std::string>;
// All controls, in the order of the table.
using DialoogInhoud = std::array<Getoond, aantal_besturingen>;

// The settings as the controls show them. A font that is not among `lettertypen`, a colour above white, an option or
// check value that does not exist and a letter outside the list show nothing. A size outside the scroll bar leaves the
// bar at 100.
[[nodiscard]] DialoogInhoud inhoud_van(const Instellingen& instellingen, std::span<const std::string> lettertypen);
// Takes over what every control shows; the setting of a control that shows nothing stays.
void lees_besturingen(const DialoogInhoud& inhoud, Instellingen& instellingen);

// One opening of the dialog, from load to close.
class InstellingenDialoog {
  public:
    // Keeps a copy of the settings with the program. `bediening` must outlive the dialog.
    explicit InstellingenDialoog(Bediening& bediening);

    // After every change of a control: the controls go into the settings, the start list of a worksheet follows the
    // column letters, and the display is composed again.
    void ververs_voorbeeld(const DialoogInhoud& inhoud);

    void ok() { bediening_.programma.instellingen_bij_annuleren.reset(); }
    // On every close. Without OK the copy goes back and the display is composed again; the start list keeps the columns
    // of the last change until the worksheet is opened again, it is meant so.
    void sluit();

  private:
    Bediening& bediening_;
};

// The text of the first cell of a column of the copied worksheet that is not blank; "" when there is none, or no
// letter.
[[nodiscard]] std::string eerste_gevulde_cel(const Grid& werkblad, std::string_view kolom_letter);

} // namespace tavelo
