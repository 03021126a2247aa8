#include "platform/codeWindowPos.h"
#include "platform/dialogs.h"
#include "platform/qt_text.h"

#include <QColorDialog>

namespace tavelo {

std::optional<std::int32_t> QtColourDialog::ask(std::int32_t preselected) {
    QColorDialog dialog(qt_colour(preselected), parent_window(owner_));
    dialog.setObjectName(QStringLiteral("dlgKleur"));
    dialog.setWindowTitle(QStringLiteral("Kleur kiezen"));
    blijf_bereikbaar(dialog);
    if (dialog.exec() != QDialog::Accepted) return {};
    return kern_colour(dialog.currentColor());
}

} // namespace tavelo
