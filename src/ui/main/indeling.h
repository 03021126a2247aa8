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

// `ontwerp` holds the places at design time; `label_links` is the left of the labels inside the frame.
[[nodiscard]] Plaatsen deel_in(Maat binnenmaat, const Plaatsen& ontwerp, int label_links);

} // namespace tavelo
