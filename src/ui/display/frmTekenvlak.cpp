#include "ui/display/frmTekenvlak.h"

#include "platform/fonts.h"
#include "platform/qt_text.h"

#include <QPainter>

namespace tavelo {

namespace {

// More letters of the smallest size than the widest screen holds.
constexpr qsizetype langste_regel = 50'000;

} // namespace

void schilder(QPainter& schilder, const QRectF& gebied, const Tekenvlak& vlak) {
    schilder.fillRect(gebied, qt_colour(vlak.achtergrond));
    schilder.setPen(qt_colour(vlak.voorgrond));
    schilder.setRenderHint(QPainter::TextAntialiasing);
    double punten = 0;
    double stijging = 0;
    for (const GeplaatsteTekst& regel : vlak.regels()) {
        if (regel.punten != punten) {
            punten = regel.punten;
            const QFont font = display_font(vlak.lettertype, punten, *schilder.device());
            schilder.setFont(font);
            stijging = QFontMetricsF(font, schilder.device()).ascent();
        }
        const QPointF basis(regel.x / twips_per_pixel, regel.y / twips_per_pixel + stijging);
        schilder.drawText(basis, qt_text(regel.tekst).left(langste_regel));
    }
}

TekenvlakWidget::TekenvlakWidget(const Tekenvlak& vlak, QWidget* parent) : QWidget(parent), vlak_(vlak) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TekenvlakWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    schilder(painter, rect(), vlak_);
}

VertoningWidget::VertoningWidget(Vertoning& vertoning, QWidget* parent)
    : TekenvlakWidget(vertoning.picDeelnemer, parent), vertoning_(vertoning), picRubriek_(vertoning.picRubriek, this) {
    setObjectName(QStringLiteral("picDeelnemer"));
    picRubriek_.setObjectName(QStringLiteral("picRubriek"));
    picRubriek_.hide();
}

void VertoningWidget::neem_maat() {
    vertoning_.picDeelnemer.breedte = twips(width());
    vertoning_.picDeelnemer.hoogte = twips(height());
}

void VertoningWidget::ververs() {
    const Tekenvlak& band = vertoning_.picRubriek;
    picRubriek_.setGeometry(qRound(band.links / twips_per_pixel), qRound(band.boven / twips_per_pixel),
                            qRound(band.breedte / twips_per_pixel), qRound(band.hoogte / twips_per_pixel));
    picRubriek_.setVisible(band.zichtbaar);
    picRubriek_.update();
    update();
}

} // namespace tavelo
