#include "workbook/displayed_text.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

// A workbook of nothing but texts and formats.
struct Stored : Workbook {
    std::vector<std::string> codes{"", "0.00", "_(@_)", "d-m-yyyy"};
    TextTable strings;
    bool from_1904 = false;

    Stored() { strings.add("Zoë").value(); }
    std::span<const SheetInfo> sheets() const override { return {}; }
    std::expected<Sheet, OpenFailure> sheet_at(std::size_t) override { return Sheet(); }
    std::span<const std::string> formats() const override { return codes; }
    const TextTable& texts() const override { return strings; }
    bool dates_from_1904() const override { return from_1904; }
};

Cell cell(CellKind kind, double number, std::uint32_t format = 0) {
    Cell made;
    made.kind = kind;
    made.number = number;
    made.format = format;
    return made;
}

const Locale& dutch = locale_named("nl-NL");
const Locale& american = locale_named("en-US");

TEST(GetoondeTekst, een_lege_cel_toont_niets) {
    const Stored book;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::blank, 0, 2)), "");
}

TEST(GetoondeTekst, een_getal_volgt_zijn_opmaak_en_het_land) {
    const Stored book;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 1234.5, 1)), "1234,50");
    EXPECT_EQ(DisplayedTexts(book, american).of(cell(CellKind::number, 1234.5, 1)), "1234.50");
}

TEST(GetoondeTekst, een_datum_volgt_de_telling_van_de_werkmap) {
    Stored book;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 1, 3)), "1-1-1900");
    book.from_1904 = true;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 1, 3)), "2-1-1904");
}

TEST(GetoondeTekst, teksten_en_booleans_gaan_door_het_tekstdeel_van_de_opmaak) {
    const Stored book;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::text, 0)), "Zoë");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::text, 0, 2)), " Zoë ");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::boolean, 1, 2)), " WAAR ");
    EXPECT_EQ(DisplayedTexts(book, american).of(cell(CellKind::boolean, 0)), "FALSE");
}

TEST(GetoondeTekst, fouten_nooit_en_elk_heeft_zijn_woord) {
    const Stored book;
    constexpr std::array codes{0x00, 0x07, 0x0F, 0x17, 0x1D, 0x24, 0x2A, 0x2B, 0x2D, 0x2E, 0x2F, 0x31, 0x32};
    constexpr std::array<std::string_view, 13> words{"#NULL!",    "#DIV/0!", "#VALUE!",       "#REF!",   "#NAME?",
                                                     "#NUM!",     "#N/A",    "#GETTING_DATA", "#SPILL!", "#CONNECT!",
                                                     "#BLOCKED!", "#FIELD!", "#CALC!"};
    for (std::size_t i = 0; i < codes.size(); ++i)
        EXPECT_EQ(DisplayedTexts(book, american).of(cell(CellKind::error, codes[i], 2)), words[i]);
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::error, 0x0F)), "#WAARDE!");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::error, 0x63)), "#LEEG!"); // an error nobody knows
}

TEST(GetoondeTekst, een_tekst_of_opmaak_die_er_niet_is_schaadt_niet) {
    const Stored book;
    Cell text = cell(CellKind::text, 0);
    text.text = 99;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(text), "");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 1.5, 99)), "1,5");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 1.5, 4)), "1,5"); // one too many
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 46346, 3)), "20-11-2026");
}

TEST(GetoondeTekst, ingebouwde_bedragen_volgen_het_land) {
    Stored book;
    book.codes = {"", std::string(builtin_format(37)), std::string(builtin_format(44))};
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, -1234, 1)), "-1.234");
    EXPECT_EQ(DisplayedTexts(book, american).of(cell(CellKind::number, -1234, 1)), "(1,234)");
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 12.5, 2)), " € 12,50 ");
}

TEST(GetoondeTekst, een_tekst_is_hoogstens_zo_lang_als_die_van_excel) {
    Stored book;
    book.codes = {"", "@@@", "x@"};
    book.strings.add(std::string(longest_text, 'a')).value();
    Cell text = cell(CellKind::text, 0);
    text.text = 1;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(text), std::string(longest_text, 'a'));
    text.format = 1;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(text), std::string(longest_text, 'a'));
    text.format = 2;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(text), "x" + std::string(longest_text - 1, 'a'));
}

TEST(GetoondeTekst, elke_tekst_blijft_staan_in_zijn_eigen_ruimte) {
    const Stored book;
    DisplayedTexts texts(book, dutch);
    std::array<std::string, 4> rooms;
    const std::string_view number = texts.of(cell(CellKind::number, 1234.5, 1), rooms[0]);
    const std::string_view word = texts.of(cell(CellKind::boolean, 1, 2), rooms[1]);
    const std::string_view text = texts.of(cell(CellKind::text, 0, 2), rooms[2]);
    const std::string_view other = texts.of(cell(CellKind::number, 1, 3), rooms[3]);
    EXPECT_EQ(number, "1234,50");
    EXPECT_EQ(word, " WAAR ");
    EXPECT_EQ(text, " Zoë ");
    EXPECT_EQ(other, "1-1-1900");
}

TEST(GetoondeTekst, een_onmogelijk_lange_opmaak_toont_standaard) {
    Stored book;
    book.codes = {"0" + std::string(longest_format_code - 1, '!'), "0" + std::string(longest_format_code, '!')};
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 7, 0)).size(), longest_format_code);
    EXPECT_EQ(DisplayedTexts(book, dutch).of(cell(CellKind::number, 7, 1)), "7");
}

TEST(GetoondeTekst, voorbij_de_som_van_een_blad_toont_elke_cel_niets) {
    Stored book;
    book.strings.add(std::string(longest_text, 'a')).value();
    Cell text = cell(CellKind::text, 0);
    text.text = 1;
    DisplayedTexts texts(book, dutch);
    for (std::size_t i = 0; i < most_shown_bytes / longest_text; ++i)
        ASSERT_EQ(texts.of(text).size(), longest_text) << i;
    // What fits to the byte is still shown.
    book.strings.add(std::string(most_shown_bytes % longest_text, 'b')).value();
    book.strings.add("x").value();
    text.text = 2;
    EXPECT_EQ(texts.of(text).size(), most_shown_bytes % longest_text);
    text.text = 3;
    EXPECT_EQ(texts.of(text), "");
    EXPECT_EQ(texts.of(cell(CellKind::number, 1)), ""); // also what would have fitted
    text.text = 1;
    EXPECT_EQ(DisplayedTexts(book, dutch).of(text).size(), longest_text); // another sheet

    DisplayedTexts others(book, dutch);
    for (std::size_t i = 0; i < most_shown_bytes / longest_text; ++i)
        ASSERT_EQ(others.of(text).size(), longest_text) << i;
    EXPECT_EQ(others.of(text), "");
    EXPECT_EQ(others.of(cell(CellKind::number, 1)), ""); // also what would have fitted
}

} // namespace
} // namespace tavelo
