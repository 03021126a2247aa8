#include "ui/main/frmPaneel.h"

#include "platform/elided_label.h"
#include "platform/icons.h"
#include "platform/qt_text.h"
#include "ui/main/statusregel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

// In device-independent pixels; a button is wider where the letter of the desktop asks for it.
struct Breedten {
    int nummervak;
    int bladerknop;
    int slotknop;
    int snelknop;
    int plaatje;
    double nummerlabel; // its letter, relative to that of the desktop
};
constexpr Breedten een_rij{140, 70, 78, 48, 32, 1.3};
constexpr Breedten twee_rijen_breed{110, 60, 60, 36, 20, 1};
constexpr int tussen = 4;

QString genummerd(const QString& naam, std::size_t index) { return QStringLiteral("%1_%2").arg(naam).arg(index); }

QToolButton* maak_knop(QWidget* ouder, const QString& naam, const QString& toegankelijk, const QString& uitleg) {
    auto* knop = new QToolButton(ouder);
    knop->setObjectName(naam);
    knop->setAccessibleName(toegankelijk);
    knop->setToolTip(uitleg);
    knop->setAutoRaise(false);
    knop->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the number box
    return knop;
}

} // namespace

Paneel::Paneel(const Grid& rooster, PaneelActies acties, QWidget* ouder) : QWidget(ouder), acties_(std::move(acties)) {
    bouw_nummervak(rooster);
    bouw_bladerknoppen();
    bouw_slotknoppen();
    bouw_snelknoppen();
    zet_ruimte(Ruimte::ruim);
}

void Paneel::zet_maten(bool twee_rijen) {
    const Breedten& maten = twee_rijen ? twee_rijen_breed : een_rij;
    const int hoogte = twee_rijen ? (paneelhoogte - tussen) / 2 : paneelhoogte;
    QFont letter = font();
    letter.setPointSizeF(letter.pointSizeF() * maten.nummerlabel);
    lblNummer_->setFont(letter);
    txtINR_->setFixedSize(maten.nummervak, paneelhoogte);
    const auto zet_knop = [&](QToolButton* knop, int breedte) {
        knop->setIconSize(QSize(maten.plaatje, maten.plaatje));
        knop->setFixedSize(std::max(breedte, knop->sizeHint().width()), hoogte);
    };
    for (QToolButton* knop : btnBlader_) {
        knop->setToolButtonStyle(twee_rijen ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextUnderIcon);
        zet_knop(knop, maten.bladerknop);
    }
    for (QToolButton* knop : btnRooster_)
        zet_knop(knop, maten.slotknop);
    for (QToolButton* knop : btnFast_)
        zet_knop(knop, maten.snelknop);
}

void Paneel::zet_ruimte(Ruimte ruimte) {
    const bool twee_rijen = ruimte != Ruimte::ruim;
    zet_maten(twee_rijen);
    delete layout();
    auto* rij = new QHBoxLayout(this);
    rij->setContentsMargins(0, 0, 0, 0);
    rij->setSpacing(tussen);
    rij->addWidget(lblNummer_);
    rij->addWidget(txtINR_);
    const auto voeg_toe = [](QBoxLayout& aan, const auto& knoppen) {
        for (QToolButton* knop : knoppen)
            aan.addWidget(knop);
    };
    if (!twee_rijen) {
        voeg_toe(*rij, btnBlader_);
        rij->addStretch();
        voeg_toe(*rij, btnRooster_);
        rij->addStretch();
        voeg_toe(*rij, btnFast_);
        breedte_in_een_rij_ = rij->sizeHint().width();
        return;
    }
    auto* rijen = new QVBoxLayout;
    auto* onder = new QHBoxLayout;
    auto* boven = new QHBoxLayout;
    for (QHBoxLayout* een : {boven, onder}) {
        een->setSpacing(tussen);
        rijen->addLayout(een);
    }
    rijen->setSpacing(tussen);
    voeg_toe(*boven, btnBlader_);
    boven->addStretch();
    voeg_toe(*onder, btnRooster_);
    onder->addStretch();
    voeg_toe(*onder, btnFast_);
    rij->addLayout(rijen);
}

void Paneel::bouw_nummervak(const Grid& rooster) {
    lblNummer_ = new QLabel(QStringLiteral("&Nummer:"), this);
    lblNummer_->setObjectName(QStringLiteral("lblNummer"));
    txtINR_ = new Nummervak(
        rooster, [this](Blader richting) { acties_.blader(richting); }, this);
    txtINR_->setAccessibleName(QStringLiteral("Nummer van de combinatie in de ring"));
    txtINR_->setToolTip(QStringLiteral("Typ het nummer van de combinatie in de ring (F1: de handleiding)"));
    txtINR_->setAlignment(Qt::AlignCenter);
    QFont groot = txtINR_->font();
    groot.setPixelSize(48);
    groot.setBold(true);
    txtINR_->setFont(groot);
    lblNummer_->setBuddy(txtINR_);
    connect(txtINR_, &QLineEdit::textChanged, this, [this](const QString& tekst) {
        if (!schrijft_) acties_.typ_nummer(tekst);
    });
}

void Paneel::bouw_bladerknoppen() {
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
        QToolButton* knop = maak_knop(this, genummerd(QStringLiteral("btnBlader"), i),
                                      QString::fromUtf8(ontwerp[i].toegankelijk), QString::fromUtf8(ontwerp[i].uitleg));
        knop->setText(QString::fromUtf8(ontwerp[i].tekst));
        knop->setIcon(icon(ontwerp[i].plaatje));
        const Blader richting = ontwerp[i].richting;
        connect(knop, &QToolButton::clicked, this, [this, richting] { acties_.blader(richting); });
        btnBlader_[i] = knop;
    }
}

void Paneel::bouw_slotknoppen() {
    for (std::size_t i = 0; i < btnRooster_.size(); ++i) {
        const int slot = static_cast<int>(i);
        QToolButton* knop = maak_knop(this, genummerd(QStringLiteral("btnRooster"), i),
                                      QStringLiteral("Rooster %1").arg(slot + 1), QString());
        knop->setText(QStringLiteral("Rooster &%1").arg(slot + 1));
        knop->setCheckable(true);
        knop->setContextMenuPolicy(Qt::CustomContextMenu);
        knop->installEventFilter(this); // for the buttons of the mouse that the toolkit does not tell about
        connect(knop, &QToolButton::clicked, this, [this, slot] { acties_.slot(slot, Muisknop::links); });
        connect(knop, &QToolButton::customContextMenuRequested, this,
                [this, slot] { acties_.slot(slot, Muisknop::rechts); });
        btnRooster_[i] = knop;
    }
}

void Paneel::bouw_snelknoppen() {
    const auto maak = [&](std::size_t i, Picture plaatje, const QString& naam, const QString& uitleg,
                          std::function<void()> PaneelActies::*actie) {
        QToolButton* knop = maak_knop(this, genummerd(QStringLiteral("btnFast"), i), naam, uitleg);
        knop->setIcon(icon(plaatje));
        connect(knop, &QToolButton::clicked, this, [this, actie] { (acties_.*actie)(); });
        btnFast_[i] = knop;
    };
    maak(0, Picture::open, QStringLiteral("Rooster openen"), QStringLiteral("Rooster openen (Ctrl+O)"),
         &PaneelActies::openen);
    maak(1, Picture::settings, QStringLiteral("Instellingen"), QStringLiteral("Instellingen"),
         &PaneelActies::instellingen);
    maak(2, Picture::monitor, QStringLiteral("Monitorvenster"),
         QStringLiteral("Monitorvenster openen of sluiten (Alt+P)"), &PaneelActies::monitorvenster);
    btnFast_[2]->setCheckable(true); // down while the participant window is open
}

bool Paneel::eventFilter(QObject* knop, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) { // chooses the slot and reads nothing: it is meant so
        const auto muisknop = static_cast<const QMouseEvent&>(*event).button();
        const auto gevonden = std::ranges::find(btnRooster_, knop);
        if (gevonden != btnRooster_.end() && muisknop != Qt::LeftButton && muisknop != Qt::RightButton)
            acties_.slot(static_cast<int>(gevonden - btnRooster_.begin()), Muisknop::anders);
    }
    return QWidget::eventFilter(knop, event);
}

void Paneel::toon(const Programma& programma) {
    toon_gekozen_slot(programma.rooster_slot);
    for (std::size_t i = 0; i < btnRooster_.size(); ++i) {
        const std::string& bestand = programma.slots[i].bestand;
        btnRooster_[i]->setToolTip(bestand.empty() ? QStringLiteral("Nog geen bestand: klik om te openen")
                                                   : plain_tooltip(qt_text(bestand)));
        btnRooster_[i]->setAccessibleDescription(bestand.empty() ? QString() : qt_text(bestand));
    }
    if (const QString tekst = qt_text(programma.txtINR); txtINR_->text() != tekst) {
        const QScopedValueRollback schrijft(schrijft_, true);
        txtINR_->setText(tekst);
    }
    toon_nummer_onbekend(nummer_onbekend(programma));
    btnFast_[2]->setChecked(programma.deelnemer_open);
}

// In colour, and in words for a screen reader.
void Paneel::toon_nummer_onbekend(bool onbekend) {
    constexpr std::int32_t lichtrood = 0xCFCFFF;
    constexpr std::int32_t donkerrood = 0x00007A;
    QPalette kleuren = palette();
    if (onbekend) {
        kleuren.setColor(QPalette::Base, qt_colour(lichtrood));
        kleuren.setColor(QPalette::Text, qt_colour(donkerrood));
    }
    txtINR_->setPalette(kleuren);
    txtINR_->setAccessibleDescription(onbekend ? QStringLiteral("Dit nummer staat niet in de lijst") : QString());
}

void Paneel::toon_gekozen_slot(int slot) {
    for (std::size_t i = 0; i < btnRooster_.size(); ++i)
        btnRooster_[i]->setChecked(slot == static_cast<int>(i));
}

void Paneel::zet_tabvolgorde(QWidget* daarna) {
    QWidget* vorige = txtINR_;
    const auto volgt = [&](QWidget* volgende) {
        setTabOrder(vorige, volgende);
        vorige = volgende;
    };
    std::ranges::for_each(btnBlader_, volgt);
    std::ranges::for_each(btnRooster_, volgt);
    std::ranges::for_each(btnFast_, volgt);
    volgt(daarna);
}

} // namespace tavelo
