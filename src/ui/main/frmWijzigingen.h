// The changes of the day in a window of its own on the operator's screen: the newest first, the changed cells marked.
// It goes on following the report while it is open.
#pragma once

#include "ui/main/dagverslag.h"

#include <QAbstractTableModel>
#include <QTableView>
#include <QWidget>

namespace tavelo {

class WijzigingenModel final : public QAbstractTableModel {
  public:
    WijzigingenModel(const Dagverslag& dagverslag, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void ververs();

  private:
    const Dagverslag& dagverslag_; // outlives the window
    int rijen_ = 0;                // as the view knows them
};

class frmWijzigingen final : public QWidget {
  public:
    frmWijzigingen(const Dagverslag& dagverslag, QWidget& eigenaar);

    // Shows it in `plaats` of the desktop, with the focus.
    void open(const QRect& plaats);
    void ververs();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; // Esc and F6 close it

  private:
    void kopieer() const;

    const Dagverslag& dagverslag_;
    WijzigingenModel model_;
    QTableView tabel_;
    int getoond_ = 0; // of the merges so far
};

} // namespace tavelo
