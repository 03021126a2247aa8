#include "ui/main/frmTavelo.h"

#include "platform/elided_label.h"
#include "platform/icons.h"
#include "platform/qt_text.h"
#include "ui/display/frmDeelnemer.h"
#include "ui/main/auto_import.h"
#include "ui/main/muiswiel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

// In device-independent pixels.
constexpr int marge = 8;
constexpr int paneelhoogte = 84;
// Widths on a screen with room, and on a small one, where the last columns of the grid are reached by scrolling.
struct Breedten {
    int grid; // with room: all columns and the scroll bar
    int nummervak;
    int bladerknop;
    int slotknop;
    int snelknop;
    double nummerlabel; // its letter, relative to that of the desktop
};
constexpr Breedten ruim{784, 140, 70, 78, 48, 1.3};
constexpr Breedten krap{570, 110, 60, 66, 40, 1};
constexpr int ruim_scherm = 1200;

const Breedten& breedten(const QWidget& venster) {
    const QScreen* scherm = venster.screen();
    return scherm && scherm->availableGeometry().width() < ruim_scherm ? krap : ruim;
}

constexpr QSize venstermaat(1240, 760);

constexpr int groen_ms = 500; // a re-read takes less than a frame: nobody would see it

constexpr int hele_klik = 120; // a notch of the wheel, in eighths of a degree

// The toolkit takes "[*]" in a caption as its mark for unsaved work.
QString venstertitel(std::string_view tekst) {
    return line_of_text(tekst).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

QRect pixelvlak(const Rechthoek& r) {
    return {pixels(r.links), pixels(r.boven), std::max(pixels(r.breedte), 0), std::max(pixels(r.hoogte), 0)};
}

Rechthoek twipsvlak(const QRect& r) { return {twips(r.x()), twips(r.y()), twips(r.width()), twips(r.height())}; }

QString genummerd(const QString& naam, std::size_t index) { return QStringLiteral("%1_%2").arg(naam).arg(index); }

QToolButton* maak_knop(QWidget* ouder, const QString& naam, const QString& toegankelijk, const QString& uitleg) {
    auto* knop = new QToolButton(ouder);
    knop->setObjectName(naam);
    knop->setAccessibleName(toegankelijk);
    knop->setToolTip(uitleg);
    knop->setAutoRaise(false);
    knop->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the number box
    knop->setIconSize(QSize(32, 32));
    return knop;
}

// A screen reader hears what the text is about as well.
void toon_tekst(QLabel& label, const QString& kop, std::string_view tekst) {
    label.setText(line_of_text(tekst));
    label.setAccessibleName(kop + QStringLiteral(": ") + label.text());
}

// Wider where the letter of the desktop asks for it.
void zet_maat(QToolButton& knop, int breedte) {
    knop.setFixedSize(std::max(breedte, knop.sizeHint().width()), paneelhoogte);
}

} // namespace

frmTavelo::frmTavelo(Bediening& bediening, TaveloOmgeving omgeving)
    : bediening_(bediening), programma_(bediening.programma), omgeving_(std::move(omgeving)) {
    setObjectName(QStringLiteral("frmTavelo"));
    setWindowIcon(icon(Picture::program));
    bouw_bediening();
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setInterval(auto_import_interval_ms);
    connect(&timer1_, &QTimer::timeout, this, &frmTavelo::tik);
    groen_.setObjectName(QStringLiteral("TimerGroen"));
    groen_.setSingleShot(true);
    groen_.setInterval(groen_ms);
    connect(&groen_, &QTimer::timeout, this, &frmTavelo::toon_omschrijving);
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
    paneel_ = new QWidget(vlak_);
    auto* rij = new QHBoxLayout(paneel_);
    rij->setContentsMargins(0, 0, 0, 0);
    rij->setSpacing(4);
    bouw_nummervak(*rij);
    bouw_bladerknoppen(*rij);
    rij->addStretch();
    bouw_slotknoppen(*rij);
    rij->addStretch();
    bouw_snelknoppen(*rij);

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
    });

    bouw_details();
    picDeelnemer_ = new VertoningWidget(bediening_.voorbeeld, vlak_);
    picDeelnemer_->setAccessibleName(QStringLiteral("Voorbeeld van de monitor"));
    picDeelnemer_->setToolTip(QStringLiteral("Voorbeeld van wat op de monitor staat"));
    zet_tabvolgorde();
}

void frmTavelo::bouw_nummervak(QHBoxLayout& rij) {
    auto* label = new QLabel(QStringLiteral("&Nummer:"), paneel_);
    label->setObjectName(QStringLiteral("lblNummer"));
    QFont letter = label->font();
    letter.setPointSizeF(letter.pointSizeF() * breedten(*this).nummerlabel);
    label->setFont(letter);
    txtINR_ = new QLineEdit(paneel_);
    txtINR_->setObjectName(QStringLiteral("txtINR"));
    txtINR_->setAccessibleName(QStringLiteral("Nummer van de combinatie in de ring"));
    txtINR_->setToolTip(QStringLiteral("Typ het nummer van de combinatie in de ring"));
    txtINR_->setAlignment(Qt::AlignCenter);
    QFont groot = txtINR_->font();
    groot.setPixelSize(48);
    groot.setBold(true);
    txtINR_->setFont(groot);
    txtINR_->setFixedSize(breedten(*this).nummervak, paneelhoogte);
    label->setBuddy(txtINR_);
    rij.addWidget(label);
    rij.addWidget(txtINR_);
    connect(txtINR_, &QLineEdit::textChanged, this, &frmTavelo::kies_nummer);
    connect(txtINR_, &QLineEdit::returnPressed, txtINR_, &QLineEdit::selectAll);
}

void frmTavelo::bouw_bladerknoppen(QHBoxLayout& rij) {
    struct Ontwerp {
        const char* tekst;
        const char* toegankelijk;
        const char* uitleg;
        Picture plaatje;
        Blader richting;
    };
    constexpr std::array<Ontwerp, 3> ontwerp = {{
        {"&Vorige", "Vorige combinatie", "Vorige combinatie (Alt+V)", Picture::previous, Blader::vorige},
        {"V&olgende", "Volgende combinatie", "Volgende combinatie (Alt+O)", Picture::next, Blader::volgende},
        {"&Wissen", "Nummer wissen", "Nummer en monitor wissen (Alt+W)", Picture::clear, Blader::wis},
    }};
    for (std::size_t i = 0; i < ontwerp.size(); ++i) {
        QToolButton* knop = maak_knop(paneel_, genummerd(QStringLiteral("btnBlader"), i),
                                      QString::fromUtf8(ontwerp[i].toegankelijk), QString::fromUtf8(ontwerp[i].uitleg));
        knop->setText(QString::fromUtf8(ontwerp[i].tekst));
        knop->setIcon(icon(ontwerp[i].plaatje));
        knop->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        zet_maat(*knop, breedten(*this).bladerknop);
        const Blader richting = ontwerp[i].richting;
        connect(knop, &QToolButton::clicked, this, [this, richting] { druk_blader(richting); });
        rij.addWidget(knop);
        btnBlader_[i] = knop;
    }
}

void frmTavelo::bouw_slotknoppen(QHBoxLayout& rij) {
    for (std::size_t i = 0; i < btnRooster_.size(); ++i) {
        const int slot = static_cast<int>(i);
        QToolButton* knop = maak_knop(paneel_, genummerd(QStringLiteral("btnRooster"), i),
                                      QStringLiteral("Rooster %1").arg(slot + 1), QString());
        knop->setText(QStringLiteral("Rooster &%1").arg(slot + 1));
        knop->setCheckable(true);
        zet_maat(*knop, breedten(*this).slotknop);
        knop->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(knop, &QToolButton::clicked, this, [this, slot] { druk_slot(slot, Muisknop::links); });
        connect(knop, &QToolButton::customContextMenuRequested, this,
                [this, slot] { druk_slot(slot, Muisknop::rechts); });
        rij.addWidget(knop);
        btnRooster_[i] = knop;
    }
}

void frmTavelo::bouw_snelknoppen(QHBoxLayout& rij) {
    const auto maak = [&](std::size_t i, Picture plaatje, const QString& naam, const QString& uitleg,
                          void (frmTavelo::*gedrukt)()) {
        QToolButton* knop = maak_knop(paneel_, genummerd(QStringLiteral("btnFast"), i), naam, uitleg);
        knop->setIcon(icon(plaatje));
        zet_maat(*knop, breedten(*this).snelknop);
        connect(knop, &QToolButton::clicked, this, gedrukt);
        rij.addWidget(knop);
        btnFast_[i] = knop;
    };
    maak(0, Picture::open, QStringLiteral("Rooster openen"), QStringLiteral("Rooster openen (Ctrl+O)"),
         &frmTavelo::open_bestand);
    maak(1, Picture::settings, QStringLiteral("Instellingen"), QStringLiteral("Instellingen"),
         &frmTavelo::toon_instellingen);
    maak(2, Picture::monitor, QStringLiteral("Monitorvenster"),
         QStringLiteral("Monitorvenster openen of sluiten (Alt+P)"), &frmTavelo::wissel_deelnemer);
}

void frmTavelo::bouw_details() {
    frameRoosterinstellingen_ = new QGroupBox(QStringLiteral("Rooster"), vlak_);
    frameRoosterinstellingen_->setObjectName(QStringLiteral("frameRoosterinstellingen"));
    struct Ontwerp {
        const char* naam;
        const char* kop;
        std::string RubriekLabels::*tekst;
    };
    constexpr std::array<Ontwerp, 6> ontwerp = {{
        {"lblRubriek", "Rubriek", &RubriekLabels::lblRubriek},
        {"lblRingType", "Ringtype", &RubriekLabels::lblRingType},
        {"lblRingNaam", "Ring", &RubriekLabels::lblRingNaam},
        {"lblDagTijd", "Dag en tijd", &RubriekLabels::lblDagTijd},
        {"lblRubriekLijsten", "Lijsten", &RubriekLabels::lblRubriekLijsten},
        {"lblJury", "Jury", &RubriekLabels::lblJury},
    }};
    const int regel = fontMetrics().height() + 3;
    const int boven = fontMetrics().height() + 6; // below the title of the frame
    int kopbreedte = 0;
    for (const Ontwerp& o : ontwerp)
        kopbreedte = std::max(kopbreedte, fontMetrics().horizontalAdvance(QString::fromUtf8(o.kop) + ':'));
    label_links_ = twips(marge + kopbreedte + marge);
    int y = boven;
    for (const Ontwerp& o : ontwerp) {
        auto* kop = new QLabel(QString::fromUtf8(o.kop) + ':', frameRoosterinstellingen_);
        kop->setForegroundRole(QPalette::PlaceholderText);
        kop->setGeometry(marge, y, kopbreedte, regel);
        auto* label = new ElidedLabel(frameRoosterinstellingen_);
        label->setObjectName(QString::fromUtf8(o.naam));
        label->setGeometry(pixels(label_links_), y, 100, regel);
        details_.push_back({label, QString::fromUtf8(o.kop), o.tekst});
        y += regel;
    }
    QFont vet = font();
    vet.setBold(true);
    details_.front().label->setFont(vet);
    frameRoosterinstellingen_->resize(100, y + 6);
}

void frmTavelo::zet_tabvolgorde() {
    QWidget* vorige = txtINR_;
    const auto daarna = [&](QWidget* volgende) {
        setTabOrder(vorige, volgende);
        vorige = volgende;
    };
    std::ranges::for_each(btnBlader_, daarna);
    std::ranges::for_each(btnRooster_, daarna);
    std::ranges::for_each(btnFast_, daarna);
    daarna(grdRooster_);
}

// The places before the resize rules move them.
void frmTavelo::ontwerp_plaatsen() {
    const int breedte = breedten(*this).grid;
    const int paneelbreedte = std::max(breedte, paneel_->sizeHint().width());
    const int kop = std::max(frameRoosterinstellingen_->height(), paneelhoogte + marge + fontMetrics().height() + 8);
    paneel_->setGeometry(marge, marge, paneelbreedte, paneelhoogte);
    const int omschrijving = marge + paneelhoogte + marge;
    lblRoosterOmschrijving_->setGeometry(marge, omschrijving, breedte, marge + kop - omschrijving);
    ontwerp_.grdRooster = twipsvlak({marge, marge + kop + marge, breedte, 100});
    ontwerp_.frameRoosterinstellingen = twipsvlak({marge + paneelbreedte + marge, marge, 100, kop});
    ontwerp_.picDeelnemer = twipsvlak({marge + breedte + marge, marge + kop + marge, 100, 100});
}

void frmTavelo::toon_intro() { omgeving_.toon_intro(); }

void frmTavelo::toon_venster() {
    ontwerp_plaatsen();
    if (const QScreen* scherm = screen()) {
        const QRect vrij = scherm->availableGeometry();
        resize(venstermaat.boundedTo(vrij.size() * 0.96));
        move(vrij.topLeft() + QPoint(marge, marge)); // leaves room for a participant window on the same screen
    }
    toon();
    show();
    txtINR_->setFocus();
    timer1_.start();
}

void frmTavelo::toon() {
    setWindowTitle(venstertitel(programma_.bijschrift));
    for (const Detail& detail : details_)
        toon_tekst(*detail.label, detail.kop, programma_.labels.*detail.tekst);
    toon_omschrijving();
    toon_slots();
    if (const QString tekst = qt_text(programma_.txtINR); txtINR_->text() != tekst) {
        const QScopedValueRollback schrijft(schrijft_, true);
        txtINR_->setText(tekst);
    }
    toon_vertoningen();
}

void frmTavelo::toon_vertoningen() {
    picDeelnemer_->ververs();
    if (deelnemer_) deelnemer_->ververs();
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

void frmTavelo::toon_slots() {
    for (std::size_t i = 0; i < btnRooster_.size(); ++i) {
        const std::string& bestand = programma_.slots[i].bestand;
        btnRooster_[i]->setChecked(programma_.rooster_slot == static_cast<int>(i));
        btnRooster_[i]->setToolTip(bestand.empty() ? QStringLiteral("Nog geen bestand: klik om te openen")
                                                   : plain_tooltip(qt_text(bestand)));
    }
}

void frmTavelo::kies_nummer(const QString& tekst) {
    if (schrijft_) return;
    typ_txtINR(bediening_, utf8(tekst));
    if (programma_.huidige_regel >= 1) grdRooster_->breng_in_beeld();
    toon();
}

void frmTavelo::druk_blader(Blader richting) {
    blader(bediening_, richting);
    if (programma_.huidige_regel >= 1) grdRooster_->breng_in_beeld();
    toon();
    if (richting == Blader::wis) txtINR_->setFocus();
}

void frmTavelo::druk_slot(int slot, Muisknop knop) {
    // The toolkit pressed the button that was clicked; the other one comes up before the file is read.
    for (std::size_t i = 0; i < btnRooster_.size(); ++i)
        btnRooster_[i]->setChecked(slot == static_cast<int>(i));
    klik_slot(bediening_, slot, knop);
    toon();
}

void frmTavelo::open_bestand() {
    open_rooster(bediening_, "", programma_.rooster_slot);
    toon();
}

void frmTavelo::toon_instellingen() {
    omgeving_.instellingen(*this);
    toon();
}

void frmTavelo::wissel_deelnemer() {
    if (programma_.deelnemer_open) {
        if (deelnemer_) deelnemer_->close();
        return;
    }
    deelnemer_ = new frmDeelnemer(
        programma_, bediening_.deelnemer_venster, [this] { toon_deelnemer_venster(bediening_); }, *this, *txtINR_);
    deelnemer_->open();
}

void frmTavelo::tik() {
    // A dialog may be open meanwhile, but not the middle of a read: a message of its reader waits for an answer.
    if (tikt_ || !programma_.grdRooster.redraw()) return;
    const QScopedValueRollback bezig(tikt_, true);
    const std::string stempel = programma_.rooster_tijdstempel;
    auto_import(bediening_, [this] {
        if (programma_.herlezen_bezig) groen_.start();
        toon_omschrijving();
        lblRoosterOmschrijving_->repaint();
    });
    if (programma_.rooster_tijdstempel != stempel) toon();
}

void frmTavelo::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (ontwerp_.grdRooster.breedte == 0) return; // not laid out yet
    const QSize binnen = vlak_->size();
    const Plaatsen plaatsen = deel_in({twips(binnen.width()), twips(binnen.height())}, ontwerp_, label_links_);
    grdRooster_->setGeometry(pixelvlak(plaatsen.grdRooster));
    picDeelnemer_->setGeometry(pixelvlak(plaatsen.picDeelnemer));
    frameRoosterinstellingen_->setGeometry(pixelvlak(plaatsen.frameRoosterinstellingen));
    for (const Detail& detail : details_)
        detail.label->resize(std::max(pixels(plaatsen.labelbreedte), 0), detail.label->height());
    picDeelnemer_->neem_maat();
    toon_voorbeeld(bediening_);
    picDeelnemer_->ververs();
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
    // Most window managers take this key themselves.
    if (event->key() == Qt::Key_F4 && toetsen == Qt::AltModifier) {
        close();
        return;
    }
    // A digit typed anywhere in the window begins the next number.
    const QString tekst = event->text();
    if (!toetsen && tekst.size() == 1 && tekst[0] >= '0' && tekst[0] <= '9') {
        txtINR_->setFocus();
        txtINR_->setText(tekst);
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void frmTavelo::closeEvent(QCloseEvent* event) {
    event->accept();
    if (std::exchange(afgesloten_, true)) return;
    timer1_.stop();
    sluit_af(programma_, omgeving_.opslag, bediening_.omgeving.muisaanwijzer, *this);
}

void frmTavelo::sluit_andere_vensters() {
    for (QWidget* venster : QApplication::topLevelWidgets())
        if (venster->objectName() != objectName() && venster->isVisible()) venster->close();
}

void frmTavelo::muiswiel_hook() { qApp->installEventFilter(this); }

void frmTavelo::muiswiel_unhook() { qApp->removeEventFilter(this); }

bool frmTavelo::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) { // chooses the slot and reads nothing: it is meant so
        const auto knop = static_cast<const QMouseEvent&>(*event).button();
        const auto slot = std::ranges::find(btnRooster_, receiver);
        if (slot != btnRooster_.end() && knop != Qt::LeftButton && knop != Qt::RightButton)
            druk_slot(static_cast<int>(slot - btnRooster_.begin()), Muisknop::anders);
    }
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
                               doel(*txtINR_, Besturing::invoer)};
    const QPoint punt = gebeurtenis.globalPosition().toPoint();
    const std::optional<std::size_t> gekozen = wiel_doel(doelen, punt.x(), punt.y());
    if (!gekozen) return;
    switch (doelen[*gekozen].soort) {
    case Besturing::grid:
        grid_muiswiel(programma_.grdRooster, rotatie, grdRooster_->top_laatste_rij(), twips(grdRooster_->height()));
        break;
    case Besturing::invoer:
        if (txtINR_->isEnabled()) txtINR_->setFocus();
        break;
    case Besturing::afbeelding:
    case Besturing::lijst:
    case Besturing::anders:
        break;
    }
}

} // namespace tavelo
