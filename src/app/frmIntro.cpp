#include "app/frmIntro.h"

#include "platform/codeTransparency.h"
#include "platform/qt_text.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace tavelo {

namespace {

const QColor white_paint(0xFB, 0xF7, 0xEE);
const QColor red_paint(0xC2, 0x38, 0x2B);
const QColor dark_ink(0x1E, 0x2A, 0x33);

void draw_sky(QPainter& p, const QRectF& area) {
    QLinearGradient sky(0, 0, 0, area.height() * 0.72);
    sky.setColorAt(0, QColor(0x2E, 0x7D, 0xB6));
    sky.setColorAt(0.7, QColor(0xA9, 0xD3, 0xEA));
    sky.setColorAt(1, QColor(0xF6, 0xE3, 0xBD));
    p.fillRect(area, sky);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 90));
    for (const QRectF& cloud : {QRectF(52, 62, 120, 22), QRectF(92, 48, 78, 24), QRectF(404, 36, 96, 16)})
        p.drawRoundedRect(cloud, cloud.height() / 2, cloud.height() / 2);
}

// The trees behind the ring and the sand in it.
void draw_ground(QPainter& p, const QRectF& area) {
    p.setPen(Qt::NoPen);
    QPainterPath trees(QPointF(0, 274));
    trees.lineTo(0, 226);
    for (int i = 0; i < 10; ++i) {
        const double left = i * 60.0;
        trees.cubicTo(left + 12, 202 + (i % 3) * 6, left + 46, 202 + (i % 2) * 9, left + 60, 228);
    }
    trees.lineTo(area.width(), 274);
    p.setBrush(QColor(0x4B, 0x80, 0x55));
    p.drawPath(trees);
    p.setBrush(QColor(0x6C, 0x9D, 0x5C));
    p.drawRect(QRectF(0, 252, area.width(), 20));

    QLinearGradient sand(0, 268, 0, area.height());
    sand.setColorAt(0, QColor(0xE9, 0xC9, 0x8C));
    sand.setColorAt(1, QColor(0xC9, 0x98, 0x50));
    p.fillRect(QRectF(0, 268, area.width(), area.height() - 268), sand);
    // The white rail of the ring.
    p.setBrush(white_paint);
    p.drawRect(QRectF(0, 262, area.width(), 4));
    for (double x = 14; x < area.width(); x += 52)
        p.drawRect(QRectF(x, 258, 4, 20));
}

void draw_pole(QPainter& p, double left, double right, double y) {
    const double thickness = 11;
    const QRectF pole(left, y, right - left, thickness);
    QPainterPath shape;
    shape.addRoundedRect(pole, thickness / 2, thickness / 2);
    p.save();
    p.setClipPath(shape);
    p.fillRect(pole, white_paint);
    const double band = (right - left) / 7;
    for (int i = 0; i < 7; i += 2)
        p.fillRect(QRectF(left + i * band, y, band, thickness), red_paint);
    QLinearGradient shade(0, y, 0, y + thickness);
    shade.setColorAt(0, QColor(255, 255, 255, 70));
    shade.setColorAt(1, QColor(0, 0, 0, 70));
    p.fillRect(pole, shade);
    p.restore();
}

void draw_stand(QPainter& p, double x) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawEllipse(QRectF(x - 24, 329, 62, 10));
    p.setBrush(white_paint);
    p.drawRoundedRect(QRectF(x, 196, 14, 138), 3, 3);
    p.drawPolygon(QPolygonF({{x - 18, 335}, {x + 32, 335}, {x + 14, 316}, {x, 316}}));
    p.setBrush(red_paint);
    p.drawEllipse(QRectF(x - 1, 184, 16, 16));
}

void draw_jump(QPainter& p) {
    draw_stand(p, 318);
    draw_stand(p, 548);
    for (const double y : {224.0, 254.0, 284.0, 311.0})
        draw_pole(p, 322, 558, y);
}

// Head and neck of a horse that looks to the right.
QPainterPath horse_head() {
    QPainterPath head(QPointF(20, 380));
    head.cubicTo(34, 318, 52, 262, 96, 214);    // back of the neck
    head.cubicTo(116, 192, 130, 172, 138, 150); // up to the poll
    head.lineTo(140, 118);                      // ear
    head.cubicTo(150, 124, 158, 134, 162, 148);
    head.cubicTo(180, 156, 196, 172, 208, 192); // forehead and nose
    head.cubicTo(222, 214, 240, 230, 252, 248);
    head.cubicTo(260, 262, 254, 278, 240, 280); // nostril and mouth
    head.cubicTo(230, 284, 222, 286, 214, 278);
    head.cubicTo(204, 268, 190, 262, 174, 256); // jaw
    head.cubicTo(164, 266, 160, 280, 164, 304); // throat
    head.cubicTo(168, 334, 184, 360, 196, 380);
    head.closeSubpath();
    return head;
}

void draw_horse(QPainter& p) {
    QLinearGradient coat(60, 160, 220, 380);
    coat.setColorAt(0, QColor(0x7A, 0x45, 0x22));
    coat.setColorAt(0.6, QColor(0x5C, 0x31, 0x17));
    coat.setColorAt(1, QColor(0x3E, 0x20, 0x10));
    p.setPen(Qt::NoPen);
    p.setBrush(coat);
    p.drawPath(horse_head());

    // Mane, plaited as for a show.
    p.setBrush(QColor(0x24, 0x15, 0x0D));
    for (const QPointF& knot :
         {QPointF(138, 148), QPointF(126, 170), QPointF(111, 191), QPointF(95, 210), QPointF(79, 233), QPointF(65, 259),
          QPointF(53, 287), QPointF(44, 316), QPointF(36, 345)})
        p.drawEllipse(knot, 9.5, 8);

    // White blaze.
    QPainterPath blaze(QPointF(166, 154));
    blaze.cubicTo(184, 164, 200, 184, 212, 204);
    blaze.cubicTo(222, 220, 236, 232, 246, 246);
    blaze.cubicTo(232, 238, 216, 228, 204, 208);
    blaze.cubicTo(194, 190, 180, 172, 166, 154);
    p.setBrush(white_paint);
    p.drawPath(blaze);

    // Bridle.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(dark_ink, 4.5, Qt::SolidLine, Qt::RoundCap));
    QPainterPath cheek(QPointF(146, 150));
    cheek.cubicTo(158, 184, 182, 222, 208, 262);
    p.drawPath(cheek);
    QPainterPath nose_band(QPointF(226, 216));
    nose_band.cubicTo(218, 232, 204, 250, 186, 260);
    p.drawPath(nose_band);
    QPainterPath brow_band(QPointF(150, 158));
    brow_band.cubicTo(160, 160, 170, 160, 178, 163);
    p.drawPath(brow_band);
    QPainterPath rein(QPointF(212, 264));
    rein.cubicTo(170, 322, 120, 356, 70, 380);
    p.drawPath(rein);
    p.setPen(QPen(QColor(0xD9, 0xB4, 0x4A), 3));
    p.drawEllipse(QPointF(210, 263), 6, 6);

    // Eye and nostril.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x17, 0x0D, 0x08));
    p.drawEllipse(QPointF(176, 186), 6.5, 5);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(178, 184), 1.7, 1.7);
    p.setBrush(QColor(0x17, 0x0D, 0x08));
    p.drawEllipse(QPointF(240, 258), 5.5, 3.8);
}

void draw_title(QPainter& p) {
    QFont font = p.font();
    font.setFamily(QStringLiteral("Arial"));
    font.setPixelSize(62);
    font.setBold(true);
    p.setFont(font);
    const QRectF place(236, 44, 340, 78);
    p.setPen(QColor(0, 0, 0, 60));
    p.drawText(place.translated(2, 3), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Tavelo"));
    p.setPen(white_paint);
    p.drawText(place, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Tavelo"));
    font.setPixelSize(18);
    font.setBold(false);
    p.setFont(font);
    p.drawText(QRectF(236, 116, 340, 26), Qt::AlignRight | Qt::AlignVCenter,
               QStringLiteral("de combinatie in de ring op de monitor"));
}

// The picture: a horse that looks at a jump in the sand.
class Image1 final : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const QRectF area(QPointF(0, 0), QSizeF(frmIntro::maat()));
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(width() / area.width(), height() / area.height());
        draw_sky(p, area);
        draw_ground(p, area);
        draw_jump(p);
        draw_horse(p);
        draw_title(p);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(dark_ink, 2));
        p.drawRect(area.adjusted(1, 1, -1, -1));
    }
};

} // namespace

frmIntro::frmIntro(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmIntro"));
    setWindowTitle(QStringLiteral("Tavelo"));
    setFixedSize(maat());
    setAttribute(Qt::WA_QuitOnClose, false); // the first window to go, but not the end
    if (const QScreen* scherm = screen()) {  // by itself it would follow the pointer, perhaps to the public's monitor
        QRect plaats(QPoint(0, 0), maat());
        plaats.moveCenter(scherm->availableGeometry().center());
        move(plaats.topLeft());
    }
    zet_transparantie(*this, 0);

    auto* picture = new Image1(this);
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setGeometry(rect());

    auto* version =
        new QLabel(qt_text(versie_tekst(TAVELO_VERSION_MAJOR, TAVELO_VERSION_MINOR, TAVELO_VERSION_REVISION)), this);
    version->setObjectName(QStringLiteral("lblVersie"));
    version->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    version->setStyleSheet(QStringLiteral("color: #1E2A33; font-size: 15px;"));
    version->setGeometry(330, 346, 254, 26);

    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setSingleShot(true);
    timer1_.setTimerType(Qt::PreciseTimer);
    connect(&timer1_, &QTimer::timeout, this, &QDialog::accept);
    timer1_.start(intro_duur_ms);

    timer2_.setObjectName(QStringLiteral("Timer2"));
    timer2_.setTimerType(Qt::PreciseTimer);
    connect(&timer2_, &QTimer::timeout, this, [this] {
        zet_transparantie(*this, vervaging_.volgende());
        if (vervaging_.klaar()) timer2_.stop();
    });
    timer2_.start(intro_stap_ms);
}

} // namespace tavelo
