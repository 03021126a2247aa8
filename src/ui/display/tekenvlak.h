// A picture area as a value: colours, font, current position and the texts placed so far. The monitor, the preview and
// a test's picture are the same composition; the toolkit's widget only paints this list. Sizes and positions in twips
// (1440 to the inch), font sizes in points, possibly fractional; colours 0xBBGGRR.
#pragma once

#include "basis/seams.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

struct GeplaatsteTekst {
    double x = 0; // left edge of the text
    double y = 0; // top of its line
    double punten = 0;
    std::string tekst;

    bool operator==(const GeplaatsteTekst&) const = default;
};

class Tekenvlak {
  public:
    double links = 0;
    double boven = 0;
    double breedte = 0;
    double hoogte = 0;
    bool zichtbaar = true;
    std::int32_t achtergrond = 0xFFFFFF;
    std::int32_t voorgrond = 0;
    std::string lettertype;
    double huidige_y = 0;

    // Takes all texts away and puts the position at the top.
    void wis();

    [[nodiscard]] double punten() const { return punten_; }
    // The smallest font size is 1 point; sizes are not rounded.
    void zet_punten(double punten);

    [[nodiscard]] double tekstbreedte(const TextMeasure& meter, std::string_view tekst) const;
    [[nodiscard]] double teksthoogte(const TextMeasure& meter) const;

    // Prints a text at `x` and the current height and moves down one line. The same text in the same place and size
    // covers the one that stands there.
    void druk(const TextMeasure& meter, double x, std::string_view tekst);

    [[nodiscard]] const std::vector<GeplaatsteTekst>& regels() const { return regels_; }

  private:
    double punten_ = 8.25;
    std::vector<GeplaatsteTekst> regels_;
};

// Which texts are others, or in another place or size, in `nieuw` than in `oud`: their places in the two lists, of
// which one may be shorter. What lies outside these texts, of both lists, looks the same. Nothing when the areas differ
// in colours, letter or size, so that all of it looks otherwise.
[[nodiscard]] std::optional<std::vector<std::size_t>> gewijzigde_regels(const Tekenvlak& oud, const Tekenvlak& nieuw);

// The two areas of a display window. The heading band lies over the top of the participant area.
struct Vertoning {
    Tekenvlak picRubriek;
    Tekenvlak picDeelnemer;
};

} // namespace tavelo
