// Where the settings dialog opens: beside the preview, so that the effect of a change stays in sight.
#pragma once

#include "ui/main/muiswiel.h"

namespace tavelo {

struct SchermPunt {
    int x = 0;
    int y = 0;

    bool operator==(const SchermPunt&) const = default;
};

// Top left corner of a dialog of this size (its frame included): inside `scherm`, to the right of `voorbeeld`, else to
// its left, below or above it; where it fits nowhere, the one of these places that covers the least of the preview. A
// dialog larger than the screen keeps its top left corner in sight.
[[nodiscard]] SchermPunt plaats_dialoog(const SchermRechthoek& scherm, const SchermRechthoek& voorbeeld, int breedte,
                                        int hoogte);

} // namespace tavelo
