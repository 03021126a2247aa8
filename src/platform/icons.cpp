#include "platform/icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <array>

namespace tavelo {

namespace {

// All pictures are drawn on a field of 24 by 24.
constexpr double field = 24;

const QColor ink(0x2B, 0x3A, 0x42);
const QColor sand(0xE3, 0xB2, 0x5A);
const QColor light_sand(0xF4, 0xD3, 0x8B);
const QColor sky(0x3A, 0x8F, 0xC8);
const QColor pole_red(0xC6, 0x3D, 0x2F);

QPen outline(double width = 1.4) { return {ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

void draw_open(QPainter& p) {
    p.setPen(outline());
    p.setBrush(sand);
    p.drawPolygon(QPolygonF({{3, 19}, {3, 6}, {9, 6}, {11, 8.5}, {19, 8.5}, {19, 19}}));
    p.setBrush(light_sand);
    p.drawPolygon(QPolygonF({{3, 19.5}, {6.5, 11.5}, {22, 11.5}, {18.5, 19.5}}));
}

void draw_settings(QPainter& p) {
    // Three sliders.
    const std::array knobs = {QPointF(8, 6), QPointF(16, 12), QPointF(10, 18)};
    for (const QPointF& knob : knobs) {
        p.setPen(outline(2));
        p.drawLine(QPointF(3, knob.y()), QPointF(21, knob.y()));
        p.setPen(outline());
        p.setBrush(light_sand);
        p.drawEllipse(knob, 2.8, 2.8);
    }
}

void draw_monitor(QPainter& p) {
    p.setPen(outline());
    p.setBrush(sky);
    p.drawRoundedRect(QRectF(2, 4, 20, 13), 1.5, 1.5);
    p.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(6, 8), QPointF(15, 8));
    p.drawLine(QPointF(6, 11), QPointF(18, 11));
    p.drawLine(QPointF(6, 14), QPointF(12, 14));
    p.setPen(outline(2));
    p.drawLine(QPointF(12, 17.5), QPointF(12, 20.5));
    p.drawLine(QPointF(7.5, 21), QPointF(16.5, 21));
}

void draw_arrow(QPainter& p, bool forward) {
    if (forward) {
        p.translate(field, 0);
        p.scale(-1, 1);
    }
    p.setPen(outline());
    p.setBrush(sky);
    p.drawPolygon(QPolygonF({{3, 12}, {12, 4}, {12, 9}, {21, 9}, {21, 15}, {12, 15}, {12, 20}}));
}

void draw_clear(QPainter& p) {
    p.setPen(QPen(pole_red, 3.4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(6, 6), QPointF(18, 18));
    p.drawLine(QPointF(18, 6), QPointF(6, 18));
}

// A jump: two stands and poles in white and red.
void draw_program(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(sky);
    p.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
    p.setBrush(sand);
    QPainterPath ground;
    ground.addRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
    QPainterPath below;
    below.addRect(QRectF(1, 18, 22, 6));
    p.drawPath(ground.intersected(below));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(3.5, 5, 2, 15));
    p.drawRect(QRectF(18.5, 5, 2, 15));
    for (const double y : {8.0, 12.0, 16.0}) {
        p.setBrush(Qt::white);
        p.drawRect(QRectF(4, y, 16, 2));
        p.setBrush(pole_red);
        for (const double x : {4.0, 10.4, 16.8})
            p.drawRect(QRectF(x, y, 3.2, 2));
    }
}

void draw(QPainter& p, Picture picture) {
    switch (picture) {
    case Picture::open:
        return draw_open(p);
    case Picture::settings:
        return draw_settings(p);
    case Picture::monitor:
        return draw_monitor(p);
    case Picture::previous:
        return draw_arrow(p, false);
    case Picture::next:
        return draw_arrow(p, true);
    case Picture::clear:
        return draw_clear(p);
    case Picture::program:
        return draw_program(p);
    }
}

} // namespace

QIcon icon(Picture picture) {
    QIcon result;
    for (const int side : {16, 24, 32, 48, 64, 96, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(side / field, side / field);
        draw(painter, picture);
        painter.end();
        result.addPixmap(pixmap);
    }
    return result;
}

} // namespace tavelo
