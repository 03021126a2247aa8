// Where the controls of the main window go at a given inner size. All in twips.
#pragma once

namespace tavelo {

struct Maat {
    int breedte = 0;
    int hoogte = 0;
};
struct Rechthoek {
    int links = 0;
    int boven = 0;
    int breedte = 0;
    int hoogte = 0;
};

// The controls are laid out for at least this size and clipped below it; the window itself is not forced.
inline constexpr Maat kleinste_indeling{9000, 6000};

struct Plaatsen {
    Rechthoek grdRooster;               // only its height follows the window
    Rechthoek picDeelnemer;             // width and height follow
    Rechthoek frameRoosterinstellingen; // its width follows
    int labelbreedte = 0;               // of the labels inside the frame, at their left `label_links`
};

// The places at design time, by the room there is: wide, with the controls in one row over a grid that shows all its
// columns; narrow and small, with the controls in two rows and a grid whose last columns are reached by scrolling.
enum class Ruimte { ruim, krap, klein };

// The widest design that leaves the preview some width at this inner width. `paneel` is the width of the controls in
// one row, which depends on the letter of the desktop.
[[nodiscard]] Ruimte kies_ruimte(int binnenbreedte, int paneel);
[[nodiscard]] int gridbreedte(Ruimte ruimte);

inline constexpr int tussenruimte = 120; // left of the grid, and between it and the preview

// `ontwerp` holds the places at design time; `label_links` is the left of the labels inside the frame.
[[nodiscard]] Plaatsen deel_in(Maat binnenmaat, const Plaatsen& ontwerp, int label_links);

// Left and top of the preview at design time, not left of or above `uiterste`, so that in a window of the inner size
// `bedoeld` it has the shape of the wall `muur`. Where that would leave too little of it in the window as it is now,
// `binnenmaat`, it stands at `uiterste`.
struct Plek {
    int links = 0;
    int boven = 0;
};
[[nodiscard]] Plek plek_voorbeeld(Maat bedoeld, Maat binnenmaat, Plek uiterste, Maat muur);

} // namespace tavelo
