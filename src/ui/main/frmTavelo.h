// The operator's window. It holds no rule: an event goes to a rule beside this file and what came of it is shown.
#pragma once

#include "app/start.h"
#include "platform/dialogs.h"
#include "ui/display/frmTekenvlak.h"
#include "ui/main/bediening.h"
#include "ui/main/frmRooster.h"
#include "ui/main/frmWachter.h"
#include "ui/main/huidige_combinatie.h"
#include "ui/main/indeling.h"
#include "ui/main/laad_tavelo.h"
#include "ui/main/open_rooster.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <optional>

namespace tavelo {

class Browser;
class ElidedLabel;
class Paneel;
class RoosterDetails;
class StatusBalk;
class frmDeelnemer;
class frmWijzigingen;
class frmTavelo;

// What the window needs besides the rules' surroundings. References outlive the window.
struct TaveloOmgeving {
    SettingsStore& opslag;
    const SpecialFolders& mappen;
    FileReader& lezer; // for the poll
    Browser& browser;
    std::string programma_map;
    std::function<void()> toon_intro;                      // returns when the splash has closed
    std::function<void(frmTavelo& eigenaar)> instellingen; // the settings dialog, modal
};

class frmTavelo final : public QMainWindow, public Hoofdvenster, private TaveloVenster {
  public:
    frmTavelo(Bediening& bediening, TaveloOmgeving omgeving);
    ~frmTavelo() override;

    void laad() override;

    // A file that the user named in starting the program (a double click): in the first slot, as from the dialog.
    void open_genoemd(std::string_view bestand);

    // In the browser; what comes of it is said in the status line. Not from the participant window: nobody reads it
    // there, and the browser would come over the wall.
    void toon_handleiding(const QWidget& waarin);

    // Shows what the rules made of the program's value.
    void toon();
    // Only the two displays, after a composition.
    void toon_vertoningen();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void bouw_menu() override;
    void toon_intro() override;
    void muiswiel_hook() override;
    void toon_venster() override;
    void sluit_andere_vensters() override;
    void muiswiel_unhook() override;

    void bouw_bediening();
    void ontwerp_plaatsen(QSize binnen);
    [[nodiscard]] Ruimte ruimte_voor(QSize binnen) const;
    [[nodiscard]] Maat muur() const;

    void verwacht_nummer();
    void kies_nummer(const QString& tekst);
    void druk_blader(Blader richting);
    void druk_slot(int slot, Muisknop knop);
    void open_bestand();
    void heropen();
    void toon_wijzigingen();
    void toon_instellingen();
    void wissel_deelnemer();
    void toon_herlezing();

    void toon_omschrijving();
    void toon_status();
    void muiswiel(QWheelEvent& gebeurtenis);

    Bediening& bediening_;
    Programma& programma_;
    TaveloOmgeving omgeving_;
    Wachter wachter_;

    QWidget* vlak_ = nullptr; // the inside of the window
    Paneel* paneel_ = nullptr;
    RoosterView* grdRooster_ = nullptr;
    ElidedLabel* lblRoosterOmschrijving_ = nullptr;
    RoosterDetails* frameRoosterinstellingen_ = nullptr;
    VertoningWidget* picDeelnemer_ = nullptr;
    StatusBalk* status_ = nullptr;
    frmWijzigingen* wijzigingen_ = nullptr; // from its first showing on
    QPointer<frmDeelnemer> deelnemer_;
    QTimer groen_{this};       // runs while the description still has to be seen in green
    QTimer handleiding_{this}; // runs while the status line tells of the manual

    Plaatsen ontwerp_;
    std::optional<Ruimte> getekend_; // for which the panel was built
    QSize openingsmaat_;             // the inside of the window as it opens
    int wieldraai_ = 0;              // eighths of a degree turned since the last notch
    bool afgesloten_ = false;
};

} // namespace tavelo
