#include "ui/settings/frmInstellingen.h"

#include "platform/codeWindowPos.h"
#include "platform/elided_label.h"
#include "platform/qt_text.h"
#include "ui/settings/frmInstellingen_besturing.h"
#include "ui/settings/plaats_dialoog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <utility>

namespace tavelo {

namespace {

// In pixels.
constexpr int groepsafstand = 12;
constexpr int regelafstand = 10;
constexpr int balklengte = 150;
constexpr int balkhoogte = 20;
constexpr int inhoudbreedte = 110;

// A page of the dialog. It scrolls on a screen that is too small for it.
class Bladzijde : public QScrollArea {
  public:
    explicit Bladzijde(QWidget* inhoud) {
        setWidget(inhoud);
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        inhoud->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

// The wheel turns a control only while it has the focus, so that scrolling past it changes nothing on the monitor.
class WielMetFocus : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() != QEvent::Wheel || !widget || widget->hasFocus()) return false;
        event->ignore();
        return true;
    }
};

[[nodiscard]] QLabel* label_bij(QWidget* besturing, const QString& tekst) {
    auto* label = new QLabel(tekst);
    label->setBuddy(besturing);
    return label;
}

// What stands on this computer, in the order in which the system lists it.
[[nodiscard]] QStringList lettertypen() {
    QStringList namen = QFontDatabase::families();
    namen.removeIf([](const QString& naam) { return QFontDatabase::isPrivateFamily(naam); });
    return namen;
}

[[nodiscard]] Getoond getoond(const std::optional<std::int32_t>& getal) { return getal ? Getoond(*getal) : Getoond(); }
[[nodiscard]] Getoond getoond(const std::optional<std::string>& tekst) { return tekst ? Getoond(*tekst) : Getoond(); }

template <class T>
[[nodiscard]] std::optional<T> waarde(const Getoond& inhoud) {
    const T* gevonden = std::get_if<T>(&inhoud);
    return gevonden ? std::optional(*gevonden) : std::nullopt;
}

} // namespace

frmInstellingen::frmInstellingen(Bediening& bediening, ColourDialog& kleurendialoog, std::function<void()> vertoond,
                                 QWidget* parent)
    : QDialog(parent),
      bediening_(bediening),
      kleurendialoog_(kleurendialoog),
      vertoond_(std::move(vertoond)),
      dialoog_(bediening) {
    setObjectName("frmInstellingen");
    setWindowTitle("Instellingen");
    blijf_bereikbaar(*this);

    auto* bladen = new QTabWidget;
    bladen->setObjectName("tabInstellingen");
    bladen->setAccessibleName("Instellingen");
    bladen->addTab(new Bladzijde(maak_weergave()), "&Weergave");
    bladen->addTab(new Bladzijde(maak_excel()), "E&xcel");

    auto* knoppen = new QDialogButtonBox;
    QPushButton* ok = knoppen->addButton("OK", QDialogButtonBox::AcceptRole);
    ok->setObjectName("btnOK");
    QPushButton* annuleren = knoppen->addButton("Annuleren", QDialogButtonBox::RejectRole);
    annuleren->setObjectName("btnCancel");
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(annuleren, &QPushButton::clicked, this, &QDialog::reject);

    // In this order: it is also that of the Tab key.
    auto* indeling = new QVBoxLayout(this);
    indeling->addWidget(bladen);
    indeling->addWidget(knoppen);
    ok->setDefault(true); // only now: the dialog must know its default button to go back to it

    laad();
    ga_naast_voorbeeld();
}

frmInstellingen::~frmInstellingen() {
    // Not repainted: the windows may be going too.
    if (!gesloten_) dialoog_.sluit();
}

void frmInstellingen::done(int uitkomst) {
    if (!gesloten_) {
        gesloten_ = true;
        if (uitkomst == Accepted) dialoog_.ok();
        dialoog_.sluit();
        vertoond_();
    }
    QDialog::done(uitkomst);
}

void frmInstellingen::laad() {
    std::vector<std::string> namen;
    for (const QString& naam : lettertypen())
        namen.push_back(utf8(naam));
    const DialoogInhoud inhoud = inhoud_van(bediening_.programma.instellingen, namen);
    for (std::size_t i = 0; i < inhoud.size(); ++i)
        toegang_[i].toon(inhoud[i]);
    laden_ = false;
}

void frmInstellingen::ververs() {
    // While the controls are being filled they would write half-filled settings back.
    if (laden_) return;
    DialoogInhoud inhoud;
    for (std::size_t i = 0; i < inhoud.size(); ++i)
        inhoud[i] = toegang_[i].lees();
    dialoog_.ververs_voorbeeld(inhoud);
    vertoond_();
}

void frmInstellingen::kies_kleur(KleurKnop& knop) {
    constexpr std::int32_t wit = 0xFFFFFF;
    const std::optional<std::int32_t> gekozen = kleurendialoog_.ask(knop.kleur().value_or(wit));
    if (!gekozen) return;
    knop.zet_kleur(gekozen);
    ververs();
}

frmInstellingen::Toegang& frmInstellingen::toegang(const QString& naam) {
    return toegang_.at(besturing_index(utf8(naam)));
}

QWidget* frmInstellingen::maak_weergave() {
    auto* blad = new QWidget;
    auto* indeling = new QVBoxLayout(blad);
    indeling->setSpacing(groepsafstand);

    auto* lettertype = new QHBoxLayout;
    QWidget* lijst = maak_lettertype();
    lettertype->addWidget(label_bij(lijst, "&Lettertype:"));
    lettertype->addWidget(lijst, 1);
    indeling->addLayout(lettertype);

    auto* vlakken = new QHBoxLayout;
    vlakken->setSpacing(groepsafstand);
    vlakken->addWidget(maak_vlak({.titel = "Rubriek",
                                  .achtergrond = {2, "A&chtergrond:"},
                                  .tekst = {3, "&Tekst:"},
                                  .grootte = {"HScrollRubriekTekstGrootte", "Tekst&grootte:"},
                                  .grootte_waarde = "lblRubriekTekstGrootte",
                                  .uitlijning = {"optRubriekUitlijning", "&Uitlijning"}}));
    vlakken->addWidget(maak_vlak({.titel = "Deelnemer",
                                  .achtergrond = {0, "Ac&htergrond:"},
                                  .tekst = {1, "Tek&st:"},
                                  .grootte = {"HScrollDeelnemerTekstGrootte", "Tekstgr&ootte:"},
                                  .grootte_waarde = "lblDeelnemerTekstGrootte",
                                  .uitlijning = {"optDeelnemerUitlijning", "U&itlijning"}}));
    indeling->addLayout(vlakken);
    indeling->addWidget(maak_gegevens());
    indeling->addStretch();
    return blad;
}

QWidget* frmInstellingen::maak_vlak(const Vlak& vlak) {
    auto* groep = new QGroupBox(vlak.titel);
    auto* raster = new QGridLayout(groep);
    raster->setSpacing(regelafstand);
    raster->setColumnStretch(1, 1);

    auto* kleuren = new QHBoxLayout;
    QWidget* achtergrond = maak_kleur(vlak.achtergrond.index, "Achtergrondkleur " + vlak.titel.toLower());
    kleuren->addWidget(achtergrond);
    kleuren->addStretch();
    QWidget* tekst = maak_kleur(vlak.tekst.index, "Tekstkleur " + vlak.titel.toLower());
    kleuren->addWidget(label_bij(tekst, vlak.tekst.tekst));
    kleuren->addWidget(tekst);
    raster->addWidget(label_bij(achtergrond, vlak.achtergrond.tekst), 0, 0);
    raster->addLayout(kleuren, 0, 1);

    auto* waarde = new QLabel;
    waarde->setObjectName(vlak.grootte_waarde);
    waarde->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    waarde->setMinimumWidth(waarde->fontMetrics().horizontalAdvance(QString::number(grootste_tekstgrootte)));
    QScrollBar* balk = maak_grootte(vlak.grootte.naam, *waarde);
    balk->setAccessibleName("Tekstgrootte " + vlak.titel.toLower() + " in procent");
    auto* grootte = new QHBoxLayout;
    grootte->addWidget(balk, 1);
    grootte->addWidget(waarde);
    grootte->addWidget(new QLabel("%"));
    raster->addWidget(label_bij(balk, vlak.grootte.tekst), 1, 0);
    raster->addLayout(grootte, 1, 1);

    raster->addWidget(
        maak_keuze(vlak.uitlijning.naam, vlak.uitlijning.tekst, Qt::Horizontal, {"Links", "Midden", "Rechts"}), 3, 0, 1,
        2);
    return groep;
}

QWidget* frmInstellingen::maak_gegevens() {
    auto* groep = new QGroupBox("Op de monitor");
    auto* indeling = new QHBoxLayout(groep);
    indeling->setSpacing(groepsafstand);
    indeling->addWidget(
        maak_keuze("optNummer", "&Nummer", Qt::Vertical, {"Geen", "Startnummer of -tijd", "Hoofdstelnummer"}));

    auto* raster = new QGridLayout;
    const std::array<std::vector<QWidget*>, 3> kolommen = {{
        {maak_vinkje("chkRubriek", "&Rubriek"), maak_vinkje("chkRuiterNaam", "Naa&m van de ruiter"),
         maak_vinkje("chkDierNaam", "Naam van &paard of pony"), maak_vinkje("chkDierVader", "Va&der")},
        {maak_vinkje("chkDierVaderMoeder", "&Vader van de moeder"), maak_vinkje("chkDierKleur", "&Kleur"),
         maak_vinkje("chkDierGeslacht", "Gesl&acht"), maak_vinkje("chkDierLeeftijd", "Leefti&jd")},
        {maak_vinkje("chkDierStamboek", "Stam&boek"), maak_vinkje("chkDierFokker", "&Fokker"),
         maak_vinkje("chkVerenigingNaam", "V&ereniging")},
    }};
    for (std::size_t kolom = 0; kolom < kolommen.size(); ++kolom)
        for (std::size_t rij = 0; rij < kolommen[kolom].size(); ++rij)
            raster->addWidget(kolommen[kolom][rij], static_cast<int>(rij), static_cast<int>(kolom));
    raster->setHorizontalSpacing(groepsafstand * 2);
    indeling->addLayout(raster, 1);
    return groep;
}

QWidget* frmInstellingen::maak_excel() {
    auto* blad = new QWidget;
    auto* indeling = new QVBoxLayout(blad);
    indeling->setSpacing(groepsafstand);
    indeling->addWidget(maak_vinkje("chkVeldnamen", "&Er is een veldnamenrij"));

    auto* groep = new QGroupBox("Kolom in het werkblad");
    auto* raster = new QGridLayout(groep);
    constexpr std::array velden = {"&Startnummer-tijd", "&Hoofdstelnummer",   "&Ruiter Naam", "Dier &Naam",
                                   "Dier &Vader",       "Dier Vader &Moeder", "Dier &Kleur",  "Dier &Geslacht",
                                   "Dier &Leeftijd",    "Dier Stam&boek",     "Dier &Fokker", "Veren&iging Naam"};
    raster->setSpacing(regelafstand);
    constexpr int rijen = 6;
    for (int i = 0; i < static_cast<int>(velden.size()); ++i) {
        const QString veld = velden[static_cast<std::size_t>(i)];
        auto* inhoud = new ElidedLabel;
        QWidget* lijst = maak_kolom(i, QString(veld).remove('&'), *inhoud);
        const int kolom = i / rijen * 3;
        raster->addWidget(label_bij(lijst, veld + ":"), i % rijen, kolom);
        raster->addWidget(lijst, i % rijen, kolom + 1);
        raster->addWidget(inhoud, i % rijen, kolom + 2);
    }
    raster->setColumnStretch(2, 1);
    raster->setColumnStretch(5, 1);
    indeling->addWidget(groep);
    indeling->addWidget(new QLabel("Een lege lijst betekent dat het veld niet in het werkblad staat."));
    indeling->addStretch();
    return blad;
}

QWidget* frmInstellingen::maak_lettertype() {
    auto* lijst = new QComboBox;
    lijst->setObjectName("CmbFontName");
    lijst->setAccessibleName("Lettertype");
    lijst->addItems(lettertypen());
    lijst->setItemDelegate(new LettertypeTekenaar(lijst));
    // A list below the box: a menu over the whole screen would cover the preview.
    lijst->setStyleSheet("QComboBox { combobox-popup: 0; }");
    lijst->setMaxVisibleItems(15);
    if (auto* view = qobject_cast<QListView*>(lijst->view())) view->setUniformItemSizes(true);
    // A name that is not on this computer is a hint; in the toolkit's grey the box would seem to be disabled.
    QPalette kleuren = lijst->palette();
    kleuren.setColor(QPalette::PlaceholderText, kleuren.color(QPalette::ButtonText));
    lijst->setPalette(kleuren);
    lijst->installEventFilter(new WielMetFocus(lijst));
    toegang("CmbFontName") = {[this, lijst](const Getoond& inhoud) {
                                  const auto naam = waarde<std::string>(inhoud);
                                  lijst->setCurrentIndex(naam ? lijst->findText(qt_text(*naam)) : -1);
                                  lijst->setPlaceholderText(qt_text(bediening_.programma.instellingen.fontname));
                              },
                              [lijst]() -> Getoond {
                                  if (lijst->currentIndex() < 0) return {};
                                  return utf8(lijst->currentText());
                              }};
    connect(lijst, &QComboBox::currentIndexChanged, this, &frmInstellingen::ververs);
    return lijst;
}

QWidget* frmInstellingen::maak_kleur(int index, const QString& omschrijving) {
    auto* knop = new KleurKnop;
    knop->setObjectName(QString("btnKleur_%1").arg(index));
    knop->setAccessibleName(omschrijving);
    knop->setToolTip(omschrijving);
    toegang(knop->objectName()) = {[knop](const Getoond& inhoud) { knop->zet_kleur(waarde<std::int32_t>(inhoud)); },
                                   [knop] { return getoond(knop->kleur()); }};
    connect(knop, &QPushButton::clicked, this, [this, knop] { kies_kleur(*knop); });
    return knop;
}

QScrollBar* frmInstellingen::maak_grootte(const char* naam, QLabel& waarde_label) {
    auto* balk = new GrootteBalk;
    balk->setObjectName(naam);
    balk->setMinimumSize(balklengte, balkhoogte);
    balk->installEventFilter(new WielMetFocus(balk));
    waarde_label.setNum(begin_tekstgrootte);
    toegang(naam) = {[balk](const Getoond& inhoud) { balk->setValue(waarde<std::int32_t>(inhoud).value()); },
                     [balk]() -> Getoond { return balk->value(); }};
    connect(balk, &QScrollBar::valueChanged, this, [this, label = &waarde_label](int grootte) {
        label->setNum(grootte);
        ververs();
    });
    return balk;
}

QGroupBox* frmInstellingen::maak_keuze(const char* naam, const QString& titel, Qt::Orientation richting,
                                       std::initializer_list<QString> teksten) {
    auto* groep = new QGroupBox(titel);
    auto* indeling =
        new QBoxLayout(richting == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, groep);
    auto* knoppen = new QButtonGroup(groep);
    for (const QString& tekst : teksten) {
        auto* optie = new QRadioButton(tekst);
        const int index = static_cast<int>(knoppen->buttons().size());
        optie->setObjectName(QString("%1_%2").arg(naam).arg(index));
        knoppen->addButton(optie, index);
        indeling->addWidget(optie);
    }
    if (richting == Qt::Vertical) indeling->addStretch();
    toegang(naam) = {[knoppen](const Getoond& inhoud) {
                         if (const auto index = waarde<std::int32_t>(inhoud)) knoppen->button(*index)->setChecked(true);
                     },
                     [knoppen]() -> Getoond {
                         if (knoppen->checkedId() < 0) return {};
                         return knoppen->checkedId();
                     }};
    connect(knoppen, &QButtonGroup::idToggled, this, [this](int /*index*/, bool gekozen) {
        if (gekozen) ververs();
    });
    return groep;
}

QWidget* frmInstellingen::maak_vinkje(const char* naam, const QString& tekst) {
    auto* vakje = new QCheckBox(tekst);
    vakje->setObjectName(naam);
    // Half on is how a value that is neither on nor off looks; the first click sets it on, and then there is no way
    // back.
    toegang(naam) = {[vakje](const Getoond& inhoud) {
                         const auto aan = waarde<std::int32_t>(inhoud);
                         vakje->setCheckState(!aan ? Qt::PartiallyChecked : *aan ? Qt::Checked : Qt::Unchecked);
                     },
                     [vakje]() -> Getoond {
                         if (vakje->checkState() == Qt::PartiallyChecked) return {};
                         return vakje->isChecked() ? 1 : 0;
                     }};
    connect(vakje, &QCheckBox::stateChanged, this, [this, vakje](int stand) {
        if (stand != Qt::PartiallyChecked) vakje->setTristate(false);
        ververs();
    });
    return vakje;
}

QWidget* frmInstellingen::maak_kolom(int index, const QString& veld, ElidedLabel& inhoud) {
    auto* lijst = new KolomLijst;
    lijst->setObjectName(QString("cmbExcel_%1").arg(index));
    lijst->setAccessibleName(veld);
    lijst->installEventFilter(new WielMetFocus(lijst));
    inhoud.setObjectName(QString("lblExcel_%1").arg(index));
    inhoud.setForegroundRole(QPalette::PlaceholderText);
    inhoud.setFixedWidth(inhoudbreedte);
    // What the operator chooses is recognised by what stands in the column.
    const auto toon_inhoud = [this, lijst, label = &inhoud] {
        const std::string letter = lijst->kolom().value_or("");
        label->setText(line_of_text(eerste_gevulde_cel(bediening_.programma.grdExcel, letter)));
        lijst->setAccessibleDescription(label->text());
    };
    connect(lijst, &QComboBox::currentTextChanged, this, toon_inhoud);
    toegang(lijst->objectName()) = {[lijst](const Getoond& gekozen) { lijst->zet_kolom(waarde<std::string>(gekozen)); },
                                    [lijst] { return getoond(lijst->kolom()); }};
    connect(lijst, &QComboBox::currentTextChanged, this, &frmInstellingen::ververs);
    return lijst;
}

void frmInstellingen::ga_naast_voorbeeld() {
    const QRect ruimte = screen()->availableGeometry();
    // The frame is not known before the window is shown; this is its usual size.
    const QSize rand(2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth),
                     style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(sizeHint().boundedTo(ruimte.size() - rand));

    if (!parentWidget()) return;
    for (const QWidget* voorbeeld : parentWidget()->window()->findChildren<QWidget*>("picDeelnemer")) {
        // The participant window belongs to the main window and has a picture of the same name.
        if (voorbeeld->window() != parentWidget()->window()) continue;
        const QRect vlak(voorbeeld->mapToGlobal(QPoint(0, 0)), voorbeeld->size());
        const auto rechthoek = [](const QRect& r) {
            return SchermRechthoek{r.left(), r.top(), r.left() + r.width(), r.top() + r.height()};
        };
        const QSize maat = size() + rand;
        const SchermPunt punt = plaats_dialoog(rechthoek(ruimte), rechthoek(vlak), maat.width(), maat.height());
        move(punt.x, punt.y);
    }
}

} // namespace tavelo
