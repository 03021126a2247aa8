// The grid of the main window on the toolkit: a model over the kern's grid and the view that shows it. The title row is
// the header; column 0 looks like it. What is current and highlighted is the grid's own affair, the view follows it;
// only the user's mouse and keys call back.
#pragma once

#include "basis/grid.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <algorithm>
#include <functional>

namespace tavelo {

// Its rows are those below the title row. Told by the view what changed, it tells no more than that.
class RoosterModel final : public QAbstractTableModel {
  public:
    RoosterModel(const Grid& grid, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void cell_changed(int row, int column);
    void row_inserted(int row);
    void row_removed(int row);
    void reset();

    // The row of the grid that is on the wall, 0 for none: bold, with an edge of its own.
    void merk(int row);
    static constexpr int merk_role = Qt::UserRole; // whether the row is that one

  private:
    [[nodiscard]] int data_rows() const { return std::max(grid_.rows() - 1, 0); }

    const Grid& grid_;
    int rows_ = 0; // as the view knows them
    int gemerkt_ = 0;
};

class RoosterView final : public QTableView, private GridListener {
  public:
    RoosterView(Grid& grid, QWidget* parent);
    ~RoosterView() override;

    // The user picked the grid's current row.
    void bij_kiezen(std::function<void()> gekozen) { gekozen_ = std::move(gekozen); }

    void merk(int rij) { model_.merk(rij); }
    // The row from which the keys step; without this the grid's current one.
    void begin_bij(std::function<int()> rij) { begin_ = std::move(rij); }
    // What stands in grey where there are no rows.
    void zet_tekst_zonder_rijen(const QString& tekst);

    // Scrolls no further than needed to bring the grid's current row into view.
    void breng_in_beeld();
    // From the top of the view to the top of the last row, in twips, at the present scroll position.
    [[nodiscard]] int top_laatste_rij() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void cell_changed(int row, int column) override;
    void row_inserted(int row) override;
    void row_removed(int row) override;
    void current_changed() override;
    void grid_reset() override;

    void kies(int rij);
    void toon_kolommen();
    void toon_selectie();
    void toon_bovenste_rij();
    [[nodiscard]] int zichtbare_rijen() const;

    Grid& grid_;
    RoosterModel model_;
    std::function<void()> gekozen_;
    std::function<int()> begin_ = [this] { return grid_.row(); };
    QString tekst_zonder_rijen_;
    bool volgt_ = false; // the view follows the grid: what it signals meanwhile is no act of the user
};

} // namespace tavelo
