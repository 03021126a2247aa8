#include "platform/codeWindowPos.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace tavelo {

bool staat_bovenaan(const QWidget& venster) { return venster.windowFlags().testFlag(Qt::WindowStaysOnTopHint); }

bool staat_er_een_bovenaan() {
    const QWidgetList vensters = QApplication::topLevelWidgets();
    return std::ranges::any_of(vensters, [](const QWidget* w) { return w->isVisible() && staat_bovenaan(*w); });
}

void blijf_bereikbaar(QDialog& dialoog) {
    if (staat_er_een_bovenaan()) dialoog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

} // namespace tavelo
