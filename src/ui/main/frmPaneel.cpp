#include "ui/main/frmPaneel.h"

#include "platform/elided_label.h"
#include "platform/icons.h"
#include "platform/qt_text.h"
#include "ui/main/statusregel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

constexpr Breedten ruim{784, 140, 70, 78, 48, 1.3};
constexpr Breedten krap{570, 110, 60, 66, 40, 1};
constexpr int ruim_scherm = 1200;

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

// Wider where the letter of the desktop asks for it.
void zet_maat(QToolButton& knop, int breedte) {
    knop.setFixedSize(std::max(breedte, knop.sizeHint().width()), paneelhoogte);
}

} // namespace

const Breedten& breedten(const QWidget& venster) {
    const QScreen* scherm = venster.screen();
    return scherm && scherm->availableGeometry().width() < ruim_scherm ? krap : ruim;
}

Paneel::Paneel(const Grid& rooster, PaneelActies acties, QWidget* ouder) : QWidget(ouder), acties_(std::move(acties)) {
    auto* rij = new QHBoxLayout(this);
    rij->setContentsMargins(0, 0, 0, 0);
    rij->setSpacing(4);
    bouw_nummervak(rooster, *rij);
    bouw_bladerknoppen(*rij);
    rij->addStretch();
    bouw_slotknoppen(*rij);
    rij->addStretch();
    bouw_snelknoppen(*rij);
}

void Paneel::bouw_nummervak(const Grid& rooster, QHBoxLayout& rij) {
    auto* label = new QLabel(QStringLiteral("&Nummer:"), this);
    label->setObjectName(QStringLiteral("lblNummer"));
    QFont letter = label->font();
    letter.setPointSizeF(letter.pointSizeF() * breedten(*this).nummerlabel);
    label->setFont(letter);
    txtINR_ = new Nummervak(
        rooster, [this](Blader richting) { acties_.blader(richting); }, this);
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
    connect(txtINR_, &QLineEdit::textChanged, this, [this](const QString& tekst) {
        if (!schrijft_) acties_.typ_nummer(tekst);
    });
}

void Paneel::bouw_bladerknoppen(QHBoxLayout& rij) {
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
        knop->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        zet_maat(*knop, breedten(*this).bladerknop);
        const Blader richting = ontwerp[i].richting;
        connect(knop, &QToolButton::clicked, this, [this, richting] { acties_.blader(richting); });
        rij.addWidget(knop);
        btnBlader_[i] = knop;
    }
}

void Paneel::bouw_slotknoppen(QHBoxLayout& rij) {
    for (std::size_t i = 0; i < btnRooster_.size(); ++i) {
        const int slot = static_cast<int>(i);
        QToolButton* knop = maak_knop(this, genummerd(QStringLiteral("btnRooster"), i),
                                      QStringLiteral("Rooster %1").arg(slot + 1), QString());
        knop->setText(QStringLiteral("Rooster &%1").arg(slot + 1));
        knop->setCheckable(true);
        zet_maat(*knop, breedten(*this).slotknop);
        knop->setContextMenuPolicy(Qt::CustomContextMenu);
        knop->installEventFilter(this); // for the buttons of the mouse that the toolkit does not tell about
        connect(knop, &QToolButton::clicked, this, [this, slot] { acties_.slot(slot, Muisknop::links); });
        connect(knop, &QToolButton::customContextMenuRequested, this,
                [this, slot] { acties_.slot(slot, Muisknop::rechts); });
        rij.addWidget(knop);
        btnRooster_[i] = knop;
    }
}

void Paneel::bouw_snelknoppen(QHBoxLayout& rij) {
    const auto maak = [&](std::size_t i, Picture plaatje, const QString& naam, const QString& uitleg,
                          std::function<void()> PaneelActies::*actie) {
        QToolButton* knop = maak_knop(this, genummerd(QStringLiteral("btnFast"), i), naam, uitleg);
        knop->setIcon(icon(plaatje));
        zet_maat(*knop, breedten(*this).snelknop);
        connect(knop, &QToolButton::clicked, this, [this, actie] { (acties_.*actie)(); });
        rij.addWidget(knop);
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
