#include "ui/main/frmWijzigingen.h"

#include "platform/icons.h"
#include "platform/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <array>
#include <set>
#include <utility>
#include <vector>

namespace tavelo {

namespace {

constexpr std::int32_t gewijzigde_cel = 0x8FE3FF; // light amber

const VerslagRij& rij_van(const Dagverslag& dagverslag, int rij) {
    return dagverslag.rijen()[static_cast<std::size_t>(rij)];
}

} // namespace

WijzigingenModel::WijzigingenModel(const Dagverslag& dagverslag, QObject* parent)
    : QAbstractTableModel(parent), dagverslag_(dagverslag), rijen_(static_cast<int>(dagverslag.rijen().size())) {}

int WijzigingenModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rijen_; }

int WijzigingenModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(verslag_titels.size());
}

QVariant WijzigingenModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= static_cast<int>(dagverslag_.rijen().size()))
        return {}; // dropped as the oldest
    const VerslagRij& rij = rij_van(dagverslag_, index.row());
    const auto kolom = static_cast<std::size_t>(index.column());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return line_of_text(rij.teksten[kolom]);
    if (!rij.anders[kolom]) return {};
    if (role == Qt::BackgroundRole) return qt_colour(gewijzigde_cel);
    if (role == Qt::ForegroundRole) return QColor(Qt::black);
    if (role == Qt::AccessibleDescriptionRole) return QStringLiteral("gewijzigd");
    return {};
}

QVariant WijzigingenModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return qt_text(verslag_titels[static_cast<std::size_t>(section)]);
}

void WijzigingenModel::ververs() {
    beginResetModel();
    rijen_ = static_cast<int>(dagverslag_.rijen().size());
    endResetModel();
}

frmWijzigingen::frmWijzigingen(const Dagverslag& dagverslag, QWidget& eigenaar)
    : QWidget(&eigenaar, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      dagverslag_(dagverslag),
      model_(dagverslag, this) {
    setObjectName(QStringLiteral("frmWijzigingen"));
    setWindowTitle(QStringLiteral("Wijzigingen van vandaag"));
    setWindowIcon(icon(Picture::program));
    auto* inhoud = new QVBoxLayout(this);
    inhoud->setContentsMargins(0, 0, 0, 0);
    inhoud->addWidget(&tabel_);
    tabel_.setObjectName(QStringLiteral("grdWijzigingen"));
    tabel_.setAccessibleName(QStringLiteral("Wijzigingen van vandaag, de nieuwste boven"));
    tabel_.setModel(&model_);
    tabel_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabel_.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabel_.setTabKeyNavigation(false);
    tabel_.setWordWrap(false);
    tabel_.verticalHeader()->hide();
    tabel_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabel_.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    tabel_.horizontalHeader()->setHighlightSections(false);
    tabel_.installEventFilter(this);
    constexpr std::array breedten = {52, 88, 44, 48, 160, 40, 112, 112, 112, 44, 44};
    for (std::size_t kolom = 0; kolom < breedten.size(); ++kolom)
        tabel_.setColumnWidth(static_cast<int>(kolom), breedten[kolom]);
}

void frmWijzigingen::open(const QRect& plaats) {
    ververs();
    setGeometry(plaats);
    show();
    raise();
    activateWindow();
    tabel_.setFocus();
}

void frmWijzigingen::ververs() {
    if (std::exchange(getoond_, dagverslag_.herlezingen()) != dagverslag_.herlezingen()) model_.ververs();
}

// The table's own copying takes one cell.
bool frmWijzigingen::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return QWidget::eventFilter(receiver, event);
    kopieer();
    return true;
}

void frmWijzigingen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F6) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

// The chosen rows, or all of them when none is chosen.
void frmWijzigingen::kopieer() const {
    std::set<int> gekozen;
    for (const QModelIndex& cel : tabel_.selectionModel()->selectedRows())
        gekozen.insert(cel.row());
    std::vector<VerslagRij> rijen;
    for (int rij = 0; rij < model_.rowCount(); ++rij)
        if (gekozen.empty() || gekozen.contains(rij)) rijen.push_back(rij_van(dagverslag_, rij));
    QGuiApplication::clipboard()->setText(qt_text(als_tekst(rijen)));
}

} // namespace tavelo
