#include "ui/main/frmRooster.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

struct FrmRooster : testing::Test {
    Grid grid;
    std::unique_ptr<RoosterView> view;
    int gekozen = 0;

    void SetUp() override {
        grid.set_columns(4);
        grid.set_rows(41);
        grid.set_fixed_rows(1);
        for (int row = 0; row < 41; ++row)
            for (int column = 0; column < 4; ++column)
                grid.set_text(row, column, "r" + std::to_string(row) + "k" + std::to_string(column));
        grid.set_column_width(3, 0);
        view = std::make_unique<RoosterView>(grid, nullptr);
        view->bij_kiezen([this] { ++gekozen; });
        view->resize(400, 300);
        view->show();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QString tekst(int model_row, int column) const {
        return view->model()->index(model_row, column).data().toString();
    }
    [[nodiscard]] QList<int> gekozen_kolommen() const {
        QList<int> kolommen;
        for (const QModelIndex& index : view->selectionModel()->selectedIndexes())
            kolommen += index.column();
        std::ranges::sort(kolommen);
        return kolommen;
    }
    void klik(int model_row, int column) const {
        const QPoint punt = view->visualRect(view->model()->index(model_row, column)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, punt);
    }
};

TEST_F(FrmRooster, toont_de_titelrij_als_kop_en_de_rest_als_rijen) {
    EXPECT_EQ(view->model()->rowCount(), 40);
    EXPECT_EQ(view->model()->columnCount(), 4);
    EXPECT_EQ(view->model()->headerData(2, Qt::Horizontal).toString(), "r0k2");
    EXPECT_EQ(tekst(0, 0), "r1k0");
    EXPECT_TRUE(view->isColumnHidden(3));
}

TEST_F(FrmRooster, kolommen_zijn_zo_breed_als_het_rooster_zegt) {
    grid.set_column_width(1, 2400);
    EXPECT_EQ(view->columnWidth(1), 160);
    grid.set_column_alignment(1, CellAlignment::right_centre);
    EXPECT_EQ(view->model()->index(0, 1).data(Qt::TextAlignmentRole).toInt(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(view->model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
              Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(FrmRooster, een_versleepte_breedte_gaat_naar_het_rooster_en_blijft) {
    view->horizontalHeader()->resizeSection(1, 123);
    EXPECT_EQ(grid.column_width(1), 123 * 15);
    grid.set_redraw(false);
    grid.set_redraw(true);
    EXPECT_EQ(view->columnWidth(1), 123);
}

TEST_F(FrmRooster, een_gewijzigde_cel_meldt_alleen_die_cel) {
    QSignalSpy cellen(view->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    view->verticalScrollBar()->setValue(7);
    grid.set_text(12, 2, "nieuw");
    ASSERT_EQ(cellen.size(), 1);
    EXPECT_EQ(cellen[0][0].toModelIndex(), view->model()->index(11, 2));
    EXPECT_EQ(cellen[0][1].toModelIndex(), view->model()->index(11, 2));
    EXPECT_EQ(resets.size(), 0);
    EXPECT_EQ(view->verticalScrollBar()->value(), 7);
    EXPECT_EQ(tekst(11, 2), "nieuw");
}

TEST_F(FrmRooster, ingevoegde_en_verwijderde_rijen_houden_de_plaats_van_het_rooster) {
    QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    grid.highlight_row(10);
    view->verticalScrollBar()->setValue(5);
    grid.insert_row(3, std::vector<std::string_view>{"a", "b", "c", "d"});
    EXPECT_EQ(view->model()->rowCount(), 41);
    EXPECT_EQ(tekst(2, 0), "a");
    EXPECT_EQ(tekst(3, 0), "r3k0");
    EXPECT_EQ(view->currentIndex().row(), 9); // the row number stays, as in the grid
    EXPECT_EQ(view->verticalScrollBar()->value(), 5);
    grid.remove_row(3);
    EXPECT_EQ(view->model()->rowCount(), 40);
    EXPECT_EQ(view->currentIndex().row(), 9);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(FrmRooster, zonder_hertekenen_hoort_hij_niets_en_daarna_een_keer) {
    QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    grid.set_redraw(false);
    for (int row = 0; row < 100; ++row)
        static_cast<void>(grid.append_row());
    EXPECT_EQ(view->model()->rowCount(), 40);
    grid.set_redraw(true);
    EXPECT_EQ(view->model()->rowCount(), 140);
    EXPECT_EQ(resets.size(), 1);
}

TEST_F(FrmRooster, minder_rijen_dan_getoond_is_onschadelijk) {
    grid.set_redraw(false);
    grid.set_rows(1);
    view->grab(); // painted while the rows are gone and the view does not know
    EXPECT_EQ(tekst(30, 0), "");
    grid.set_redraw(true);
    EXPECT_EQ(view->model()->rowCount(), 0);
    EXPECT_FALSE(view->currentIndex().isValid());
}

TEST_F(FrmRooster, een_rij_die_het_programma_zet_licht_op_zonder_terug_te_roepen) {
    grid.highlight_row(4);
    EXPECT_EQ(view->currentIndex().row(), 3);
    EXPECT_EQ(gekozen_kolommen(), (QList<int>{1, 2, 3}));
    EXPECT_EQ(gekozen, 0);
    grid.set_row(0);
    EXPECT_TRUE(gekozen_kolommen().isEmpty());
}

TEST_F(FrmRooster, een_klik_kiest_de_rij_ook_als_die_al_gekozen_was) {
    klik(3, 1);
    EXPECT_EQ(grid.row(), 4);
    EXPECT_EQ(gekozen, 1);
    klik(3, 2);
    EXPECT_EQ(gekozen, 2);
}

TEST_F(FrmRooster, een_klik_onder_de_rijen_of_met_rechts_doet_niets) {
    grid.set_rows(3);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, 250));
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, QPoint(20, 5));
    EXPECT_EQ(gekozen, 0);
}

TEST_F(FrmRooster, toetsen_lopen_door_de_rijen_en_blijven_erbinnen) {
    view->setFocus();
    klik(0, 1);
    QTest::keyClick(view.get(), Qt::Key_Down);
    EXPECT_EQ(grid.row(), 2);
    QTest::keyClick(view.get(), Qt::Key_End);
    EXPECT_EQ(grid.row(), 40);
    EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    QTest::keyClick(view.get(), Qt::Key_Down);
    EXPECT_EQ(grid.row(), 40);
    QTest::keyClick(view.get(), Qt::Key_Home);
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(view->verticalScrollBar()->value(), 0);
    QTest::keyClick(view.get(), Qt::Key_PageDown);
    EXPECT_GT(grid.row(), 2);
    EXPECT_EQ(gekozen, 6);
    QTest::keyClick(view.get(), Qt::Key_Return);
    EXPECT_EQ(gekozen, 7);
    QTest::keyClick(view.get(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(gekozen, 7);
}

TEST_F(FrmRooster, met_alleen_de_titelrij_doen_toetsen_niets) {
    grid.set_rows(1);
    for (const Qt::Key toets : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Return})
        QTest::keyClick(view.get(), toets);
    EXPECT_EQ(gekozen, 0);
}

TEST_F(FrmRooster, de_bovenste_rij_en_de_schuifbalk_volgen_elkaar) {
    grid.set_top_row(9);
    EXPECT_EQ(view->verticalScrollBar()->value(), 8);
    view->verticalScrollBar()->setValue(3);
    EXPECT_EQ(grid.top_row(), 4);
    grid.set_top_row(40); // beyond what the view can show at its top
    EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    EXPECT_EQ(grid.top_row(), view->verticalScrollBar()->maximum() + 1);
    EXPECT_EQ(gekozen, 0);
}

TEST_F(FrmRooster, in_beeld_brengen_schuift_niet_verder_dan_nodig) {
    view->verticalScrollBar()->setValue(10);
    grid.highlight_row(12);
    view->breng_in_beeld();
    EXPECT_EQ(view->verticalScrollBar()->value(), 10);
    grid.highlight_row(5);
    view->breng_in_beeld();
    EXPECT_EQ(view->verticalScrollBar()->value(), 4);
    grid.highlight_row(38);
    view->breng_in_beeld();
    const QRect rij = view->visualRect(view->model()->index(37, 1));
    EXPECT_TRUE(view->viewport()->rect().contains(rij));
    EXPECT_GT(rij.bottom(), view->viewport()->height() - 2 * rij.height());
}

TEST_F(FrmRooster, een_horizontale_schuifstand_blijft_bij_een_gevonden_nummer) {
    grid.set_column_width(2, 15000);
    QCoreApplication::processEvents();
    view->horizontalScrollBar()->setValue(50);
    grid.highlight_row(20);
    view->breng_in_beeld();
    EXPECT_EQ(view->horizontalScrollBar()->value(), 50);
}

TEST_F(FrmRooster, aan_de_rand_is_te_zien_dat_de_toetsen_hierheen_gaan) {
    const QColor markering = view->palette().color(QPalette::Highlight);
    const auto hoeken = [this] {
        const QImage beeld = view->grab().toImage();
        return std::array{beeld.pixelColor(0, 0), beeld.pixelColor(beeld.width() - 1, beeld.height() - 1)};
    };
    view->clearFocus();
    EXPECT_NE(hoeken()[0], markering);
    EXPECT_NE(hoeken()[1], markering);
    view->activateWindow();
    view->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return view->hasFocus(); }));
    EXPECT_EQ(hoeken(), (std::array{markering, markering}));
}

TEST_F(FrmRooster, kolom_0_is_geschilderd_als_de_kop) {
    const QImage beeld = view->viewport()->grab().toImage();
    const QRect vast = view->visualRect(view->model()->index(2, 0));
    const QRect gewoon = view->visualRect(view->model()->index(2, 1));
    EXPECT_EQ(beeld.pixelColor(vast.topLeft() + QPoint(2, 2)), view->palette().button().color());
    EXPECT_EQ(beeld.pixelColor(gewoon.topLeft() + QPoint(2, 2)), view->palette().base().color());
}

} // namespace
} // namespace tavelo
