// Re-reads a schedule file and merges it into the grid without losing the operator's place.
#pragma once

#include "schedule/lees_rooster.h"

#include <string>
#include <string_view>

namespace tavelo {

// Hears the report of a merge line by line; fields are separated by tabs and line up column by column. Nobody needs to
// listen: the report is kept so that a view can be attached to it.
class WijzigingenLijst {
  public:
    virtual ~WijzigingenLijst() = default;
    virtual void regel(std::string_view tekst) = 0;
};

// Re-reads `pad` into the schedule and `grdImport` and merges that into `doel.grid`, keyed by the "Inr" column. Gives
// false, and leaves everything as it was, when the file cannot be read to its end or begins with another line. Shows no
// message. The caller takes the file's stamp before: one taken afterwards could belong to a later text than the one
// that was read.
[[nodiscard]] bool herlees_rooster(std::string_view pad, const RoosterDoel& doel, Grid& grdImport,
                                   WijzigingenLijst* wijzigingen = nullptr);

// The same for a file whose bytes are there already.
void herlees_rooster(const Roosterbestand& bestand, const RoosterDoel& doel, Grid& grdImport,
                     WijzigingenLijst* wijzigingen = nullptr);

// The merge alone: rows of `bron` overwrite the cells of the first row of `doel` with the same number, new ones are
// inserted at their place in `bron`, and what is then longer than `bron` is cut off at the end, by position: it is
// meant so. A number of the federation that the file no longer gives is kept, in the grid and in the combination's
// record.
void voeg_rooster_samen(Grid& doel, const Grid& bron, Schedule& schedule, WijzigingenLijst* wijzigingen = nullptr);

} // namespace tavelo
