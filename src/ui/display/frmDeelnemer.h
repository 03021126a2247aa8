// The participant window, for the monitor beside the ring. An empty caption marks the full-screen view: no title, frame
// or pointer, above everything, the display kept awake.
//
// It knows the screen it belongs to. When that monitor goes away the window moves to another, and out of full screen
// where only the operator's is left; when the monitor comes back, so does the window. In normal view on the operator's
// screen it moves to a monitor that is switched on. No move takes the focus.
//
// It is owned by the main window: it closes with it and stays above it. Full screen it stays where it is when the main
// window is minimised.
#pragma once

#include "app/programma.h"
#include "platform/keep_awake.h"
#include "ui/display/frmTekenvlak.h"
#include "ui/display/schermkeuze.h"

#include <QTimer>

#include <functional>
#include <vector>

namespace tavelo {

inline constexpr std::string_view deelnemer_bijschrift = "Toon combinatie (F11 voor beeldvullend)";
// What F11 in the main window leaves as caption.
inline constexpr std::string_view deelnemer_bijschrift_hoofdvenster = "Monitor venster (F11 voor beeldvullend)";

// The screens as they are now: their names and usable places.
[[nodiscard]] std::vector<Scherm> aanwezige_schermen();

class frmDeelnemer final : public QWidget {
  public:
    // `stel_samen` composes the current combination in `vertoning`. The window deletes itself when it is closed.
    // `nummervak` is the control of the owner that stays in sight and gets the keys back.
    frmDeelnemer(Programma& programma, Vertoning& vertoning, std::function<void()> stel_samen, QWidget& eigenaar,
                 QWidget& nummervak);
    ~frmDeelnemer() override;

    // Shows it on the screen where it belongs, without taking the focus from the operator.
    void open() { open(aanwezige_schermen()); }
    void open(const std::vector<Scherm>& schermen);
    void ververs() { picDeelnemer_.ververs(); }
    // Closes it in either view. Whatever else asks it to close, such as Alt+F4, closes it in the normal view only: in
    // full screen that key was meant for another window.
    void sluit();

    [[nodiscard]] bool beeldvullend() const { return windowTitle().isEmpty(); }
    // The key F11; `normaal_bijschrift` is the caption of the normal view.
    void wissel_weergave(std::string_view normaal_bijschrift);

    [[nodiscard]] Monitorvenster stand() const;
    // Called whenever `stand` may have changed, and when it closes.
    void bij_verandering(std::function<void()> gehoord) { veranderd_ = std::move(gehoord); }

    // Takes the present screens; called again whenever they change.
    void pas_schermen_toe(const std::vector<Scherm>& schermen);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool nativeEvent(const QByteArray& soort, void* bericht, qintptr* uitkomst) override;

  private:
    void zet_beeldvullend(bool beeldvullend, std::string_view normaal_bijschrift);
    void verplaats(const Schermvlak& plaats);
    void verhuis(const Schermvlak& plaats, bool daarna_beeldvullend);
    void wijk_uit();
    void keer_terug(const Schermvlak& eigen_scherm);
    void geef_toetsen_terug();
    [[nodiscard]] bool staat_in_de_weg() const; // on the operator's screen
    // A screen without the main window, and the place on it; without one beside the main window.
    [[nodiscard]] std::optional<std::size_t> vrij_scherm() const;
    [[nodiscard]] Schermvlak plaats_op(std::optional<std::size_t> scherm) const;
    void onthoud_scherm();

    Programma& programma_;
    std::function<void()> stel_samen_;
    std::function<void()> veranderd_ = [] {};
    QWidget& eigenaar_;
    QWidget& nummervak_;
    VertoningWidget picDeelnemer_;
    KeepAwake wakker_;
    QTimer na_klik_;
    int keren_na_klik_ = 0;
    bool had_toetsen_ = false; // since the click
    bool gesloten_ = false;
    bool mag_sluiten_ = false; // also in full screen

    std::vector<Scherm> schermen_;
    std::string eigen_scherm_; // name of the screen that it belongs to
    // That screen is away and the window stands on this one; the empty name is the operator's.
    std::optional<std::string> gast_op_;
    bool terug_beeldvullend_ = false;
    Schermvlak terug_plaats_;
    bool verplaatst_zelf_ = false; // a move by the program does not change where it belongs
};

} // namespace tavelo
