// The row of controls over the schedule: number box, stepping, the two slots, the quick buttons. It tells what the
// operator did and shows what it is told.
#pragma once

#include "app/programma.h"
#include "ui/main/frmNummervak.h"
#include "ui/main/huidige_combinatie.h"
#include "ui/main/open_rooster.h"

#include <QToolButton>

#include <array>
#include <functional>

class QHBoxLayout;

namespace tavelo {

inline constexpr int marge = 8; // between the controls of the main window, in device-independent pixels
inline constexpr int paneelhoogte = 84;

// Widths on a screen with room, and on a small one, where the last columns of the grid are reached by scrolling.
struct Breedten {
    int grid; // with room: all columns and the scroll bar
    int nummervak;
    int bladerknop;
    int slotknop;
    int snelknop;
    double nummerlabel; // its letter, relative to that of the desktop
};
[[nodiscard]] const Breedten& breedten(const QWidget& venster);

// What the window does with an act of the operator.
struct PaneelActies {
    std::function<void(const QString& tekst)> typ_nummer;
    std::function<void(Blader richting)> blader;
    std::function<void(int slot, Muisknop knop)> slot;
    std::function<void()> openen;
    std::function<void()> instellingen;
    std::function<void()> monitorvenster;
};

class Paneel final : public QWidget {
  public:
    // `rooster` holds the numbers of the list that is open; it outlives the widget.
    Paneel(const Grid& rooster, PaneelActies acties, QWidget* ouder);

    [[nodiscard]] Nummervak& txtINR() const { return *txtINR_; }

    // Shows the number box and the slots as the program has them; a text written here is not told as typed.
    void toon(const Programma& programma);
    void toon_gekozen_slot(int slot);

    // The keys walk over the controls from left to right and then to `daarna`.
    void zet_tabvolgorde(QWidget* daarna);

  protected:
    bool eventFilter(QObject* knop, QEvent* event) override;

  private:
    void bouw_nummervak(const Grid& rooster, QHBoxLayout& rij);
    void bouw_bladerknoppen(QHBoxLayout& rij);
    void bouw_slotknoppen(QHBoxLayout& rij);
    void bouw_snelknoppen(QHBoxLayout& rij);

    void toon_nummer_onbekend(bool onbekend);

    PaneelActies acties_;
    Nummervak* txtINR_ = nullptr;
    std::array<QToolButton*, 3> btnBlader_{};
    std::array<QToolButton*, 2> btnRooster_{};
    std::array<QToolButton*, 3> btnFast_{};
    bool schrijft_ = false; // the program writes the number box
};

} // namespace tavelo
