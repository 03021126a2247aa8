#include "read_sheet.h"
#include "workbook/lookalike/delimited_text.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::csv_of;
using test::no_workbook;

std::string utf16(std::u16string_view text, bool big = false) {
    std::string bytes;
    for (const char16_t unit : text) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        bytes += big ? high : low;
        bytes += big ? low : high;
    }
    return bytes;
}

TEST(TekstAlsWerkmap, de_eerste_regels_wijzen_het_scheidingsteken_aan) {
    EXPECT_EQ(csv_of("nr;naam\r\n1;Amber\r\n"), "nr,naam\n1,Amber\n");
    EXPECT_EQ(csv_of("nr\tnaam\n1\tAmber"), "nr,naam\n1,Amber\n");
    EXPECT_EQ(csv_of("nr,naam\r1,Amber\r"), "nr,naam\n1,Amber\n");
    EXPECT_EQ(csv_of("1;Jansen, Piet\n2;Smit, Jan\n"), "1,\"Jansen, Piet\"\n2,\"Smit, Jan\"\n"); // both cut in two
    EXPECT_EQ(csv_of("Lijst van zondag, ring 1\n1;a;b\n2;c;d\n"), "\"Lijst van zondag, ring 1\",,\n1,a,b\n2,c,d\n");
    EXPECT_EQ(csv_of("a,b\na;b,c\nd;e,f\ng,h\n"), "a,b\na;b,c\nd;e,f\ng,h\n"); // the comma cuts all lines
}

TEST(TekstAlsWerkmap, de_eerste_regel_mag_het_scheidingsteken_noemen) {
    EXPECT_EQ(csv_of("sep=|\r\n1|a;b\r\n"), "1,a;b\n");
    EXPECT_EQ(csv_of("SEP=;\n1;a\n"), "1,a\n");
    EXPECT_EQ(csv_of("sep=\t\n1\ta\n"), "1,a\n");
    EXPECT_EQ(separator_of("sep=|"), '|');
    EXPECT_EQ(separator_of("sep=||\na;b"), ';');
}

TEST(TekstAlsWerkmap, niets_wordt_een_getal_of_een_datum) {
    EXPECT_EQ(csv_of("007;1-2;3,50;1e3;WAAR;=1+1\n"), "007,1-2,\"3,50\",1e3,WAAR,=1+1\n");
    EXPECT_EQ(csv_of(" 7 ;x\n"), " 7 ,x\n");
}

TEST(TekstAlsWerkmap, een_formule_om_tekst_toont_die_tekst) {
    EXPECT_EQ(csv_of("=\"007\";\"=\"\"008\"\"\";=\"\";=\"a\"b\"\n"), "007,008,,\"=\"\"a\"\"b\"\"\"\n");
}

TEST(TekstAlsWerkmap, wat_maar_half_een_formule_om_tekst_is_blijft_staan) {
    EXPECT_EQ(csv_of("=\"a;b\"\n"), "\"=\"\"a\",\"b\"\"\"\n");
    EXPECT_EQ(csv_of("=\";=\"\"x\n"), "\"=\"\"\",\"=\"\"\"\"x\"\n");
    EXPECT_EQ(csv_of("a=\"b\";=b\"\n"), "\"a=\"\"b\"\"\",\"=b\"\"\"\n");
}

TEST(TekstAlsWerkmap, alleen_de_eerste_tweeendertig_regels_wijzen_het_scheidingsteken_aan) {
    const auto times = [](int count, std::string_view line) {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += line;
        return all;
    };
    EXPECT_EQ(separator_of(times(16, "a,b\n") + times(16, "a;b\n") + times(9, "a,b\n")), ';');
    EXPECT_EQ(separator_of(times(17, "a,b\n") + times(15, "a;b\n") + times(9, "a;b\n")), ',');
    EXPECT_EQ(separator_of(times(32, "a\n") + "a;b\n"), std::nullopt);
    EXPECT_EQ(separator_of(times(31, "a\n") + "a;b\n"), ';');
}

TEST(TekstAlsWerkmap, van_elk_scheidingsteken_tellen_de_regels_van_een_maat) {
    EXPECT_EQ(separator_of(""), std::nullopt);
    EXPECT_EQ(separator_of("a"), std::nullopt);
    EXPECT_EQ(separator_of("a;b"), ';');
    EXPECT_EQ(separator_of("a,b"), ',');
    EXPECT_EQ(separator_of("a\tb"), '\t');
    EXPECT_EQ(separator_of("a\tb;c\td,e\tf"), '\t');               // alike: the first of the three
    EXPECT_EQ(separator_of("a,b;c,d"), ';');                       // alike: before the comma
    EXPECT_EQ(separator_of("a;b\na;b;c\na;b;c;d\na,b\na,b"), ','); // three sizes of semicolons
    EXPECT_EQ(separator_of("a\nb\nc\nd\ne;f"), ';');               // lines of one field do not count
    EXPECT_EQ(separator_of("\"a;b\";\"c\nd;e;f\"\ng;h"), ';');
    EXPECT_EQ(separator_of("\"a,b\nc,d\";e\nf;g"), ';');
    EXPECT_EQ(separator_of("a.b|c:d"), std::nullopt);
}

TEST(TekstAlsWerkmap, een_genoemd_scheidingsteken_staat_alleen_op_de_eerste_regel) {
    EXPECT_EQ(separator_of("sep=x"), 'x');
    EXPECT_EQ(separator_of("Sep=,\ra;b"), ',');
    EXPECT_EQ(separator_of("sep=\na;b"), ';');
    EXPECT_EQ(separator_of("sep;|\na,b\nc,d"), ',');
    EXPECT_EQ(separator_of("a,b\nsep=|\n"), ',');
    EXPECT_EQ(csv_of("sep=;\r\na;b\r\n"), "a,b\n");
    EXPECT_EQ(csv_of("sep=;\ra;b\r"), "a,b\n");
    EXPECT_EQ(csv_of("sep=;"), "");
    EXPECT_EQ(csv_of("sep==\na=b\n"), "a,b\n");
}

TEST(TekstAlsWerkmap, elk_regeleinde_telt_een_keer) {
    EXPECT_EQ(csv_of("a;b\r\nc;d\n\re;f"), "a,b\nc,d\n,\ne,f\n");
    EXPECT_EQ(csv_of("a;b\n\n\nc;d"), "a,b\n,\n,\nc,d\n");
    EXPECT_EQ(csv_of("a;b;"), "a,b\n");
    EXPECT_EQ(csv_of("\"a\"\"b\";\"c\"d\"e;\"\"\n"), "\"a\"\"b\",\"cd\"\"e\"\n");
    EXPECT_EQ(csv_of("\"a\rb\r\nc\nd\";e\n"), "\"a\nb\nc\nd\",e\n");
    EXPECT_EQ(csv_of("a;\"b"), "a,b\n");
    EXPECT_EQ(csv_of("a;\"b\""), "a,b\n");
}

TEST(TekstAlsWerkmap, aanhalingstekens_omvatten_een_veld) {
    EXPECT_EQ(csv_of("\"a;b\";\"c\"\"d\"\n1;2\n"), "a;b,\"c\"\"d\"\n1,2\n");
    EXPECT_EQ(csv_of("\"een\r\ntwee\rdrie\";x\n"), "\"een\ntwee\ndrie\",x\n");
    EXPECT_EQ(csv_of("a\"b;\"c\" d\n"), "\"a\"\"b\",c d\n");
    EXPECT_EQ(csv_of("a;b\n1;\"nooit gesloten;2\n3;4"), "a,b\n1,\"nooit gesloten;2\n3;4\"\n");
}

TEST(TekstAlsWerkmap, lege_velden_en_regels_houden_hun_plaats) {
    EXPECT_EQ(csv_of("a;;c\n\n;;d\n"), "a,,c\n,,\n,,d\n");
}

TEST(TekstAlsWerkmap, de_tekenset_volgt_uit_de_bytes) {
    EXPECT_EQ(csv_of("1;Zo\xEB \x80\n"), "1,Zoë €\n");
    EXPECT_EQ(csv_of(std::string("1;Zoë €\n")), "1,Zoë €\n");
    EXPECT_EQ(csv_of(std::string("\xEF\xBB\xBF") + "1;Zoë\n"), "1,Zoë\n");
    EXPECT_EQ(csv_of(utf16(u"\uFEFF1\tZoë €\r\n")), "1,Zoë €\n");
    EXPECT_EQ(csv_of(utf16(u"\uFEFF1\tZoë €\r\n", true)), "1,Zoë €\n");
    EXPECT_EQ(csv_of(utf16(u"1\tZoë\r\n2\tBo\r\n")), "1,Zoë\n2,Bo\n");
    EXPECT_EQ(csv_of(utf16(u"1\tZoë\r\n2\tBo\r\n", true)), "1,Zoë\n2,Bo\n");
    EXPECT_EQ(csv_of("\xEF\xBB\xBF"
                     "1;Zo\xEB\n"),
              "ï»¿1,Zoë\n"); // a mark that lies
    // Each of these is no UTF-8, so the bytes are characters of Windows-1252.
    EXPECT_EQ(csv_of("1;\xC0\xAF\n"), "1,À¯\n");
    EXPECT_EQ(csv_of("1;\xE0\x80\xA0\n"), "1,à€\u00A0\n");
    EXPECT_EQ(csv_of("1;\xED\xA0\xB0\n"), "1,í\u00A0°\n");
    EXPECT_EQ(csv_of("1;\xF0\x80\xA1\xA2\n"), "1,ð€¡¢\n");
    EXPECT_EQ(csv_of("1;\xF4\xB0\xA1\xA2\n"), "1,ô°¡¢\n");
    EXPECT_EQ(csv_of("1;\xF5\xA0\xA1\xA2\n"), "1,õ\u00A0¡¢\n");
    EXPECT_EQ(csv_of("1;\xE2\x82\n"), "1,â‚\n");
}

TEST(TekstAlsWerkmap, wat_geen_lijst_is_wordt_geweigerd) {
    EXPECT_EQ(csv_of("Dit is gewoon een brief.\nZonder lijst.\n"), no_workbook);
    EXPECT_EQ(csv_of("%PDF-1.7 a,b"), no_workbook);
    EXPECT_EQ(csv_of("{\\rtf1 a;b}"), no_workbook);
    EXPECT_EQ(csv_of("{\"naam\": \"Amber\", \"nr\": 1}"), no_workbook);
    EXPECT_EQ(csv_of("ID;PWXL;N;E\n"), no_workbook);
    EXPECT_EQ(csv_of("MIME-Version: 1.0\nContent-Type: multipart/related; boundary=x\n"), no_workbook);
    EXPECT_EQ(csv_of(std::string("a;b\n\x01;c", 7)), no_workbook);
    EXPECT_EQ(csv_of(std::string("a;b\0;c", 6)), no_workbook);
    EXPECT_EQ(csv_of("a;b\n1;2\n\x1A"), "a,b\n1,2\n");
    EXPECT_EQ(csv_of(" \r\n\t "), std::string(sentence_of(OpenFailure::empty)));
}

TEST(TekstAlsWerkmap, kolommen_en_rijen_voorbij_het_blad_vallen_weg) {
    const std::string csv = csv_of("x" + std::string(sheet_columns - 1, ';') + "y;z\n");
    EXPECT_EQ(csv, "x" + std::string(sheet_columns - 1, ',') + "y\n");
    std::string long_list;
    for (std::uint32_t row = 0; row <= sheet_rows; ++row)
        long_list += ";\n";
    auto book = open_workbook(test::bytes_of(long_list + "z;z\n")).value();
    EXPECT_TRUE(book->read_sheet(0)->cells.empty());
}

} // namespace
} // namespace tavelo
