#include "platform/linux/open_dialog.h"

#include "platform/codeWindowPos.h"
#include "platform/dialogs.h"
#include "platform/linux/file_columns.h"
#include "platform/qt_text.h"

#include <QDir>
#include <QFileDialog>
#include <QScreen>

namespace tavelo {

namespace {

constexpr QSize ruime_maat(780, 460); // of the open dialog: whole names beside size, kind and date

} // namespace

QStringList name_filters(std::string_view filter) {
    const QStringList parts = qt_text(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters += QStringLiteral("%1 (%2)").arg(parts[i], QString(parts[i + 1]).replace(';', ' '));
    return filters;
}

std::optional<std::string> QtOpenDialog::ask(const OpenRequest& request) {
    QFileDialog dialog(parent_window(owner_), QStringLiteral("Rooster openen"), qt_text(request.folder));
    dialog.setObjectName(QStringLiteral("dlgOpenen"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the labels name the patterns themselves
    const QStringList filters = name_filters(request.filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filter_index - 1));
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Zoeken in:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Bestands&naam:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Bestandstypen:"));
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Openen"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annuleren"));
    zet_kolommen(dialog);
    dialog.resize(dialog.size().expandedTo(ruime_maat).boundedTo(dialog.screen()->availableSize() * 0.9));
    blijf_bereikbaar(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return utf8(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace tavelo
