#include "workbook/book/sheet_writer.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavelo {
namespace {

struct Blad : testing::Test {
    TextTable texts;
    SheetWriter writer{texts};

    bool number(std::uint32_t row, std::uint32_t column, double value) {
        Cell cell;
        cell.kind = CellKind::number;
        cell.number = value;
        return writer.add(cell, row, column);
    }
};

// "row,column=number" of every cell.
std::string places(const Sheet& sheet) {
    std::string all;
    for (const Cell& cell : sheet.cells)
        all += std::to_string(cell.row) + ',' + std::to_string(cell.column) + '=' +
               std::to_string(static_cast<int>(cell.number)) + ' ';
    return all;
}

std::string box(const Sheet& sheet) {
    const UsedRange& used = sheet.used;
    return std::to_string(used.first_row) + ',' + std::to_string(used.first_column) + ' ' + std::to_string(used.rows) +
           'x' + std::to_string(used.columns);
}

TEST_F(Blad, zonder_cellen_heeft_geen_gebruikt_bereik) {
    const Sheet sheet = writer.take();
    EXPECT_EQ(box(sheet), "0,0 0x0");
    EXPECT_EQ(sheet.default_column_width, 48);
}

TEST_F(Blad, gebruikt_het_bereik_om_zijn_cellen) {
    EXPECT_TRUE(number(2, 5, 1));
    EXPECT_TRUE(number(3, 4, 2));
    EXPECT_TRUE(number(7, 5, 3));
    const Sheet sheet = writer.take();
    EXPECT_EQ(places(sheet), "2,5=1 3,4=2 7,5=3 ");
    EXPECT_EQ(box(sheet), "2,4 6x2");
}

TEST_F(Blad, zet_zijn_cellen_op_volgorde_en_houdt_de_laatste_van_een_plaats) {
    EXPECT_TRUE(number(1, 2, 1));
    EXPECT_TRUE(number(1, 1, 2));
    EXPECT_TRUE(number(0, 9, 3));
    EXPECT_TRUE(number(1, 2, 4));
    EXPECT_TRUE(number(0, 9, 5));
    const Sheet sheet = writer.take();
    EXPECT_EQ(places(sheet), "0,9=5 1,1=2 1,2=4 ");
    EXPECT_EQ(box(sheet), "0,1 2x9");
}

TEST_F(Blad, vergelijkt_elke_cel_met_die_ervoor) {
    EXPECT_TRUE(number(0, 0, 1));
    EXPECT_TRUE(number(2, 2, 2));
    EXPECT_TRUE(number(1, 1, 3));
    EXPECT_TRUE(number(3, 0, 4));
    EXPECT_EQ(places(writer.take()), "0,0=1 1,1=3 2,2=2 3,0=4 ");
}

TEST_F(Blad, houdt_de_laatste_van_een_plaats_ook_als_de_volgorde_klopt) {
    EXPECT_TRUE(number(1, 1, 1));
    EXPECT_TRUE(number(1, 1, 2));
    EXPECT_TRUE(number(2, 1, 3));
    EXPECT_EQ(places(writer.take()), "1,1=2 2,1=3 ");
}

TEST_F(Blad, laat_weg_wat_voorbij_de_laatste_rij_of_kolom_ligt) {
    EXPECT_TRUE(number(sheet_rows - 1, sheet_columns - 1, 1));
    EXPECT_TRUE(number(sheet_rows, 0, 2));
    EXPECT_TRUE(number(0, sheet_columns, 3));
    EXPECT_TRUE(writer.add_text(sheet_rows, 0, "weg"));
    EXPECT_TRUE(writer.add_text(0, sheet_columns, "weg"));
    EXPECT_TRUE(writer.add_text(0, 0, ""));
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(places(writer.take()), "1048575,16383=1 ");
}

TEST_F(Blad, bewaart_van_een_tekst_nummer_en_opmaak) {
    EXPECT_TRUE(writer.add_text(0, 0, "Amber"));
    EXPECT_TRUE(writer.add_text(sheet_rows - 1, sheet_columns - 1, "Bo", 7));
    const Sheet sheet = writer.take();
    ASSERT_EQ(sheet.cells.size(), 2U);
    EXPECT_EQ(sheet.cells[0].kind, CellKind::text);
    EXPECT_EQ(sheet.cells[0].text, 0U);
    EXPECT_EQ(sheet.cells[0].format, 0U);
    EXPECT_EQ(sheet.cells[1].text, 1U);
    EXPECT_EQ(sheet.cells[1].format, 7U);
    EXPECT_EQ(texts[1], "Bo");
}

TEST_F(Blad, geeft_kolommen_ervoor_de_gewone_breedte) {
    writer.set_default_width(50);
    writer.set_width(2, 3, 10);
    writer.set_width(1, 1, 20);
    writer.set_width(3, 4, 30);
    const Sheet sheet = writer.take();
    EXPECT_EQ(sheet.column_widths, (std::vector<double>{50, 20, 10, 30, 30}));
    EXPECT_EQ(sheet.default_column_width, 50);
}

TEST_F(Blad, kent_geen_breedte_voorbij_de_laatste_kolom) {
    writer.set_width(sheet_columns - 1, sheet_columns + 5, 10);
    writer.set_width(sheet_columns, sheet_columns, 10);
    EXPECT_EQ(writer.take().column_widths.size(), sheet_columns);
}

TEST_F(Blad, is_na_het_afgeven_weer_leeg) {
    EXPECT_TRUE(number(1, 1, 1));
    EXPECT_EQ(writer.take().cells.size(), 1U);
    EXPECT_TRUE(writer.take().cells.empty());
}

} // namespace
} // namespace tavelo
