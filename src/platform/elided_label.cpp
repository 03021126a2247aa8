#include "platform/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace tavelo {

QString plain_tooltip(const QString& text) {
    return text.isEmpty() ? QString() : QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

int line_height(const QFontMetrics& letters) {
    const auto height = [&letters](const QString& text) { return letters.boundingRect(QRect(), 0, text).height(); };
    return height(QStringLiteral("x\nx")) - height(QStringLiteral("x"));
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QRect ElidedLabel::place() const { return contentsRect().adjusted(margin(), 0, -margin(), 0); }

ElidedLabel::Shown ElidedLabel::shown() const {
    const int width = place().width();
    const int lines = height() / line_height(fontMetrics());
    if (lines < 2) {
        const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, width);
        return {line, line != text()};
    }
    QTextLayout layout(text(), font());
    layout.beginLayout();
    QStringList parts;
    Shown result;
    while (true) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) break;
        line.setLineWidth(width);
        if (parts.size() + 1 == lines) {
            const QString rest = text().mid(line.textStart());
            parts += fontMetrics().elidedText(rest, Qt::ElideRight, width);
            result.cut = parts.back() != rest;
            break;
        }
        parts += text().mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    result.lines = parts.join(QLatin1Char('\n'));
    return result;
}

int ElidedLabel::lines_for(int width) const {
    QTextLayout layout(text(), font());
    layout.beginLayout();
    int lines = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        ++lines;
    }
    layout.endLayout();
    return std::max(lines, 1);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (autoFillBackground()) painter.fillRect(rect(), palette().window());
    style()->drawItemText(&painter, place(), static_cast<int>(alignment()), palette(), isEnabled(), shown().lines,
                          foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    const QPoint where = static_cast<QHelpEvent*>(event)->globalPos();
    QToolTip::showText(where, shown().cut ? plain_tooltip(text()) : toolTip(), this);
    return true;
}

} // namespace tavelo
