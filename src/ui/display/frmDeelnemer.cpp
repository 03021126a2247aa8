#include "ui/display/frmDeelnemer.h"

#include "platform/codeWindowPos.h"
#include "platform/icons.h"
#include "platform/qt_text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

constexpr Schermvlak gewenste_maat{0, 0, 960, 540};
constexpr int titelbalk = 32; // above the inside of a window, when the system has not told yet

// A window of the owner stays above it, as a dialog does; yet it has the buttons of a window of its own.
constexpr Qt::WindowFlags venstersoort = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                         Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

Schermvlak als_vlak(const QRect& r) { return {r.x(), r.y(), r.width(), r.height()}; }
QRect als_rechthoek(const Schermvlak& v) { return {v.links, v.boven, v.breedte, v.hoogte}; }

} // namespace

std::vector<Scherm> aanwezige_schermen() {
    std::vector<Scherm> schermen;
    for (const QScreen* screen : QGuiApplication::screens())
        schermen.push_back({utf8(screen->name()), als_vlak(screen->availableGeometry())});
    return schermen;
}

frmDeelnemer::frmDeelnemer(Programma& programma, Vertoning& vertoning, std::function<void()> stel_samen,
                           QWidget& eigenaar, QWidget& nummervak)
    : QWidget(&eigenaar, venstersoort),
      programma_(programma),
      stel_samen_(std::move(stel_samen)),
      eigenaar_(eigenaar),
      nummervak_(nummervak),
      picDeelnemer_(vertoning, this) {
    setObjectName(QStringLiteral("frmDeelnemer"));
    setWindowTitle(qt_text(deelnemer_bijschrift));
    setWindowIcon(icon(Picture::program));
    setAccessibleName(QStringLiteral("Monitorvenster met de combinatie in de ring"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowWithoutActivating);
    programma_.deelnemer_open = true;

    na_klik_.setInterval(100);
    connect(&na_klik_, &QTimer::timeout, this, [this] {
        if (beeldvullend() && isActiveWindow())
            geef_toetsen_terug();
        else if (had_toetsen_)
            na_klik_.stop();
        if (--keren_na_klik_ == 0) na_klik_.stop();
    });

    const auto volg = [this] { pas_schermen_toe(aanwezige_schermen()); };
    const auto volg_scherm = [this, volg](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, volg);
    };
    std::ranges::for_each(QGuiApplication::screens(), volg_scherm);
    connect(qApp, &QGuiApplication::screenAdded, this, [volg, volg_scherm](QScreen* screen) {
        volg_scherm(screen);
        volg();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, volg);
}

frmDeelnemer::~frmDeelnemer() {
    // Deleted some time after it was closed: another one may be open by then.
    if (!gesloten_) programma_.deelnemer_open = false;
}

void frmDeelnemer::open(const std::vector<Scherm>& schermen) {
    schermen_ = schermen;
    verplaats(plaats_op(vrij_scherm()));
    show();
    onthoud_scherm();
}

std::optional<std::size_t> frmDeelnemer::vrij_scherm() const {
    return publieksscherm(schermen_, als_vlak(eigenaar_.frameGeometry()));
}

bool frmDeelnemer::staat_in_de_weg() const {
    return staat_bij_operateur(schermen_, als_vlak(eigenaar_.frameGeometry()), als_vlak(geometry()));
}

Schermvlak frmDeelnemer::plaats_op(std::optional<std::size_t> scherm) const {
    if (scherm) return plaats_midden(schermen_[*scherm].vlak, gewenste_maat);
    const Schermvlak hoofdvenster = als_vlak(eigenaar_.frameGeometry());
    const auto van_operateur = scherm_van(schermen_, hoofdvenster);
    if (!van_operateur) return gewenste_maat;
    const Schermvlak nummervak = als_vlak({nummervak_.mapToGlobal(QPoint(0, 0)), nummervak_.size()});
    Schermvlak plaats = plaats_naast(schermen_[*van_operateur].vlak, hoofdvenster, nummervak, gewenste_maat);
    // The rule places the window with its title bar; this is its inside.
    plaats.boven += titelbalk;
    plaats.hoogte = std::max(plaats.hoogte - titelbalk, 1);
    return plaats;
}

void frmDeelnemer::verplaats(const Schermvlak& plaats) {
    verplaatst_zelf_ = true;
    setGeometry(als_rechthoek(plaats));
    verplaatst_zelf_ = false;
}

void frmDeelnemer::onthoud_scherm() {
    if (const auto scherm = scherm_van(schermen_, als_vlak(geometry()))) eigen_scherm_ = schermen_[*scherm].naam;
}

void frmDeelnemer::zet_beeldvullend(bool beeldvullend, std::string_view normaal_bijschrift) {
    setWindowTitle(beeldvullend ? QString() : qt_text(normaal_bijschrift));
    if (beeldvullend) wis_titel(*this);
    blijft_zonder_eigenaar(*this, beeldvullend);
    // Back to normal size also when it was maximised or minimised before.
    setWindowState(beeldvullend ? Qt::WindowFullScreen : Qt::WindowNoState);
    zet_bovenaan(*this, beeldvullend);
    if (beeldvullend)
        setCursor(Qt::BlankCursor);
    else
        unsetCursor();
    wakker_.set(beeldvullend);
    veranderd_();
}

Monitorvenster frmDeelnemer::stand() const {
    if (gast_op_ == "") return Monitorvenster::monitor_weg; // beside the operator; elsewhere the public still sees it
    return beeldvullend() ? Monitorvenster::beeldvullend : Monitorvenster::gewoon;
}

void frmDeelnemer::wissel_weergave(std::string_view normaal_bijschrift) {
    if (const auto vrij = vrij_scherm(); vrij && !beeldvullend() && staat_in_de_weg()) {
        setWindowState(Qt::WindowNoState); // maximised it would not move
        verplaats(plaats_op(vrij));
    }
    zet_beeldvullend(!beeldvullend(), normaal_bijschrift);
    terug_beeldvullend_ = beeldvullend();
}

void frmDeelnemer::pas_schermen_toe(const std::vector<Scherm>& schermen) {
    if (schermen.empty()) return; // between two desktops: what comes back is not new
    const std::vector<Scherm> eerder = std::exchange(schermen_, schermen);
    if (!isVisible()) return;
    const auto eigen = std::ranges::find(schermen, eigen_scherm_, &Scherm::naam);
    if (eigen == schermen.end()) {
        wijk_uit();
    } else if (gast_op_) {
        keer_terug(eigen->vlak);
    } else if (const auto nieuw = nieuw_publieksscherm(eerder, schermen, als_vlak(eigenaar_.frameGeometry()));
               nieuw && !beeldvullend() && staat_in_de_weg()) {
        verhuis(plaats_op(nieuw), false);
        eigen_scherm_ = schermen[*nieuw].naam;
    }
    veranderd_();
}

void frmDeelnemer::wijk_uit() {
    const auto ander = vrij_scherm();
    const std::string gast_op = ander ? schermen_[*ander].naam : "";
    if (gast_op_ == gast_op) return;
    if (!gast_op_) {
        terug_beeldvullend_ = beeldvullend();
        terug_plaats_ = als_vlak(beeldvullend() ? normalGeometry() : geometry());
    }
    gast_op_ = gast_op;
    verhuis(plaats_op(ander), terug_beeldvullend_ && ander);
}

void frmDeelnemer::keer_terug(const Schermvlak& eigen_scherm) {
    gast_op_.reset();
    // A monitor that is plugged in again may stand elsewhere on the desktop.
    const bool staat_daar = overlap(terug_plaats_, eigen_scherm) > 0;
    verhuis(staat_daar ? terug_plaats_ : plaats_midden(eigen_scherm, gewenste_maat), terug_beeldvullend_);
}

// A window that fills a screen does not move, so it leaves full screen first.
void frmDeelnemer::verhuis(const Schermvlak& plaats, bool daarna_beeldvullend) {
    QWidget* const actief = QApplication::activeWindow(); // where the operator types
    if (beeldvullend()) zet_beeldvullend(false, deelnemer_bijschrift);
    setWindowState(Qt::WindowNoState);
    verplaats(plaats);
    if (daarna_beeldvullend) zet_beeldvullend(true, deelnemer_bijschrift);
    if (actief && actief != this) {
        actief->activateWindow();
        if (actief == &eigenaar_) raise();
    }
}

void frmDeelnemer::resizeEvent(QResizeEvent* /*event*/) {
    picDeelnemer_.setGeometry(rect());
    picDeelnemer_.neem_maat();
    stel_samen_();
    picDeelnemer_.ververs();
}

void frmDeelnemer::moveEvent(QMoveEvent* /*event*/) {
    // The operator dragged it: it belongs where it stands now. While its own screen is away it stays a guest.
    if (!verplaatst_zelf_ && !gast_op_ && isVisible()) onthoud_scherm();
}

void frmDeelnemer::keyPressEvent(QKeyEvent* event) {
    constexpr auto storend = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    if (event->key() == Qt::Key_F11 && !(event->modifiers() & storend)) {
        wissel_weergave(deelnemer_bijschrift);
        return;
    }
    // Most window managers take this key themselves.
    if (event->key() == Qt::Key_F4 && (event->modifiers() & storend) == Qt::AltModifier) {
        close();
        return;
    }
    event->ignore();
}

// Nothing can be typed on the wall, and nobody sees there that the keys go to it. The window manager gives them to a
// window that is clicked, on a busy computer only after this event; so for two seconds they are given back again, until
// that has been seen to work.
void frmDeelnemer::mouseReleaseEvent(QMouseEvent* event) {
    QWidget::mouseReleaseEvent(event);
    if (!beeldvullend()) return;
    had_toetsen_ = isActiveWindow();
    geef_toetsen_terug();
    keren_na_klik_ = 20;
    na_klik_.start();
}

void frmDeelnemer::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) had_toetsen_ = true;
}

void frmDeelnemer::geef_toetsen_terug() {
    eigenaar_.activateWindow();
    nummervak_.setFocus();
    raise();
}

void frmDeelnemer::sluit() {
    mag_sluiten_ = true;
    close();
}

void frmDeelnemer::closeEvent(QCloseEvent* event) {
    if (beeldvullend() && !mag_sluiten_) {
        event->ignore();
        return;
    }
    gesloten_ = true;
    programma_.deelnemer_open = false; // from here on nothing is composed for it
    event->accept();
    veranderd_();
}

bool frmDeelnemer::nativeEvent(const QByteArray& soort, void* bericht, qintptr* uitkomst) {
    if (beeldvullend() && meldt_verkleinde_eigenaar(bericht)) {
        *uitkomst = 0;
        return true;
    }
    return QWidget::nativeEvent(soort, bericht, uitkomst);
}

} // namespace tavelo
