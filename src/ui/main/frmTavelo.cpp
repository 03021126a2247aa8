#include "ui/main/frmTavelo.h"

#include "platform/elided_label.h"
#include "platform/icons.h"
#include "platform/qt_text.h"
#include "ui/display/frmDeelnemer.h"
#include "ui/main/frmDetails.h"
#include "ui/main/frmPaneel.h"
#include "ui/main/frmStatus.h"
#include "ui/main/frmWijzigingen.h"
#include "ui/main/handleiding.h"
#include "ui/main/muiswiel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

// In device-independent pixels.
constexpr QSize venstermaat(1240, 760);

constexpr int groen_ms = 500; // a re-read takes less than a frame: nobody would see it

constexpr int handleiding_ms = 15'000; // longer than a browser takes to fail

constexpr int hele_klik = 120; // a notch of the wheel, in eighths of a degree

// The toolkit takes "[*]" in a caption as its mark for unsaved work.
QString venstertitel(std::string_view tekst) {
    return line_of_text(tekst).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

QRect pixelvlak(const Rechthoek& r) {
    return {pixels(r.links), pixels(r.boven), std::max(pixels(r.breedte), 0), std::max(pixels(r.hoogte), 0)};
}

Schermvlak als_schermvlak(const QRect& r) { return {r.x(), r.y(), r.width(), r.height()}; }

Rechthoek twipsvlak(const QRect& r) { return {twips(r.x()), twips(r.y()), twips(r.width()), twips(r.height())}; }

} // namespace

frmTavelo::frmTavelo(Bediening& bediening, TaveloOmgeving omgeving)
    : bediening_(bediening),
      programma_(bediening.programma),
      omgeving_(std::move(omgeving)),
      wachter_(
          *this, bediening, omgeving_.lezer, [this] { toon_herlezing(); }, [this] { toon(); }) {
    setObjectName(QStringLiteral("frmTavelo"));
    setWindowIcon(icon(Picture::program));
    bouw_bediening();
    groen_.setObjectName(QStringLiteral("TimerGroen"));
    groen_.setSingleShot(true);
    groen_.setInterval(groen_ms);
    connect(&groen_, &QTimer::timeout, this, &frmTavelo::toon_omschrijving);
    handleiding_.setObjectName(QStringLiteral("TimerHandleiding"));
    handleiding_.setSingleShot(true);
    handleiding_.setInterval(handleiding_ms);
    connect(&handleiding_, &QTimer::timeout, this, [this] {
        bediening_.handleiding = Handleiding::niet_gevraagd;
        toon_status();
    });
}

frmTavelo::~frmTavelo() = default;

void frmTavelo::laad() { laad_tavelo(bediening_, *this, omgeving_.programma_map, omgeving_.opslag, omgeving_.mappen); }

void frmTavelo::bouw_menu() {
    menuBar()->setObjectName(QStringLiteral("MenuBar1"));
    QMenu* bestand = menuBar()->addMenu(QStringLiteral("&Bestand"));
    bestand->setObjectName(QStringLiteral("mnuBestand"));
    bestand->menuAction()->setObjectName(QStringLiteral("mnuBestand"));

    QAction* openen = bestand->addAction(QStringLiteral("&Openen"), this, &frmTavelo::open_bestand);
    openen->setObjectName(QStringLiteral("mnuBestand0"));
    openen->setData(QStringLiteral("bestandopenen"));
    openen->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    bestand->addSeparator()->setObjectName(QStringLiteral("mnuBestand1"));
    QAction* instellingen = bestand->addAction(QStringLiteral("&Instellingen"), this, &frmTavelo::toon_instellingen);
    instellingen->setObjectName(QStringLiteral("mnuBestand2"));
    instellingen->setData(QStringLiteral("instellingen"));
    bestand->addSeparator()->setObjectName(QStringLiteral("mnuBestand3"));
    // Shows the key that closes the window and does nothing itself: it is meant so.
    QAction* afsluiten = bestand->addAction(QStringLiteral("&Afsluiten\tAlt+F4"));
    afsluiten->setObjectName(QStringLiteral("mnuBestand4"));
    QAction* popup = menuBar()->addAction(QStringLiteral("&Popup"), this, &frmTavelo::wissel_deelnemer);
    popup->setObjectName(QStringLiteral("mnuPopup"));
    popup->setToolTip(QStringLiteral("Monitorvenster openen of sluiten"));
}

void frmTavelo::bouw_bediening() {
    vlak_ = new QWidget(this);
    setCentralWidget(vlak_);
    PaneelActies acties;
    acties.typ_nummer = [this](const QString& tekst) { kies_nummer(tekst); };
    acties.blader = [this](Blader richting) { druk_blader(richting); };
    acties.slot = [this](int slot, Muisknop knop) { druk_slot(slot, knop); };
    acties.openen = [this] { open_bestand(); };
    acties.instellingen = [this] { toon_instellingen(); };
    acties.monitorvenster = [this] { wissel_deelnemer(); };
    paneel_ = new Paneel(programma_.grdRooster, std::move(acties), vlak_);

    lblRoosterOmschrijving_ = new ElidedLabel(vlak_);
    lblRoosterOmschrijving_->setObjectName(QStringLiteral("lblRoosterOmschrijving"));
    lblRoosterOmschrijving_->setAutoFillBackground(true);
    lblRoosterOmschrijving_->setMargin(4);
    QFont vet = font();
    vet.setBold(true);
    lblRoosterOmschrijving_->setFont(vet);

    grdRooster_ = new RoosterView(programma_.grdRooster, vlak_);
    grdRooster_->setAccessibleName(QStringLiteral("Startlijst"));
    grdRooster_->bij_kiezen([this] {
        kies_rij(bediening_);
        toon();
        verwacht_nummer();
    });
    grdRooster_->begin_bij([this] { return begin_van_pijltjes(bediening_); });

    frameRoosterinstellingen_ = new RoosterDetails(vlak_);
    picDeelnemer_ = new VertoningWidget(bediening_.voorbeeld, vlak_);
    picDeelnemer_->setAccessibleName(QStringLiteral("Voorbeeld van de monitor"));
    picDeelnemer_->setToolTip(QStringLiteral("Voorbeeld van wat op de monitor staat"));
    paneel_->zet_tabvolgorde(grdRooster_);
    status_ = new StatusBalk([this] { toon_wijzigingen(); }, [this] { heropen(); }, this);
    setStatusBar(status_);
}

// The places before the resize rules move them.
void frmTavelo::ontwerp_plaatsen(QSize binnen) {
    const Ruimte ruimte = ruimte_voor(binnen);
    if (std::exchange(getekend_, ruimte) != ruimte) paneel_->zet_ruimte(ruimte);
    const int breedte = pixels(gridbreedte(ruimte));
    const int nodig = paneel_->sizeHint().width();
    const int paneelbreedte = ruimte == Ruimte::ruim ? std::max(breedte, nodig) : nodig;
    const int omschrijving = marge + paneelhoogte + marge;
    const int regel = fontMetrics().height() + 8;
    paneel_->setGeometry(marge, marge, paneelbreedte, paneelhoogte);
    lblRoosterOmschrijving_->setGeometry(marge, omschrijving, breedte, regel);
    ontwerp_.grdRooster = twipsvlak({marge, omschrijving + regel + marge, breedte, 100});

    // The preview has the shape of the wall in the window as it opens; in a smaller one as it is drawn for it.
    const auto in_twips = [](QSize maat) { return Maat{twips(maat.width()), twips(maat.height())}; };
    const QSize bedoeld = ruimte_voor(openingsmaat_) == ruimte ? openingsmaat_ : binnen;
    const int kader = frameRoosterinstellingen_->kleinste_hoogte();
    const Plek plek = plek_voorbeeld(in_twips(bedoeld), in_twips(binnen),
                                     {twips(marge + breedte + marge), twips(marge + kader + marge)}, muur());
    ontwerp_.picDeelnemer = twipsvlak({pixels(plek.links), pixels(plek.boven), 100, 100});
    const int tot_voorbeeld = std::max(pixels(plek.boven) - 2 * marge, kader);
    // Beside the panel and the grid: it reaches below the panel.
    const int links = marge + std::max(breedte, paneelbreedte) + marge;
    ontwerp_.frameRoosterinstellingen = twipsvlak({links, marge, 100, tot_voorbeeld});
    frameRoosterinstellingen_->zet_hoogte(tot_voorbeeld);
}

Ruimte frmTavelo::ruimte_voor(QSize binnen) const {
    return kies_ruimte(twips(binnen.width()), twips(paneel_->breedte_in_een_rij()));
}

// The screen that the public sees; without one the shape of nearly all of them.
Maat frmTavelo::muur() const {
    const std::vector<Scherm> schermen = aanwezige_schermen();
    const auto scherm = publieksscherm(schermen, als_schermvlak(frameGeometry()));
    return scherm ? Maat{schermen[*scherm].vlak.breedte, schermen[*scherm].vlak.hoogte} : Maat{16, 9};
}

void frmTavelo::toon_intro() { omgeving_.toon_intro(); }

void frmTavelo::toon_venster() {
    if (const QScreen* scherm = screen()) {
        const QRect vrij = scherm->availableGeometry();
        const bool alleen = QGuiApplication::screens().size() == 1;
        // With a screen for the public all of the operator's is used; on a single one the participant window needs
        // room.
        const QSize titelbalk(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
        const QSize maat = alleen ? venstermaat.boundedTo(vrij.size() * 0.96) : vrij.size() - titelbalk;
        openingsmaat_ = maat - QSize(0, menuBar()->sizeHint().height() + status_->height());
        resize(alleen ? maat : venstermaat.boundedTo(vrij.size() * 0.96));
        move(vrij.topLeft() + QPoint(marge, marge));
        if (!alleen) setWindowState(Qt::WindowMaximized);
    }
    toon();
    show();
    paneel_->txtINR().setFocus();
    wachter_.begin();
}

void frmTavelo::toon() {
    setWindowTitle(venstertitel(programma_.bijschrift));
    frameRoosterinstellingen_->toon(programma_.labels);
    toon_omschrijving();
    toon_vertoningen();
}

void frmTavelo::toon_vertoningen() {
    picDeelnemer_->ververs();
    if (deelnemer_) deelnemer_->ververs();
    toon_status();
}

// What is told to the operator alone.
void frmTavelo::toon_status() {
    bediening_.monitorvenster = deelnemer_ ? deelnemer_->stand() : Monitorvenster::gewoon;
    paneel_->toon(programma_);
    grdRooster_->merk(programma_.deelnemer_open ? rij_op_monitor(bediening_.op_monitor, programma_).value_or(0) : 0);
    grdRooster_->zet_tekst_zonder_rijen(qt_text(tekst_in_leeg_rooster(programma_)));
    status_->toon(statusregel(bediening_));
    if (wijzigingen_) wijzigingen_->ververs();
}

void frmTavelo::toon_omschrijving() {
    constexpr std::int32_t lichtgroen = 0xBBFFBB;
    QPalette kleuren = palette();
    if (programma_.herlezen_bezig || groen_.isActive()) {
        kleuren.setColor(QPalette::Window, qt_colour(lichtgroen));
        kleuren.setColor(QPalette::WindowText, Qt::black);
    }
    lblRoosterOmschrijving_->setPalette(kleuren);
    toon_tekst(*lblRoosterOmschrijving_, QStringLiteral("Omschrijving"), programma_.labels.lblRoosterOmschrijving);
}

// The next digit begins a new number.
void frmTavelo::verwacht_nummer() { paneel_->txtINR().selectAll(); }

void frmTavelo::kies_nummer(const QString& tekst) {
    typ_txtINR(bediening_, utf8(tekst));
    if (programma_.huidige_regel >= 1) grdRooster_->breng_in_beeld();
    toon();
}

void frmTavelo::druk_blader(Blader richting) {
    blader(bediening_, richting);
    if (programma_.huidige_regel >= 1) grdRooster_->breng_in_beeld();
    toon();
    verwacht_nummer();
    if (richting == Blader::wis) paneel_->txtINR().setFocus();
}

void frmTavelo::druk_slot(int slot, Muisknop knop) {
    // The toolkit pressed the button that was clicked; the other one comes up before the file is read.
    paneel_->toon_gekozen_slot(slot);
    klik_slot(bediening_, slot, knop);
    toon();
    verwacht_nummer();
}

void frmTavelo::open_bestand() {
    open_rooster(bediening_, "", programma_.rooster_slot);
    toon();
    verwacht_nummer();
}

void frmTavelo::open_genoemd(std::string_view bestand) {
    kies_bestand(bediening_, bestand, 0);
    open_rooster(bediening_, bestand, 0);
    toon();
    verwacht_nummer();
}

// The file of the slot once more, as a click on its button.
void frmTavelo::heropen() {
    const int slot = programma_.rooster_slot;
    if (!programma_.slots[slot == 1 ? 1 : 0].bestand.empty()) druk_slot(slot, Muisknop::links);
}

void frmTavelo::toon_wijzigingen() {
    if (!wijzigingen_) wijzigingen_ = new frmWijzigingen(bediening_.dagverslag, *this);
    const std::vector<Scherm> schermen = aanwezige_schermen();
    const auto scherm = scherm_van(schermen, als_schermvlak(frameGeometry()));
    if (!scherm) return;
    const QRect rooster(grdRooster_->mapToGlobal(QPoint(0, 0)), grdRooster_->size());
    const Schermvlak plaats = plaats_wijzigingen(schermen[*scherm].vlak, als_schermvlak(rooster));
    wijzigingen_->open({plaats.links, plaats.boven, plaats.breedte, plaats.hoogte});
}

void frmTavelo::toon_handleiding(const QWidget& waarin) {
    if (&waarin == deelnemer_) return;
    tavelo::toon_handleiding(bediening_, omgeving_.programma_map, omgeving_.browser, [this] {
        handleiding_.start();
        toon_status();
    });
}

void frmTavelo::toon_instellingen() {
    omgeving_.instellingen(*this);
    toon();
}

void frmTavelo::wissel_deelnemer() {
    if (programma_.deelnemer_open) {
        if (deelnemer_) deelnemer_->sluit();
        return;
    }
    deelnemer_ = new frmDeelnemer(
        programma_, bediening_.deelnemer_venster,
        [this] {
            toon_deelnemer_venster(bediening_);
            toon_status();
        },
        *this, paneel_->txtINR());
    deelnemer_->bij_verandering([this] { toon_status(); });
    deelnemer_->open();
    toon_status();
}

void frmTavelo::toon_herlezing() {
    if (programma_.herlezen_bezig) groen_.start();
    toon_omschrijving();
    lblRoosterOmschrijving_->repaint();
}

void frmTavelo::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const QSize binnen = vlak_->size();
    ontwerp_plaatsen(binnen);
    const Plaatsen plaatsen =
        deel_in({twips(binnen.width()), twips(binnen.height())}, ontwerp_, frameRoosterinstellingen_->label_links());
    grdRooster_->setGeometry(pixelvlak(plaatsen.grdRooster));
    picDeelnemer_->setGeometry(pixelvlak(plaatsen.picDeelnemer));
    frameRoosterinstellingen_->setGeometry(pixelvlak(plaatsen.frameRoosterinstellingen));
    frameRoosterinstellingen_->zet_labelbreedte(plaatsen.labelbreedte);
    picDeelnemer_->neem_maat();
    toon_voorbeeld(bediening_);
    picDeelnemer_->ververs();
    toon_status();
}

void frmTavelo::keyPressEvent(QKeyEvent* event) {
    const auto toetsen = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (event->key() == Qt::Key_F11 && !toetsen) {
        if (programma_.deelnemer_open && deelnemer_) {
            deelnemer_->wissel_weergave(deelnemer_bijschrift_hoofdvenster);
            activateWindow(); // the operator goes on typing here
            deelnemer_->raise();
        }
        return;
    }
    if (event->key() == Qt::Key_F5 && !toetsen) return heropen();
    if (event->key() == Qt::Key_F6 && !toetsen) return toon_wijzigingen();
    // Most window managers take this key themselves.
    if (event->key() == Qt::Key_F4 && toetsen == Qt::AltModifier) {
        close();
        return;
    }
    // A digit typed anywhere in the window begins the next number.
    if (is_cijfer(*event)) {
        paneel_->txtINR().setFocus();
        verwacht_nummer();
        QApplication::sendEvent(&paneel_->txtINR(), event);
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void frmTavelo::closeEvent(QCloseEvent* event) {
    event->accept();
    if (std::exchange(afgesloten_, true)) return;
    wachter_.einde();
    sluit_af(programma_, omgeving_.opslag, bediening_.omgeving.muisaanwijzer, *this);
}

void frmTavelo::sluit_andere_vensters() {
    if (deelnemer_) deelnemer_->sluit();
    for (QWidget* venster : QApplication::topLevelWidgets())
        if (venster->objectName() != objectName() && venster->isVisible()) venster->close();
}

void frmTavelo::muiswiel_hook() { qApp->installEventFilter(this); }

void frmTavelo::muiswiel_unhook() { qApp->removeEventFilter(this); }

bool frmTavelo::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QMainWindow::eventFilter(receiver, event);
    const auto* besturing = qobject_cast<QWidget*>(receiver);
    if (!besturing || besturing->window() != this) return QMainWindow::eventFilter(receiver, event);
    auto& draai = static_cast<QWheelEvent&>(*event);
    if (draai.angleDelta().y() == 0) return QMainWindow::eventFilter(receiver, event); // sideways is the toolkit's
    muiswiel(draai);
    event->accept();
    return true;
}

void frmTavelo::muiswiel(QWheelEvent& gebeurtenis) {
    // A pad sends many small turns: together they make a notch. A turn of several notches is one.
    const int draai = gebeurtenis.angleDelta().y();
    if ((draai > 0) != (wieldraai_ > 0)) wieldraai_ = 0;
    wieldraai_ += draai;
    if (std::abs(wieldraai_) < hele_klik) return;
    const int rotatie = std::exchange(wieldraai_, 0);

    const auto doel = [](const QWidget& besturing, Besturing soort) {
        const QRect r(besturing.mapToGlobal(QPoint(0, 0)), besturing.size());
        return WielDoel{{r.left(), r.top(), r.right(), r.bottom()}, soort, besturing.isVisible()};
    };
    const std::array doelen = {doel(*grdRooster_, Besturing::grid), doel(*picDeelnemer_, Besturing::afbeelding),
                               doel(paneel_->txtINR(), Besturing::invoer)};
    const QPoint punt = gebeurtenis.globalPosition().toPoint();
    const std::optional<std::size_t> gekozen = wiel_doel(doelen, punt.x(), punt.y());
    if (!gekozen) return;
    switch (doelen[*gekozen].soort) {
    case Besturing::grid:
        grid_muiswiel(programma_.grdRooster, rotatie, grdRooster_->top_laatste_rij(), twips(grdRooster_->height()));
        break;
    case Besturing::invoer:
        if (paneel_->txtINR().isEnabled()) paneel_->txtINR().setFocus();
        break;
    case Besturing::afbeelding:
    case Besturing::lijst:
    case Besturing::anders:
        break;
    }
}

} // namespace tavelo
