#include "ui/main/muiswiel.h"

#include <algorithm>

namespace tavelo {

bool punt_in_venster(const SchermRechthoek& venster, int x, int y) {
    return venster.links <= x && x <= venster.rechts && venster.boven <= y && y <= venster.onder;
}

std::optional<std::size_t> wiel_doel(std::span<const WielDoel> besturingen, int x, int y) {
    const auto gevonden = std::ranges::find_if(besturingen, [&](const WielDoel& doel) {
        return doel.zichtbaar && doel.soort != Besturing::anders && punt_in_venster(doel.plaats, x, y);
    });
    if (gevonden == besturingen.end()) return std::nullopt;
    return static_cast<std::size_t>(gevonden - besturingen.begin());
}

void grid_muiswiel(Grid& grid, int rotatie, int top_laatste_rij, int hoogte) {
    if (grid.rows() == 0) return;
    constexpr int zichtbare_rij = 600; // twips above the bottom at which the last row counts as in view
    if (rotatie >= 1) {
        grid.set_top_row(std::max(grid.top_row() - 1, grid.fixed_rows()));
    } else if (top_laatste_rij >= hoogte - zichtbare_rij) {
        grid.set_top_row(std::min(grid.top_row() + 1, grid.rows() - 1));
    }
}

} // namespace tavelo
