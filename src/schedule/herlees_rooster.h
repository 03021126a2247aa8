// Re-reads a schedule file and merges it into the grid without losing the operator's place.
#pragma once

#include "basis/grid.h"
#include "basis/seams.h"
#include "schedule/record/rubriek_labels.h"
#include "schedule/record/schedule.h"

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

} // namespace tavelo
