// The workbook around the cells: sheets, styles, code pages, used range, column widths, versions, damage.
#include "workbook/xls/biff_stream.h"

#include "xls_bytes.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {

using namespace testing_xls;
using Shown = std::vector<std::string>;
using Used = std::array<std::uint32_t, 4>; // first row, first column, rows, columns

namespace {

Sheet read(const Bytes& file) {
    const auto workbook = open_xls(file.bytes());
    if (!workbook) {
        ADD_FAILURE() << "kan niet open";
        return {};
    }
    const auto sheet = (*workbook)->read_sheet(0);
    EXPECT_TRUE(sheet.has_value());
    return sheet.value_or(Sheet{});
}

Used used(const Bytes& file) {
    const UsedRange range = read(file).used;
    return {range.first_row, range.first_column, range.rows, range.columns};
}

// Opening itself never answers too_large, so that stands for success here.
OpenFailure failure(const Bytes& file) {
    const auto workbook = open_xls(file.bytes());
    return workbook ? OpenFailure::too_large : workbook.error();
}

Bytes row(unsigned number, unsigned first, unsigned end, unsigned options) {
    return Bytes().record(0x0208, Bytes().u16(number).u16(first).u16(end).u16(255).zeros(4).u16(options).u16(15));
}

Bytes columns(unsigned first, unsigned last, unsigned width, unsigned format = 15, unsigned options = 0) {
    return Bytes().record(0x007D, Bytes().u16(first).u16(last).u16(width).u16(format).u16(options).zeros(2));
}

Shown under_code_page(unsigned code_page, std::string_view bytes) {
    return shown(sheet_5(label_5(0, 0, bytes), Bytes().record(0x0042, Bytes().u16(code_page))));
}

} // namespace

TEST(XlsWerkmap, aantallen_die_geen_werkmap_heeft_worden_niet_onthouden) {
    std::string names;
    for (std::size_t i = 0; i < most_sheets; ++i)
        names.append("\x85\0\x08\0\0\0\0\0\0\0\0\0", 12);
    const auto workbook = open_xls(sheet_8(number(0, 0, 1), Bytes().narrow(names)).bytes());
    ASSERT_TRUE(workbook.has_value());
    EXPECT_EQ((*workbook)->sheets().size(), most_sheets);
}

TEST(XlsWerkmap, een_blad_met_te_veel_cellen_is_te_groot) {
    const std::vector<std::byte> full_row = Bytes().record(0x00BD, Bytes().zeros(4 + 256 * 6 + 2)).bytes();
    std::vector<std::byte> file = sheet_8({}).bytes();
    constexpr std::size_t end_record = 4;
    file.resize(file.size() - end_record);
    file.reserve(file.size() + (most_cells / 256 + 1) * full_row.size());
    for (std::size_t count = 0; count <= most_cells; count += 256)
        file.insert(file.end(), full_row.begin(), full_row.end());
    const auto workbook = open_xls(std::move(file));
    ASSERT_TRUE(workbook.has_value());
    const auto sheet = (*workbook)->read_sheet(0);
    ASSERT_FALSE(sheet.has_value());
    EXPECT_EQ(sheet.error(), OpenFailure::too_large);
}

TEST(XlsWerkmap, de_bladen_staan_in_hun_volgorde_met_hun_soort) {
    Bytes dialog;
    dialog.record(0x0081, Bytes().u16(0x0010));
    const Bytes file = book_8({{"Grafiek", number(0, 0, 9), 2, chart},
                               {"Start", number(0, 0, 1)},
                               {"Macro", number(0, 0, 2), 1, macro_sheet},
                               {"Dialoog", dialog.add(number(0, 0, 3))},
                               {"Module", {}, 6, 0x06}});
    const auto workbook = open_xls(file.bytes());
    ASSERT_TRUE(workbook.has_value());
    const auto sheets = (*workbook)->sheets();
    ASSERT_EQ(sheets.size(), 5U);
    EXPECT_EQ(sheets[0].name, "Grafiek");
    EXPECT_EQ(sheets[0].kind, SheetKind::chart);
    EXPECT_EQ(sheets[1].name, "Start");
    EXPECT_EQ(sheets[1].kind, SheetKind::worksheet);
    EXPECT_EQ(sheets[2].kind, SheetKind::macro);
    EXPECT_EQ(sheets[3].kind, SheetKind::dialog);
    EXPECT_EQ(sheets[4].kind, SheetKind::macro);
    EXPECT_EQ(shown(file, 0), Shown{});
    EXPECT_EQ(shown(file, 1), (Shown{"A1=1"}));
    EXPECT_EQ(shown(file, 2), (Shown{"A1=2"}));
    EXPECT_EQ(shown(file, 3), Shown{});
    EXPECT_EQ(shown(file, 4), Shown{});
}

TEST(XlsWerkmap, een_bladnaam_kan_breed_zijn) {
    Bytes file = Bytes().record(0x0809, bof_8(globals));
    file.record(0x0085, Bytes().u32(0).zeros(2).u8(4).u8(1).wide(u"Caf\u00E9")).record(0x000A);
    const auto workbook = open_xls(file.bytes());
    ASSERT_TRUE(workbook.has_value());
    EXPECT_EQ((*workbook)->sheets()[0].name, "Café");
}

TEST(XlsWerkmap, een_blad_dat_er_niet_is_of_niet_begint_is_een_fout) {
    EXPECT_EQ((*open_xls(sheet_8({}).bytes()))->read_sheet(1).error(), OpenFailure::unreadable);
    Bytes wrong = Bytes().record(0x0809, bof_8(globals));
    wrong.record(0x0085, Bytes().u32(3).zeros(2).u8(1).u8(0).narrow("x")).record(0x000A); // a place inside a record
    EXPECT_EQ((*open_xls(wrong.bytes()))->read_sheet(0).error(), OpenFailure::damaged);
}

TEST(XlsWerkmap, een_blad_waar_zijn_naam_naast_wijst_wordt_gevonden) {
    const Bytes good = book_8({{.name = "a", .records = number(0, 0, 1)}, {.name = "b", .records = number(0, 0, 2)}});
    constexpr std::size_t first_offset = 20 + 4; // behind the BOF record of the globals and the head of the first name
    for (const int beside : {-7, -1, 1, 3, 9}) {
        Bytes file = good;
        const auto right = std::to_integer<unsigned>(good.bytes().at(first_offset));
        file.put_u8(first_offset, right + static_cast<unsigned>(beside));
        EXPECT_EQ(shown(file), Shown{"A1=1"}) << beside;
        EXPECT_EQ(shown(file, 1), Shown{"A1=2"}) << beside;
    }
    Bytes far = good;
    far.put_u32(first_offset, 0x7FFFFFFF);
    EXPECT_EQ(shown(far), Shown{"A1=2"}); // the last sheet is the nearest
}

TEST(XlsWerkmap, een_blad_wordt_gezocht_bij_het_dichtste_begin) {
    const Bytes good = book_8({{.name = "a", .records = number(0, 0, 1)}, {.name = "b", .records = number(0, 0, 2)}});
    constexpr std::size_t bof_size = 20;
    constexpr std::size_t name_size = 4 + 9;
    constexpr std::size_t second_offset = bof_size + name_size + 4;
    constexpr std::uint32_t sheet_size = bof_size + 18 + 4; // BOF, the number, EOF
    const std::uint32_t second = long_at(good.bytes(), second_offset);
    ASSERT_EQ(second - long_at(good.bytes(), bof_size + 4), sheet_size);
    for (const auto& [back, value] : {std::pair{1U, "A1=2"},
                                      {7U, "A1=2"},
                                      {sheet_size / 2 - 1, "A1=2"},
                                      {sheet_size / 2, "A1=1"},
                                      {sheet_size / 2 + 1, "A1=1"},
                                      {sheet_size - 1, "A1=1"}})
        EXPECT_EQ(shown(Bytes(good).put_u32(second_offset, second - back), 1), Shown{value}) << back;
}

TEST(XlsWerkmap, een_grafiek_in_een_blad_is_niet_het_blad_dat_gezocht_wordt) {
    Bytes cells = number(0, 0, 1);
    const std::size_t chart_place = cells.size(); // in the records of the sheet
    cells.record(0x0809, bof_8(chart)).record(0x000A).add(number(1, 0, 3)).add(number(2, 0, 4));
    Bytes file = book_8({{.name = "a", .records = cells}, {.name = "b", .records = number(0, 0, 2)}});
    constexpr std::size_t first_offset = 20 + 4;
    constexpr std::size_t bof_size = 20;
    const auto sheet = std::to_integer<unsigned>(file.bytes().at(first_offset));
    file.put_u32(first_offset, static_cast<std::uint32_t>(sheet + bof_size + chart_place - 1));
    EXPECT_EQ(shown(file), (Shown{"A1=1", "A2=3", "A3=4"}));
}

TEST(XlsWerkmap, een_cel_krijgt_de_getalopmaak_van_haar_stijl) {
    Bytes records = format_8(164, "0.000\"x\"").add(format_8(5, "\"fl\" 0"));
    records.add(xf(0)).add(xf(164)).add(xf(5)).add(xf(9));
    Bytes cells = number(0, 0, 1, 1).add(number(0, 1, 1, 2)).add(number(0, 2, 1, 3)).add(number(0, 3, 1, 99));
    const auto workbook = open_xls(sheet_8(cells, records).bytes());
    const auto sheet = (*workbook)->read_sheet(0);
    const auto code = [&](std::size_t cell) { return (*workbook)->formats()[sheet->cells[cell].format]; };
    EXPECT_EQ(code(0), "0.000\"x\"");
    EXPECT_EQ(code(1), "\"fl\" 0"); // the file's own text for a built-in number
    EXPECT_EQ(code(2), "0%");
    EXPECT_EQ(code(3), ""); // a style that does not exist
}

TEST(XlsWerkmap, datums_kunnen_in_1904_beginnen) {
    EXPECT_FALSE((*open_xls(sheet_8({}).bytes()))->dates_from_1904());
    EXPECT_TRUE((*open_xls(sheet_8({}, Bytes().record(0x0022, Bytes().u16(1))).bytes()))->dates_from_1904());
}

TEST(XlsWerkmap, oude_teksten_volgen_hun_codetabel) {
    EXPECT_EQ(under_code_page(1252, "\x80 \xE9"), (Shown{"A1=€ é"}));
    EXPECT_EQ(under_code_page(1252, "\x81"), (Shown{"A1=\xC2\x81"})); // a byte without a character
    EXPECT_EQ(under_code_page(32769, "\x80"), (Shown{"A1=€"}));
    EXPECT_EQ(under_code_page(10000, "\x8E\xDB"), (Shown{"A1=é€"}));
    EXPECT_EQ(under_code_page(32768, "\x8E"), (Shown{"A1=é"}));
    EXPECT_EQ(under_code_page(1250, "\x8A\xE8"), (Shown{"A1=Šč"}));
    EXPECT_EQ(under_code_page(1251, "\xCA\xEE\xED\xFC"), (Shown{"A1=Конь"}));
    EXPECT_EQ(under_code_page(1253, "\xE9\xF0"), (Shown{"A1=ιπ"}));
    EXPECT_EQ(under_code_page(1254, "\xFE"), (Shown{"A1=ş"}));
    EXPECT_EQ(under_code_page(1257, "\xE0"), (Shown{"A1=ą"}));
    EXPECT_EQ(under_code_page(1258, "\xFE"), (Shown{"A1=₫"}));
    EXPECT_EQ(under_code_page(437, "\x82"), (Shown{"A1=é"}));
    EXPECT_EQ(under_code_page(850, "\x9B"), (Shown{"A1=ø"}));
    EXPECT_EQ(under_code_page(4711, "\xE9"), (Shown{"A1=é"})); // unknown: as 1252
}

TEST(XlsWerkmap, oude_japanse_teksten_hebben_een_of_twee_bytes_per_teken) {
    EXPECT_EQ(under_code_page(932, "\x94\x6E Paard \xB3\xCF"), (Shown{"A1=馬 Paard ｳﾏ"}));
    EXPECT_EQ(under_code_page(932, "\x83\x5C\xFB\xFC"), (Shown{"A1=ソ髙"})); // the second byte can be a backslash
    EXPECT_EQ(under_code_page(932, "\x81\xAD"), (Shown{"A1=\uFFFD"}));       // no character there
    EXPECT_EQ(under_code_page(932, "\x94"), (Shown{"A1=\xC2\x94"}));         // cut off
}

TEST(XlsWerkmap, het_gebruikte_bereik_omvat_ook_lege_cellen_met_opmaak) {
    Bytes cells = blank(2, 3).add(number(4, 1, 1));
    cells.record(0x00BE, Bytes().u16(5).u16(2).u16(0).u16(0).u16(0).u16(4));
    EXPECT_EQ(used(sheet_8(cells)), (Used{2, 1, 4, 4}));
}

TEST(XlsWerkmap, de_opgegeven_afmeting_wordt_niet_geloofd) {
    const Bytes claim = Bytes().record(0x0200, Bytes().u32(0).u32(65536).u16(0).u16(256).u16(0));
    EXPECT_EQ(used(sheet_8(Bytes(claim).add(number(1, 1, 1)))), (Used{1, 1, 1, 1}));
    EXPECT_EQ(used(sheet_8(claim)), (Used{0, 0, 0, 0}));
}

TEST(XlsWerkmap, de_opgegeven_afmeting_zegt_hooguit_hoeveel_geheugen_er_vast_is) {
    const auto claim = [](std::uint32_t first_row, std::uint32_t end_row, unsigned columns) {
        return Bytes().record(0x0200, Bytes().u32(first_row).u32(end_row).u16(0).u16(columns).u16(0));
    };
    Bytes cells;
    for (unsigned row = 0; row < 50; ++row)
        cells.add(shared(row, 0, 0)).add(number(row, 1, 1.5));
    const auto capacity = [&](const Bytes& claims) {
        const auto book = open_xls(sheet_8(Bytes(claims).add(cells)).bytes());
        const auto sheet = (*book)->read_sheet(0);
        EXPECT_EQ(sheet->cells.size(), 50U); // of the texts there is none
        return sheet->cells.capacity();
    };
    EXPECT_EQ(capacity(claim(0, 50, 2)), 100U);
    EXPECT_EQ(capacity(claim(10, 50, 2)), 80U);
    EXPECT_EQ(capacity(claim(0, 50, 2).add(claim(0, 100, 2))), 100U); // the first one counts
    const std::size_t largest = (cells.size() + 4) / 14;              // with the end of the sheet
    EXPECT_EQ(capacity(claim(0, 65536, 256)), largest);
    EXPECT_EQ(capacity(claim(0, 0xFFFFFFFF, 65535)), largest);
    EXPECT_EQ(capacity(claim(5, 0, 65535)), largest);
    for (const Bytes& wrong : {claim(0, 0, 0), claim(0, 1, 1), claim(0, 50, 0)}) // too little is no limit
        EXPECT_GE(capacity(wrong), 50U);
}

TEST(XlsWerkmap, rijen_met_een_eigen_hoogte_of_opmaak_en_verborgen_rijen_tellen_mee) {
    EXPECT_EQ(used(sheet_8(row(0, 0, 0, 0x140).add(number(2, 1, 1)))), (Used{0, 1, 3, 1}));
    EXPECT_EQ(used(sheet_8(row(7, 0, 0, 0x180).add(number(2, 1, 1)))), (Used{2, 1, 6, 1}));
    EXPECT_EQ(used(sheet_8(row(4, 0, 0, 0x120).add(number(2, 1, 1)))), (Used{2, 1, 3, 1}));
    EXPECT_EQ(used(sheet_8(row(7, 0, 0, 0x100).add(number(2, 1, 1)))), (Used{2, 1, 1, 1}));
    EXPECT_EQ(used(sheet_8(row(2, 0, 4, 0x100).add(number(2, 1, 1)))), (Used{2, 0, 1, 4}));
}

TEST(XlsWerkmap, kolommen_met_een_eigen_opmaak_en_verborgen_kolommen_tellen_mee) {
    EXPECT_EQ(used(sheet_8(columns(3, 3, 2560, 20).add(number(0, 0, 1)))), (Used{0, 0, 1, 4}));
    EXPECT_EQ(used(sheet_8(columns(3, 3, 2560, 15, 1).add(number(0, 0, 1)))), (Used{0, 0, 1, 4}));
    EXPECT_EQ(used(sheet_8(columns(3, 3, 5120).add(number(0, 0, 1)))), (Used{0, 0, 1, 1}));
    // What all columns up to the edge have is no format of their own.
    const Bytes all = columns(3, 3, 2560, 20).add(columns(4, 255, 2560, 20));
    EXPECT_EQ(used(sheet_8(Bytes(all).add(number(0, 0, 1)))), (Used{0, 0, 1, 1}));
}

TEST(XlsWerkmap, een_blad_zonder_cellen_heeft_geen_gebruikt_bereik) {
    EXPECT_EQ(used(sheet_8(row(3, 0, 0, 0x140).add(columns(2, 2, 2560, 20)))), (Used{0, 0, 0, 0}));
}

TEST(XlsWerkmap, kolombreedten_zijn_punten_bij_het_lettertype_van_de_stijl_standaard) {
    const Bytes normal = Bytes().record(0x0293, Bytes().u16(0x8001).u8(0).u8(0xFF));
    const Bytes fonts = font_8(10, "Arial").add(font_8(12, "Calibri")).add(xf(0)).add(xf(0, 1));
    const Bytes cells = columns(1, 2, 16 * 256 + 160).add(columns(3, 3, 2560, 15, 1));
    const Sheet arial = read(sheet_8(cells, fonts));
    EXPECT_EQ(arial.default_column_width, 48.0);
    EXPECT_EQ(arial.column_widths, (std::vector<double>{48.0, 87.0, 87.0, 0.0}));
    const Sheet calibri = read(sheet_8(cells, Bytes(fonts).add(normal)));
    EXPECT_EQ(calibri.default_column_width, 54.0);
    EXPECT_EQ(calibri.column_widths, (std::vector<double>{54.0, 99.75, 99.75, 0.0}));
}

TEST(XlsWerkmap, de_gewone_kolombreedte_staat_in_tekens_of_nauwkeurig) {
    const Bytes characters = Bytes().record(0x0055, Bytes().u16(10));
    const Bytes exact = Bytes().record(0x0099, Bytes().u16(20 * 256));
    EXPECT_EQ(read(sheet_8(characters)).default_column_width, 60.0);
    EXPECT_EQ(read(sheet_8(Bytes(characters).add(exact))).default_column_width, 105.0);
}

TEST(XlsWerkmap, opmaak_en_stijlen_verschuiven_de_lettertypen_niet) {
    // The font of the style is the second one, of 20 points: 15 pixels a digit.
    const Bytes fonts = font_8(10, "Arial").add(font_8(20, "Arial"));
    const Bytes normal = Bytes().record(0x0293, Bytes().u16(0x8000).u8(0).u8(0xFF));
    const Bytes other = Bytes().record(0x0293, Bytes().u16(0x8001).u8(3).u8(0xFF)); // another style
    const Bytes own = Bytes().record(0x0293, Bytes().u16(0x0001).u8(0).u8(0xFF));   // one with a name of its own
    const Bytes xfs = xf(0, 1).add(xf(0, 0));
    const auto width = [](const Bytes& records) { return read(sheet_8({}, records)).default_column_width; };
    EXPECT_EQ(width(Bytes(fonts).add(xfs)), 102.0);
    EXPECT_EQ(width(format_8(164, "0.0").add(format_8(165, "0.00")).add(fonts).add(xfs)), 102.0);
    EXPECT_EQ(width(Bytes(fonts).add(format_8(164, "0.0")).add(xfs).add(normal)), 102.0);
    EXPECT_EQ(width(Bytes(fonts).add(xfs).add(other)), 102.0);
    EXPECT_EQ(width(Bytes(fonts).add(xfs).add(own)), 102.0);
    EXPECT_EQ(width(Bytes(fonts).add(xfs).add(Bytes().record(0x0293, Bytes().u16(0x8001).u8(0).u8(0xFF)))), 48.0);
    EXPECT_EQ(width(Bytes(fonts).add(xfs).add(Bytes().record(0x0293, Bytes().u16(0xF001).u8(0).u8(0xFF)))), 48.0);
    EXPECT_EQ(width(Bytes(fonts).add(xfs).add(Bytes().record(0x0293, Bytes().u16(0x8009).u8(0).u8(0xFF)))), 48.0);
    EXPECT_EQ(width(Bytes(fonts).add(xf(0, 9))), 48.0);
}

TEST(XlsWerkmap, lettertypen_van_elke_versie_geven_de_breedte) {
    const Bytes name = Bytes().u8(7).narrow("Verdana");
    const auto width = [](const Bytes& file) { return read(file).default_column_width; };
    Bytes first = Bytes().record(0x0009, Bytes().u16(2).u16(worksheet));
    first.record(0x0031, Bytes().u16(400).zeros(2).add(name)).record(0x000A);
    EXPECT_EQ(width(first), 114.0);
    Bytes third = Bytes().record(0x0209, Bytes().u16(3).u16(worksheet).u16(0));
    third.record(0x0231, Bytes().u16(400).zeros(4).add(name)).record(0x0243, Bytes().zeros(12)).record(0x000A);
    EXPECT_EQ(width(third), 114.0);
    Bytes fourth = Bytes().record(0x0409, Bytes().u16(4).u16(worksheet).u16(0));
    fourth.record(0x0231, Bytes().u16(400).zeros(4).add(name)).record(0x0443, Bytes().zeros(12)).record(0x000A);
    EXPECT_EQ(width(fourth), 114.0);
    Bytes fifth = Bytes().record(0x0809, bof_5(worksheet));
    fifth.record(0x0031, Bytes().u16(400).zeros(12).add(name)).add(xf(0)).record(0x000A);
    EXPECT_EQ(width(fifth), 114.0);
}

TEST(XlsWerkmap, stijlen_van_elke_versie_wijzen_hun_opmaak_aan) {
    const auto code_of = [](const Bytes& file) {
        const auto workbook = open_xls(file.bytes());
        const auto sheet = (*workbook)->read_sheet(0);
        return std::string((*workbook)->formats()[sheet->cells.at(0).format]);
    };
    const auto format = [](std::string_view code, unsigned head) {
        Bytes data;
        data.zeros(head).u8(static_cast<unsigned>(code.size())).narrow(code);
        return data;
    };
    Bytes third = Bytes().record(0x0209, Bytes().u16(3).u16(worksheet).u16(0));
    third.record(0x001E, format("0.0", 0)).record(0x001E, format("0.00", 0));
    third.record(0x0243, Bytes().u8(0).u8(1).zeros(10)).record(0x0243, Bytes().u8(0).u8(0).zeros(10));
    EXPECT_EQ(code_of(Bytes(third).add(number(0, 0, 1, 0)).record(0x000A)), "0.00");
    EXPECT_EQ(code_of(Bytes(third).add(number(0, 0, 1, 1)).record(0x000A)), "0.0");
    EXPECT_EQ(code_of(Bytes(third).add(number(0, 0, 1, 2)).record(0x000A)), "");
    Bytes fourth = Bytes().record(0x0409, Bytes().u16(4).u16(worksheet).u16(0));
    fourth.record(0x041E, format("0.0", 2)).record(0x041E, format("0.00", 2));
    fourth.record(0x0443, Bytes().u8(0).u8(1).zeros(10)).record(0x0443, Bytes().u8(0).u8(7).zeros(10));
    EXPECT_EQ(code_of(Bytes(fourth).add(number(0, 0, 1, 0)).record(0x000A)), "0.00");
    EXPECT_EQ(code_of(Bytes(fourth).add(number(0, 0, 1, 1)).record(0x000A)), ""); // no built-in ones yet
    Bytes fifth = Bytes().record(0x0809, bof_5(worksheet));
    fifth.record(0x041E, Bytes().u16(164).u8(3).narrow("0.0")).add(xf(164)).add(xf(9)).add(xf(165));
    EXPECT_EQ(code_of(Bytes(fifth).add(number(0, 0, 1, 0)).record(0x000A)), "0.0");
    EXPECT_EQ(code_of(Bytes(fifth).add(number(0, 0, 1, 1)).record(0x000A)), "0%");
    EXPECT_EQ(code_of(Bytes(fifth).add(number(0, 0, 1, 2)).record(0x000A)), "General");
}

TEST(XlsWerkmap, het_vierde_lettertype_bestaat_niet) {
    const Bytes small = font_8(10, "Arial");
    Bytes records = Bytes(small).add(small).add(small).add(small).add(font_8(20, "Arial")).add(xf(0, 5));
    EXPECT_EQ(read(sheet_8({}, records)).default_column_width, 102.0); // 15 pixels a digit
}

TEST(XlsWerkmap, een_blad_kan_twee_keer_gelezen_worden) {
    const auto workbook = open_xls(sheet_8(label_8(0, 0, "tekst")).bytes());
    EXPECT_EQ(shown(*(*workbook)->read_sheet(0), **workbook), (Shown{"A1=tekst"}));
    EXPECT_EQ(shown(*(*workbook)->read_sheet(0), **workbook), (Shown{"A1=tekst"}));
}

TEST(XlsWerkmap, een_stroom_die_een_blad_is_heeft_dat_ene_blad) {
    const Bytes file = Bytes().record(0x0809, bof_5(worksheet)).add(xf(2)).add(number(0, 0, 1.5)).record(0x000A);
    const auto workbook = open_xls(file.bytes());
    ASSERT_TRUE(workbook.has_value());
    ASSERT_EQ((*workbook)->sheets().size(), 1U);
    const auto sheet = (*workbook)->read_sheet(0);
    EXPECT_EQ(shown(*sheet, **workbook), (Shown{"A1=1.5"}));
    EXPECT_EQ((*workbook)->formats()[sheet->cells[0].format], "0.00");
}

TEST(XlsWerkmap, de_eerste_versie_heeft_eigen_cellen) {
    const auto cell = [](unsigned row_number, unsigned column, unsigned format) {
        return Bytes().u16(row_number).u16(column).u8(0).u8(format).u8(0);
    };
    Bytes file;
    file.record(0x0009, Bytes().u16(2).u16(worksheet));
    file.record(0x001E, Bytes().u8(7).narrow("General")).record(0x001E, Bytes().u8(4).narrow("0.00"));
    file.record(0x0024, Bytes().u8(1).u8(2).u16(2560));
    file.record(0x0002, cell(0, 0, 1).u16(42)).record(0x0003, cell(0, 1, 0).f64(2.5));
    file.record(0x0004, cell(1, 0, 0).u8(4).narrow("Oud\xE9")).record(0x0005, cell(1, 1, 0).u8(1).u8(0));
    file.record(0x0001, cell(4, 4, 0));
    file.record(0x0006, cell(2, 0, 0).zeros(6).u16(0xFFFF).zeros(2)).record(0x0007, Bytes().u8(2).narrow("ja"));
    file.record(0x000A);
    EXPECT_EQ(shown(file), (Shown{"A1=42", "B1=2.5", "A2=Oudé", "B2=waar", "A3=ja"}));
    const auto workbook = open_xls(file.bytes());
    const auto sheet = (*workbook)->read_sheet(0);
    EXPECT_EQ(sheet->used.rows, 5U);
    EXPECT_EQ(sheet->column_widths, (std::vector<double>{48.0, 52.5, 52.5}));
    EXPECT_EQ((*workbook)->formats()[sheet->cells[0].format], "0.00");
}

TEST(XlsWerkmap, een_werkmap_van_versie_4_heeft_haar_bladen_binnenin) {
    const auto sheet = [](std::string_view code, double value) {
        const auto length = static_cast<unsigned>(code.size());
        return Bytes()
            .record(0x0409, Bytes().u16(4).u16(worksheet).u16(0))
            .record(0x041E, Bytes().u16(0).u8(length).narrow(code))
            .record(0x0443, Bytes().u8(0).u8(0).zeros(10))
            .add(number(0, 0, value))
            .record(0x000A);
    };
    Bytes file;
    file.record(0x0409, Bytes().u16(4).u16(0x100).u16(0));
    file.record(0x008F, Bytes().u32(0).u8(3).narrow("Een")).add(sheet("0.0", 1));
    file.record(0x008F, Bytes().u32(0).u8(4).narrow("Twee")).add(sheet("0.00", 2));
    file.record(0x000A);
    const auto workbook = open_xls(file.bytes());
    ASSERT_TRUE(workbook.has_value());
    ASSERT_EQ((*workbook)->sheets().size(), 2U);
    EXPECT_EQ((*workbook)->sheets()[1].name, "Twee");
    EXPECT_EQ(shown(file, 0), (Shown{"A1=1"}));
    const auto second = (*workbook)->read_sheet(1);
    EXPECT_EQ(shown(*second, **workbook), (Shown{"A1=2"}));
    EXPECT_EQ((*workbook)->formats()[second->cells[0].format], "0.00");
}

TEST(XlsWerkmap, wat_geen_werkmap_is_wordt_zo_genoemd) {
    EXPECT_EQ(failure({}), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure(Bytes().narrow("PK\x03\x04")), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure(Bytes().narrow("Ruiter;Paard;Tijd\n")), OpenFailure::not_a_workbook);
}

TEST(XlsWerkmap, een_werkmap_zonder_bladen_is_beschadigd) {
    EXPECT_EQ(failure(Bytes().record(0x0809, bof_8(globals)).record(0x000A)), OpenFailure::damaged);
    EXPECT_EQ(failure(Bytes().record(0x0809, bof_8(globals))), OpenFailure::damaged);
}

TEST(XlsWerkmap, een_afgebroken_werkmap_geeft_de_cellen_die_er_zijn) {
    Bytes file = sheet_8(number(0, 0, 1).add(number(0, 1, 2)).add(label_8(0, 2, "afgebroken")));
    file.cut(file.size() - 4 - 6); // the end record and six letters
    EXPECT_EQ(shown(file), (Shown{"A1=1", "B1=2", "C1=afge"}));
}

TEST(XlsWerkmap, op_elke_plaats_afgebroken_blijft_het_antwoord_heel) {
    Bytes table;
    table.record(0x00FC, Bytes().u32(1).u32(1).u16(3).u8(8).u16(1).narrow("een").zeros(4));
    const Bytes whole = sheet_8(number(0, 0, 1).add(label_8(0, 1, "x")).add(shared(0, 2, 0)), table);
    std::size_t opened = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto workbook = open_xls(Bytes(whole).cut(size).bytes());
        if (!workbook) continue;
        ++opened;
        if (const auto sheet = (*workbook)->read_sheet(0)) {
            for (const Cell& cell : sheet->cells)
                ASSERT_TRUE(cell.kind != CellKind::text || cell.text < (*workbook)->texts().size()) << size;
        }
    }
    EXPECT_GT(opened, 0U);
}

} // namespace tavelo
