#include "platform/linux/dialogs.h"

#include "platform/codeWindowPos.h"
#include "platform/dialogs.h"
#include "platform/qt_text.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace tavelo {

namespace {

constexpr QSize ruime_maat(780, 460); // of the open dialog: whole names beside size, kind and date

// The list of files, in Dutch: the toolkit fills it in the language of the computer.
enum Column { name, size, kind, date };

QString kind_of(const QFileSystemModel& files, const QModelIndex& index) {
    if (files.isDir(index)) return QStringLiteral("Map");
    const QString suffix = files.fileInfo(index).suffix().toUpper();
    return suffix.isEmpty() ? QStringLiteral("Bestand") : suffix + QStringLiteral("-bestand");
}

QString text_of(const QFileSystemModel& files, const QModelIndex& index) {
    const QLocale locale;
    switch (index.column()) {
    case size:
        if (files.isDir(index)) return {};
        return locale.formattedDataSize(files.size(index), 1, QLocale::DataSizeTraditionalFormat);
    case kind:
        return kind_of(files, index);
    case date:
        return locale.toString(files.lastModified(index), QLocale::ShortFormat);
    default:
        return index.data().toString();
    }
}

class ColumnDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (const auto* files = qobject_cast<const QFileSystemModel*>(index.model()))
            option->text = text_of(*files, index);
    }
};

// Size, kind and date of the toolkit's own list, in the default locale and as wide as they need. A dialog of the
// desktop has no such list and stays as it is.
void zet_kolommen(QFileDialog& dialog) {
    auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!list) return;
    struct Widest {
        Column column;
        const char* text;
    };
    constexpr int margin = 16;
    for (const Widest& widest : {Widest{size, "888,8 MB"}, {kind, "XLSX-bestand"}, {date, "28-08-2028 08:08"}}) {
        list->setItemDelegateForColumn(widest.column, new ColumnDelegate(list));
        list->header()->resizeSection(widest.column,
                                      list->fontMetrics().horizontalAdvance(QLatin1String(widest.text)) + margin);
    }
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(name, QHeaderView::Stretch);
}

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

std::optional<std::int32_t> QtColourDialog::ask(std::int32_t preselected) {
    QColorDialog dialog(qt_colour(preselected), parent_window(owner_));
    dialog.setObjectName(QStringLiteral("dlgKleur"));
    dialog.setWindowTitle(QStringLiteral("Kleur kiezen"));
    blijf_bereikbaar(dialog);
    if (dialog.exec() != QDialog::Accepted) return {};
    return kern_colour(dialog.currentColor());
}

} // namespace tavelo
