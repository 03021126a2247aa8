// The row of controls over the schedule: number box, stepping, the two slots, the quick buttons. It tells what the
// operator did and shows what it is told.
#pragma once

#include "app/programma.h"
#include "ui/main/frmNummervak.h"
#include "ui/main/huidige_combinatie.h"
#include "ui/main/indeling.h"
#include "ui/main/open_rooster.h"

#include <QToolButton>

#include <array>
#include <functional>

class QLabel;

namespace tavelo {

inline constexpr int marge = 8; // between the controls of the main window, in device-independent pixels
inline constexpr int paneelhoogte = 84;

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
    // Width of all controls in one row, in pixels.
    [[nodiscard]] int breedte_in_een_rij() const { return breedte_in_een_rij_; }
    // In one row, or with less room in two of half the height.
    void zet_ruimte(Ruimte ruimte);

    // Shows the number box and the slots as the program has them; a text written here is not told as typed.
    void toon(const Programma& programma);
    void toon_gekozen_slot(int slot);

    // The keys walk over the controls from left to right and then to `daarna`.
    void zet_tabvolgorde(QWidget* daarna);

  protected:
    bool eventFilter(QObject* knop, QEvent* event) override;

  private:
    void bouw_nummervak(const Grid& rooster);
    void bouw_bladerknoppen();
    void bouw_slotknoppen();
    void bouw_snelknoppen();
    void zet_maten(bool twee_rijen);

    void toon_nummer_onbekend(bool onbekend);

    PaneelActies acties_;
    QLabel* lblNummer_ = nullptr;
    Nummervak* txtINR_ = nullptr;
    std::array<QToolButton*, 3> btnBlader_{};
    std::array<QToolButton*, 2> btnRooster_{};
    std::array<QToolButton*, 3> btnFast_{};
    int breedte_in_een_rij_ = 0;
    bool schrijft_ = false; // the program writes the number box
};

} // namespace tavelo
