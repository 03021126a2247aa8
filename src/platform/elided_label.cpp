#include "platform/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace tavelo {

QString plain_tooltip(const QString& text) {
    return text.isEmpty() ? QString() : QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (autoFillBackground()) painter.fillRect(rect(), palette().window());
    const QRect place = contentsRect().adjusted(margin(), 0, -margin(), 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width() - 2 * margin();
    const QPoint place = static_cast<QHelpEvent*>(event)->globalPos();
    QToolTip::showText(place, cut ? plain_tooltip(text()) : toolTip(), this);
    return true;
}

} // namespace tavelo
