#include "ui/main/frmRooster.h"

#include "platform/elided_label.h"
#include "platform/qt_text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

constexpr int titelrij = 1; // rows above the first one of the model

Qt::Alignment uitlijning(CellAlignment alignment) {
    switch (alignment) {
    case CellAlignment::centre_centre:
        return Qt::AlignCenter;
    case CellAlignment::right_centre:
        return Qt::AlignRight | Qt::AlignVCenter;
    case CellAlignment::left_centre:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

RoosterModel::RoosterModel(const Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(data_rows()) {}

int RoosterModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int RoosterModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : grid_.columns(); }

QVariant RoosterModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) return line_of_text(grid_.text(index.row() + titelrij, index.column()));
    if (role == Qt::TextAlignmentRole) return QVariant(uitlijning(grid_.column_alignment(index.column())));
    const bool op_monitor = index.row() + titelrij == gemerkt_;
    if (role == merk_role) return op_monitor;
    if (role == Qt::AccessibleDescriptionRole && op_monitor) return QStringLiteral("Op de monitor");
    return {};
}

void RoosterModel::merk(int row) {
    if (row == gemerkt_) return; // a re-read asks again: nothing to paint
    for (const int changed : {std::exchange(gemerkt_, row), row})
        if (changed >= titelrij && changed <= rows_)
            Q_EMIT dataChanged(index(changed - titelrij, 0), index(changed - titelrij, columnCount() - 1));
}

QVariant RoosterModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return line_of_text(grid_.text(0, section));
    if (role == Qt::TextAlignmentRole) return QVariant(uitlijning(grid_.column_alignment(section)));
    return {};
}

void RoosterModel::cell_changed(int row, int column) {
    if (row == 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
        return;
    }
    const QModelIndex cell = index(row - titelrij, column);
    Q_EMIT dataChanged(cell, cell);
}

void RoosterModel::row_inserted(int row) {
    if (row < titelrij) return reset();
    beginInsertRows({}, row - titelrij, row - titelrij);
    ++rows_;
    endInsertRows();
}

void RoosterModel::row_removed(int row) {
    if (row < titelrij) return reset();
    beginRemoveRows({}, row - titelrij, row - titelrij);
    --rows_;
    endRemoveRows();
}

void RoosterModel::reset() {
    beginResetModel();
    rows_ = data_rows();
    endResetModel();
}

namespace {

constexpr int rand_op_monitor = 6;                  // width of the edge, in device-independent pixels
constexpr std::int32_t kleur_op_monitor = 0x2F8A1F; // green, as a light that is on

// Column 0 in the colour of the header, and the row that is on the wall in bold behind an edge.
class RoosterDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.column() != 0 || !index.data(RoosterModel::merk_role).toBool()) return;
        painter->fillRect(QRect(option.rect.topLeft(), QSize(rand_op_monitor, option.rect.height())),
                          qt_colour(kleur_op_monitor));
    }

    // The whole text of a cell that is cut off.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
        const bool cut = sizeHint(option, index).width() > option.rect.width();
        QToolTip::showText(event->globalPos(), cut ? plain_tooltip(index.data().toString()) : QString(), view);
        return true;
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus; // the whole row is current, not one cell
        if (index.data(RoosterModel::merk_role).toBool()) option->font.setBold(true);
        if (index.column() == 0) option->backgroundBrush = option->palette.button();
        // Short codes, which fill their narrow columns to the edge.
        if (option->displayAlignment & Qt::AlignHCenter) option->textElideMode = Qt::ElideNone;
    }
};

} // namespace

RoosterView::RoosterView(Grid& grid, QWidget* parent) : QTableView(parent), grid_(grid), model_(grid, this) {
    setObjectName(QStringLiteral("grdRooster"));
    setModel(&model_);
    setItemDelegate(new RoosterDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection); // the grid selects, the view shows
    setTabKeyNavigation(false);
    setAutoScroll(false);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setShowGrid(true);

    // The widths of the columns are made for a narrow letter of this size.
    QFont letter(QStringLiteral("Arial"));
    letter.setPointSizeF(11.5 * 72 / logicalDpiY());
    setFont(letter);
    horizontalHeader()->setFont(letter);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    QHeaderView* header = horizontalHeader();
    header->setMinimumSectionSize(12);
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int /*old_size*/, int size) {
        if (volgt_) return;
        const QScopedValueRollback following(volgt_, true); // the grid answers with a reset that changes nothing here
        grid_.set_column_width(column, twips(size));
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!volgt_) grid_.set_top_row(value + titelrij);
    });

    // The row in the ring stays as clear when the number box has the focus.
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);

    grid_.set_listener(this);
    grid_reset();
}

RoosterView::~RoosterView() { grid_.set_listener(nullptr); }

void RoosterView::cell_changed(int row, int column) { model_.cell_changed(row, column); }

void RoosterView::row_inserted(int row) {
    const QScopedValueRollback following(volgt_, true);
    model_.row_inserted(row);
    toon_selectie(); // positions stay with the grid: the toolkit would move them along with the row
    toon_bovenste_rij();
}

void RoosterView::row_removed(int row) {
    const QScopedValueRollback following(volgt_, true);
    model_.row_removed(row);
    toon_selectie();
    toon_bovenste_rij();
}

void RoosterView::current_changed() {
    if (volgt_) return;
    const QScopedValueRollback following(volgt_, true);
    toon_selectie();
    toon_bovenste_rij();
}

void RoosterView::grid_reset() {
    if (volgt_) return;
    const QScopedValueRollback following(volgt_, true);
    const int sideways = horizontalScrollBar()->value();
    model_.reset();
    toon_kolommen();
    toon_selectie();
    toon_bovenste_rij();
    horizontalScrollBar()->setValue(sideways);
}

void RoosterView::toon_kolommen() {
    for (int column = 0; column < grid_.columns(); ++column) {
        const int width = pixels(grid_.column_width(column));
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
}

void RoosterView::toon_selectie() {
    const int row = grid_.row() - titelrij;
    if (row < 0 || row >= model_.rowCount()) {
        selectionModel()->clear();
        return;
    }
    const auto [first, last] = std::minmax({grid_.column(), grid_.selection_column()});
    selectionModel()->select({model_.index(row, first), model_.index(row, last)}, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(model_.index(row, grid_.column()), QItemSelectionModel::NoUpdate);
}

void RoosterView::toon_bovenste_rij() {
    executeDelayedItemsLayout(); // else the scroll bar still ends where the rows ended before
    verticalScrollBar()->setValue(std::max(grid_.top_row() - titelrij, 0));
    // At the end of the rows the view stays behind; the grid then stands where the view does.
    grid_.set_top_row(verticalScrollBar()->value() + titelrij);
}

int RoosterView::zichtbare_rijen() const {
    return std::max(viewport()->height() / verticalHeader()->defaultSectionSize(), 1);
}

void RoosterView::breng_in_beeld() {
    const int row = grid_.row() - titelrij;
    if (row < 0) return;
    executeDelayedItemsLayout();
    const int top = verticalScrollBar()->value();
    if (row < top)
        verticalScrollBar()->setValue(row);
    else if (row >= top + zichtbare_rijen())
        verticalScrollBar()->setValue(row - zichtbare_rijen() + 1);
}

int RoosterView::top_laatste_rij() const {
    const int last = model_.rowCount() - 1;
    return twips(viewport()->y() + rowViewportPosition(last));
}

void RoosterView::kies(int rij) {
    if (rij < titelrij || rij >= grid_.rows()) return;
    grid_.set_row(rij);
    if (gekozen_) gekozen_();
}

bool RoosterView::event(QEvent* event) {
    const bool done = QTableView::event(event);
    // The row in the ring looks the same wherever the keys go: the edge shows that they go here.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    return done;
}

void RoosterView::zet_tekst_zonder_rijen(const QString& tekst) {
    if (std::exchange(tekst_zonder_rijen_, tekst) != tekst) viewport()->update();
}

void RoosterView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (tekst_zonder_rijen_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, tekst_zonder_rijen_);
}

void RoosterView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && cell.isValid()) kies(cell.row() + titelrij);
}

void RoosterView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const int row = rowAt(event->position().toPoint().y()) + titelrij;
    if (row != grid_.row()) kies(row);
}

void RoosterView::mouseReleaseEvent(QMouseEvent* /*event*/) {}

void RoosterView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void RoosterView::keyPressEvent(QKeyEvent* event) {
    const int row = begin_();
    const int last = grid_.rows() - 1;
    int target = row;
    switch (event->key()) {
    case Qt::Key_Up:
        target = row - 1;
        break;
    case Qt::Key_Down:
        target = row + 1;
        break;
    case Qt::Key_PageUp:
        target = row - zichtbare_rijen();
        break;
    case Qt::Key_PageDown:
        target = row + zichtbare_rijen();
        break;
    case Qt::Key_Home:
        target = titelrij;
        break;
    case Qt::Key_End:
        target = last;
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        break; // the current row, like a click on it
    case Qt::Key_Left:
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
        return;
    case Qt::Key_Right:
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return;
    default:
        event->ignore();
        return; // for the window
    }
    if (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) || last < titelrij) {
        event->ignore();
        return;
    }
    kies(std::clamp(target, titelrij, last));
    breng_in_beeld();
}

} // namespace tavelo
