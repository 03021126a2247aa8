#include "ui/display/frmTekenvlak.h"

#include "platform/fonts.h"
#include "platform/qt_text.h"

#include <QAccessibleWidget>
#include <QGlyphRun>
#include <QPaintEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace tavelo {

namespace {

// More letters of the smallest size than the widest screen holds.
constexpr qsizetype langste_regel = 50'000;

QString zichtbare_tekst(const GeplaatsteTekst& regel) { return qt_text(regel.tekst).left(langste_regel); }

// Letters of an area on a device. Several texts have the same size, and a font is dear to make.
class Letters {
  public:
    Letters(const Tekenvlak& vlak, const QPaintDevice& device) : vlak_(vlak), device_(device) {}

    // True when `punten` is another size than the last one.
    bool kies(double punten) {
        if (punten == punten_) return false;
        punten_ = punten;
        font_ = display_font(vlak_.lettertype, punten, device_);
        maten_ = QFontMetricsF(font_, &device_);
        return true;
    }
    [[nodiscard]] const QFont& font() const { return font_; }
    [[nodiscard]] const QFontMetricsF& maten() const { return maten_; }
    // Where the base line of the text begins.
    [[nodiscard]] QPointF basis(const GeplaatsteTekst& regel) const {
        return {regel.x / twips_per_pixel, regel.y / twips_per_pixel + maten_.ascent()};
    }

  private:
    const Tekenvlak& vlak_;
    const QPaintDevice& device_;
    double punten_ = 0;
    QFont font_;
    QFontMetricsF maten_{font_};
};

// Paints texts on a background that is there already.
class Schrijver {
  public:
    Schrijver(QPainter& schilder, const Tekenvlak& vlak) : schilder_(schilder), letters_(vlak, *schilder.device()) {
        schilder_.setPen(qt_colour(vlak.voorgrond));
        schilder_.setRenderHint(QPainter::TextAntialiasing);
    }
    void schrijf(const GeplaatsteTekst& regel) {
        if (letters_.kies(regel.punten)) schilder_.setFont(letters_.font());
        // Letter by letter: a whole text of large letters is one path to the toolkit, and what a path costs grows with
        // the square of its length.
        QTextLayout layout(zichtbare_tekst(regel), letters_.font(), schilder_.device());
        layout.beginLayout();
        const QTextLine lijn = layout.createLine();
        layout.endLayout();
        const QPointF boven = letters_.basis(regel) - QPointF(0, lijn.ascent());
        for (QGlyphRun letters : layout.glyphRuns()) {
            const QList<quint32> nummers = letters.glyphIndexes();
            const QList<QPointF> plaatsen = letters.positions();
            for (qsizetype i = 0; i < nummers.size(); ++i) {
                letters.setGlyphIndexes({nummers[i]});
                letters.setPositions({plaatsen[i]});
                schilder_.drawGlyphRun(boven, letters);
            }
        }
    }

  private:
    QPainter& schilder_;
    Letters letters_;
};

// Letters and signs of Western writing, one character each.
bool is_gewoon(QChar teken) {
    constexpr char16_t eerste_los_accent = 0x300;
    constexpr char16_t leestekens = 0x2010;
    constexpr char16_t na_leestekens = 0x2123;
    const char16_t code = teken.unicode();
    return code < eerste_los_accent || (code >= leestekens && code < na_leestekens);
}

// Where a text in `gebied` leaves ink. Smooth edges and rounding reach a little beyond the letters' own measures; for
// accents that stand apart and other writing those are no measure at all.
QRect inktvlak(Letters& letters, const GeplaatsteTekst& regel, const QRect& gebied) {
    constexpr int rand = 2;
    const QString tekst = zichtbare_tekst(regel);
    if (!std::ranges::all_of(tekst, is_gewoon)) return gebied;
    letters.kies(regel.punten);
    const QRectF inkt = letters.maten().tightBoundingRect(tekst).translated(letters.basis(regel));
    return inkt.toAlignedRect().adjusted(-rand, -rand, rand, rand);
}

// The region with every text that it cuts: half a letter comes out with other edges than a whole one.
QRegion met_hele_teksten(QRegion gebied, std::vector<QRect> plaatsen) {
    for (;;) {
        const auto geraakt = std::ranges::find_if(plaatsen, [&](const QRect& p) { return gebied.intersects(p); });
        if (geraakt == plaatsen.end()) return gebied;
        gebied += *geraakt;
        plaatsen.erase(geraakt);
    }
}

} // namespace

void schilder(QPainter& schilder, const QRectF& gebied, const Tekenvlak& vlak) {
    schilder.fillRect(gebied, qt_colour(vlak.achtergrond));
    Schrijver schrijver(schilder, vlak);
    for (const GeplaatsteTekst& regel : vlak.regels())
        schrijver.schrijf(regel);
}

TekenvlakWidget::TekenvlakWidget(const Tekenvlak& vlak, QWidget* parent) : QWidget(parent), vlak_(vlak) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TekenvlakWidget::ververs() {
    const auto gewijzigd = gewijzigde_regels(getoond_, vlak_);
    if (gewijzigd && gewijzigd->empty()) return;
    const std::vector<QRect> oude_plaatsen = std::exchange(plaatsen_, {});
    Letters letters(vlak_, *this);
    for (const GeplaatsteTekst& regel : vlak_.regels())
        plaatsen_.push_back(inktvlak(letters, regel, rect()));
    getoond_ = vlak_;
    // With a part of a pixel to each unit a part of the area does not end between two pixels of the screen.
    if (!gewijzigd || devicePixelRatioF() != std::floor(devicePixelRatioF())) {
        update();
        return;
    }
    QRegion anders;
    for (const std::size_t i : *gewijzigd)
        for (const std::vector<QRect>& plaatsen : {std::cref(oude_plaatsen), std::cref(plaatsen_)})
            if (i < plaatsen.size()) anders += plaatsen[i];
    update(met_hele_teksten(anders, plaatsen_));
}

void TekenvlakWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& deel : event->region())
        painter.fillRect(deel, qt_colour(vlak_.achtergrond));
    Schrijver schrijver(painter, vlak_);
    for (std::size_t i = 0; i < vlak_.regels().size(); ++i) {
        const GeplaatsteTekst& regel = vlak_.regels()[i];
        const bool gemeten = i < getoond_.regels().size() && getoond_.regels()[i] == regel;
        if (!gemeten || event->region().intersects(plaatsen_[i])) schrijver.schrijf(regel);
    }
}

namespace {

class Plaatje final : public QAccessibleWidget {
  public:
    explicit Plaatje(VertoningWidget& vertoning)
        : QAccessibleWidget(&vertoning, QAccessible::Graphic), vertoning_(vertoning) {}
    [[nodiscard]] QString text(QAccessible::Text soort) const override {
        return soort == QAccessible::Description ? vertoning_.voorgelezen() : QAccessibleWidget::text(soort);
    }

  private:
    const VertoningWidget& vertoning_;
};

QAccessibleInterface* als_plaatje(const QString& /*soort*/, QObject* object) {
    auto* const vertoning = dynamic_cast<VertoningWidget*>(object);
    return vertoning ? new Plaatje(*vertoning) : nullptr;
}

} // namespace

VertoningWidget::VertoningWidget(Vertoning& vertoning, QWidget* parent)
    : TekenvlakWidget(vertoning.picDeelnemer, parent), vertoning_(vertoning), picRubriek_(vertoning.picRubriek, this) {
    setObjectName(QStringLiteral("picDeelnemer"));
    picRubriek_.setObjectName(QStringLiteral("picRubriek"));
    picRubriek_.hide();
    QAccessible::installFactory(als_plaatje); // once, however often it is asked
}

QString VertoningWidget::voorgelezen() const {
    QStringList teksten;
    const auto neem = [&](const Tekenvlak& vlak) {
        for (const GeplaatsteTekst& regel : vlak.regels())
            if (!regel.tekst.empty()) teksten.append(line_of_text(regel.tekst));
    };
    if (vertoning_.picRubriek.zichtbaar) neem(vertoning_.picRubriek);
    neem(vertoning_.picDeelnemer);
    return teksten.join(QStringLiteral(". "));
}

void VertoningWidget::neem_maat() {
    vertoning_.picDeelnemer.breedte = twips(width());
    vertoning_.picDeelnemer.hoogte = twips(height());
}

void VertoningWidget::ververs() {
    const Tekenvlak& band = vertoning_.picRubriek;
    const QRect plaats(qRound(band.links / twips_per_pixel), qRound(band.boven / twips_per_pixel),
                       qRound(band.breedte / twips_per_pixel), qRound(band.hoogte / twips_per_pixel));
    // What comes out from under the band would be half a letter.
    if (plaats != picRubriek_.geometry() || band.zichtbaar == picRubriek_.isHidden()) update();
    picRubriek_.setGeometry(plaats);
    picRubriek_.setVisible(band.zichtbaar);
    picRubriek_.ververs();
    TekenvlakWidget::ververs();
    if (QAccessible::isActive()) {
        QAccessibleEvent gewijzigd(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&gewijzigd);
    }
}

} // namespace tavelo
