#include "platform/codeWindowPos.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace tavelo {

bool staat_bovenaan(const QWidget& venster) { return venster.windowFlags().testFlag(Qt::WindowStaysOnTopHint); }

void blijf_bereikbaar(QDialog& dialoog) {
    const QWidgetList vensters = QApplication::topLevelWidgets();
    if (std::ranges::any_of(vensters, [](const QWidget* w) { return w->isVisible() && staat_bovenaan(*w); }))
        dialoog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

} // namespace tavelo
