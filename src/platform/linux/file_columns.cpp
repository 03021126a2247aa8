#include "platform/linux/file_columns.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace tavelo {

namespace {

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

} // namespace

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

} // namespace tavelo
