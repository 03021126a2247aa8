// Every record that holds a cell, read from streams without a container.
#include "xls_bytes.h"

#include <gtest/gtest.h>

namespace tavelo {

using namespace testing_xls;
using Shown = std::vector<std::string>;

namespace {

constexpr unsigned continued = 0x003C;
constexpr unsigned shared_strings = 0x00FC;

Bytes formula(unsigned type, unsigned row, unsigned column, const Bytes& result) {
    return Bytes().record(type, place(row, column).add(result).zeros(8));
}

Bytes special_result(unsigned kind, unsigned value = 0) {
    return Bytes().u8(kind).u8(0).u8(value).zeros(3).u16(0xFFFF);
}

constexpr std::uint32_t whole(std::int32_t value) { return static_cast<std::uint32_t>(value) << 2 | 2; }

} // namespace

TEST(XlsCellen, getallen_staan_voluit_of_verkort) {
    Bytes cells = number(0, 0, 1.25);
    cells.record(0x027E, place(0, 1).u32(whole(7))).record(0x027E, place(0, 2).u32(whole(1234) | 1)); // hundredths
    cells.record(0x027E, place(0, 3).u32(0x40080000)).record(0x027E, place(0, 4).u32(0x40080001)); // upper half of 3.0
    cells.record(0x027E, place(0, 5).u32(whole(-5)));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=1.25", "B1=7", "C1=12.34", "D1=3", "E1=0.03", "F1=-5"}));
}

TEST(XlsCellen, een_rij_getallen_in_een_record_telt_de_kolommen_door) {
    Bytes cells;
    cells.record(0x00BD, Bytes().u16(4).u16(2).u16(0).u32(whole(1)).u16(0).u32(whole(2)).u16(3));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"C5=1", "D5=2"}));
}

TEST(XlsCellen, een_rij_die_niet_uitkomt_geeft_wat_heel_is) {
    const auto numbers = [](std::size_t size) {
        Bytes data = Bytes().u16(0).u16(0).u16(0).u32(whole(1)).u16(0).u32(whole(2)).u16(1);
        return shown(sheet_8(Bytes().record(0x00BD, data.zeros(6).cut(size))));
    };
    EXPECT_EQ(numbers(11), Shown{});
    EXPECT_EQ(numbers(12), Shown{"A1=1"});
    EXPECT_EQ(numbers(14), Shown{"A1=1"});
    EXPECT_EQ(numbers(17), Shown{"A1=1"});
    EXPECT_EQ(numbers(18), (Shown{"A1=1", "B1=2"}));
    const auto blanks = [](std::size_t size) {
        const Bytes data = Bytes().u16(0).u16(0).u16(0).u16(0).u16(0).zeros(2);
        const auto workbook = open_xls(sheet_8(Bytes().record(0x00BE, Bytes(data).cut(size))).bytes());
        return (*workbook)->read_sheet(0)->used.columns;
    };
    EXPECT_EQ(blanks(7), 0U);
    EXPECT_EQ(blanks(8), 1U);
    EXPECT_EQ(blanks(9), 1U);
    EXPECT_EQ(blanks(10), 2U);
    EXPECT_EQ(blanks(12), 3U);
}

TEST(XlsCellen, een_rij_getallen_eindigt_met_het_blad) {
    Bytes data = Bytes().u16(0).u16(254);
    for (int value = 1; value <= 4; ++value)
        data.u16(0).u32(whole(value));
    const auto workbook = open_xls(sheet_8(Bytes().record(0x00BD, data.u16(257))).bytes());
    const auto sheet = (*workbook)->read_sheet(0);
    ASSERT_EQ(sheet->cells.size(), 2U);
    EXPECT_EQ(sheet->cells[1].column, 255U);
    EXPECT_EQ(sheet->used.columns, 2U);
}

TEST(XlsCellen, waarheden_en_fouten) {
    Bytes cells;
    cells.record(0x0205, place(0, 0).u8(1).u8(0)).record(0x0205, place(0, 1).u8(0).u8(0));
    cells.record(0x0205, place(0, 2).u8(0x2A).u8(1));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=waar", "B1=onwaar", "C1=fout 42"}));
}

TEST(XlsCellen, een_formule_toont_haar_bewaarde_uitkomst) {
    Bytes cells = formula(0x0006, 0, 0, Bytes().f64(2.5));
    cells.add(formula(0x0206, 0, 1, Bytes().f64(3.5))).add(formula(0x0406, 0, 2, Bytes().f64(4.5)));
    cells.add(formula(0x0006, 1, 0, special_result(1, 1))).add(formula(0x0006, 1, 1, special_result(2, 0x07)));
    cells.add(formula(0x0006, 1, 2, special_result(3)));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=2.5", "B1=3.5", "C1=4.5", "A2=waar", "B2=fout 7", "C2="}));
}

TEST(XlsCellen, de_tekst_van_een_formule_komt_erna_ook_als_er_een_gedeelde_formule_tussen_staat) {
    Bytes cells = formula(0x0006, 0, 0, special_result(0));
    cells.record(0x04BC, Bytes().zeros(10)); // shared formula
    cells.record(0x0207, Bytes().u16(5).u8(0).narrow("Barr")).record(continued, Bytes().u8(1).wide(u"\u00E9"));
    cells.add(number(0, 1, 9));
    cells.record(0x0207, Bytes().u16(4).u8(0).narrow("loos")); // belongs to no formula
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=Barré", "B1=9"}));
}

TEST(XlsCellen, een_formule_zonder_haar_tekst_is_leeg) {
    EXPECT_EQ(shown(sheet_8(formula(0x0006, 0, 0, special_result(0)))), (Shown{"A1="}));
}

TEST(XlsCellen, tekst_staat_in_de_cel_zelf_met_of_zonder_opmaak) {
    Bytes cells = label_8(0, 0, "Ruiter");
    cells.record(0x00D6, place(0, 1).u16(5).u8(0).narrow("Paard").u16(1).u16(0).u16(2));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=Ruiter", "B1=Paard"}));
    Bytes old_cells = label_5(0, 0, "Ruiter");
    old_cells.record(0x00D6, place(0, 1).u16(5).narrow("Paard").u8(1).u8(0).u8(2));
    EXPECT_EQ(shown(sheet_5(old_cells)), (Shown{"A1=Ruiter", "B1=Paard"}));
}

TEST(XlsCellen, een_tekst_van_een_byte_per_letter_is_latijn_en_tussen_80_en_9f_windows) {
    EXPECT_EQ(shown(sheet_8(label_8(0, 0, "Caf\xE9 \x8A"))), (Shown{"A1=Café Š"}));
}

TEST(XlsCellen, gedeelde_teksten_slaan_opmaak_en_uitspraak_over) {
    Bytes table = Bytes().u32(3).u32(3);
    table.u16(3).u8(0x08).u16(1).narrow("een").zeros(4);             // one formatting run
    table.u16(4).u8(0x05).u32(6).wide(u"twee").narrow("klanks");     // wide, with a phonetic block
    table.u16(4).u8(0x0C).u16(2).u32(3).narrow("drie").zeros(8 + 3); // both
    const Bytes cells = shared(0, 0, 0).add(shared(0, 1, 1)).add(shared(0, 2, 2));
    EXPECT_EQ(shown(sheet_8(cells, Bytes().record(shared_strings, table))), (Shown{"A1=een", "B1=twee", "C1=drie"}));
}

TEST(XlsCellen, een_afgebroken_gedeelde_tekst_gaat_in_het_volgende_record_verder_met_een_nieuwe_vlag) {
    Bytes table;
    table.record(shared_strings, Bytes().u32(3).u32(3).u16(6).u8(0).narrow("abc"));
    table.record(continued, Bytes().u8(1).wide(u"d\u20AC"));                                  // from narrow to wide
    table.record(continued, Bytes().u8(0).narrow("f").u16(1).u8(0).narrow("x").u16(2).u8(1)); // and back
    table.record(continued, Bytes().u8(0).narrow("yz")); // cut between flags and characters
    const Bytes cells = shared(0, 0, 0).add(shared(0, 1, 1)).add(shared(0, 2, 2));
    EXPECT_EQ(shown(sheet_8(cells, table)), (Shown{"A1=abcd€f", "B1=x", "C1=yz"}));
}

TEST(XlsCellen, opmaak_en_uitspraak_mogen_over_de_snede_lopen) {
    Bytes table;
    table.record(shared_strings, Bytes().u32(2).u32(2).u16(3).u8(0x0C).u16(2).u32(4).narrow("een").zeros(6));
    table.record(continued, Bytes().zeros(2 + 4).u16(4).u8(0).narrow("twee"));
    EXPECT_EQ(shown(sheet_8(shared(0, 0, 0).add(shared(0, 1, 1)), table)), (Shown{"A1=een", "B1=twee"}));
}

TEST(XlsCellen, een_teken_buiten_het_basisvlak_overleeft_de_snede) {
    Bytes table;
    table.record(shared_strings, Bytes().u32(1).u32(1).u16(2).u8(1).u16(0xD83D));
    table.record(continued, Bytes().u8(1).u16(0xDC0E));
    EXPECT_EQ(shown(sheet_8(shared(0, 0, 0), table)), (Shown{"A1=\U0001F40E"}));
}

TEST(XlsCellen, een_los_half_teken_wordt_een_vervangingsteken) {
    const Bytes cell = Bytes().record(0x0204, place(0, 0).u16(2).u8(1).u16(0xDC0E).u16('a'));
    EXPECT_EQ(shown(sheet_8(cell)), (Shown{"A1=\uFFFDa"}));
}

TEST(XlsCellen, een_gedeelde_tekst_die_er_niet_is_laat_de_cel_leeg) {
    Bytes table;
    table.record(shared_strings, Bytes().u32(500).u32(500).u16(3).u8(0).narrow("een")); // claims more than it has
    EXPECT_EQ(shown(sheet_8(shared(0, 0, 0).add(shared(0, 1, 1)), table)), (Shown{"A1=een"}));
}

TEST(XlsCellen, een_tekst_die_langer_zegt_te_zijn_dan_het_bestand_geeft_wat_er_is) {
    Bytes table;
    table.record(shared_strings, Bytes().u32(1).u32(1).u16(0xFFFF).u8(0x08).u16(0xFFFF).narrow("kort"));
    EXPECT_EQ(shown(sheet_8(shared(0, 0, 0), table)), (Shown{"A1=kort"}));
}

TEST(XlsCellen, van_twee_records_voor_een_plaats_telt_het_laatste) {
    const Bytes cells = number(1, 1, 1).add(number(0, 0, 2)).add(number(1, 1, 3)).add(number(0, 0, 4));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=4", "B2=3"}));
}

TEST(XlsCellen, een_lege_cel_vervangt_een_eerdere_waarde) {
    EXPECT_EQ(shown(sheet_8(number(0, 0, 1).add(number(0, 1, 2)).add(blank(0, 0)))), (Shown{"A1", "B1=2"}));
}

TEST(XlsCellen, een_kolom_voorbij_de_laatste_van_het_blad_telt_niet) {
    const auto workbook = open_xls(sheet_8(number(0, 256, 1).add(number(65535, 255, 2))).bytes());
    const auto sheet = (*workbook)->read_sheet(0);
    ASSERT_EQ(sheet->cells.size(), 1U);
    EXPECT_EQ(sheet->cells[0].row, 65535U);
    EXPECT_EQ(sheet->cells[0].column, 255U);
    EXPECT_EQ(sheet->used.rows, 1U);
    EXPECT_EQ(sheet->used.columns, 1U);
}

TEST(XlsCellen, een_grafiek_in_het_blad_geeft_geen_cellen) {
    Bytes cells = number(0, 0, 1);
    cells.record(0x0809, bof_8(chart)).add(number(0, 0, 99)).add(number(7, 7, 99)).record(0x000A);
    cells.add(number(0, 1, 2));
    EXPECT_EQ(shown(sheet_8(cells)), (Shown{"A1=1", "B1=2"}));
}

TEST(XlsCellen, te_korte_records_worden_overgeslagen) {
    Bytes cells;
    for (const unsigned type : {0x06U, 0xBDU, 0xBEU, 0xD6U, 0xFDU, 0x201U, 0x203U, 0x204U, 0x205U, 0x27EU})
        cells.record(type, Bytes().u16(0).u16(0).u8(0));
    EXPECT_EQ(shown(sheet_8(cells.add(number(0, 1, 5)))), (Shown{"B1=5"}));
}

} // namespace tavelo
