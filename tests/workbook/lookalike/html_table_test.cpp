#include "read_sheet.h"
#include "workbook/lookalike/html_table.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::csv_of;
using test::no_workbook;

std::string table(std::string_view rows) {
    return "<html><body><table>" + std::string(rows) + "</table></body></html>";
}

// A second row, so that the table is a list.
std::string first_row(std::string_view cells) {
    const std::string csv = csv_of(table("<tr>" + std::string(cells) + "</tr><tr><td>-</td></tr>"));
    return csv.substr(0, csv.find("\n-"));
}

TEST(HtmlAlsWerkmap, de_cellen_komen_onder_elkaar) {
    EXPECT_EQ(csv_of(table("<tr><th>Nr</th><th>Naam</th></tr><tr><td>1</td><td>Amber</td></tr>")),
              "Nr,Naam\n1,Amber\n");
    EXPECT_EQ(csv_of(table("<thead><tr><th>Nr</th></tr></thead><tbody><tr><td>1</td></tr></tbody>")), "Nr\n1\n");
}

TEST(HtmlAlsWerkmap, niets_wordt_een_getal_of_een_datum) {
    EXPECT_EQ(first_row("<td>007</td><td>1-2</td><td>3.50</td><td>1e3</td><td>=1+1</td>"), "007,1-2,3.50,1e3,=1+1");
}

TEST(HtmlAlsWerkmap, de_eerste_tabel_met_meer_dan_een_rij_telt) {
    const std::string head = "<table><tr><td>Startlijst</td></tr></table>";
    const std::string list = "<table><tr><td>1</td></tr><tr><td>2</td></tr></table>";
    EXPECT_EQ(csv_of(head + list + "<table><tr><td>a</td></tr><tr><td>b</td></tr></table>"), "1\n2\n");
    EXPECT_EQ(csv_of("<table><tr><td>" + list + "</td></tr></table>"), "1\n2\n"); // around it stands a table of one row
    EXPECT_EQ(csv_of(head), no_workbook);
    EXPECT_EQ(csv_of("<html><p>Uw sessie is verlopen.</p></html>"), no_workbook);
    EXPECT_EQ(csv_of("<table></table>"), no_workbook);
}

TEST(HtmlAlsWerkmap, zonder_lijst_wordt_er_niets_gelezen) {
    TextTable texts;
    EXPECT_FALSE(has_html_table("<table><tr><td>1</td></tr></table>"));
    EXPECT_EQ(read_html_table("<table><tr><td>1</td></tr></table>", texts).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(read_html_table("", texts).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(texts.size(), 0U);
}

TEST(HtmlAlsWerkmap, een_tabel_in_een_cel_is_tekst_van_die_cel) {
    EXPECT_EQ(first_row("<td>a<table><tr><td>b</td><td>c</td></tr><tr><td>d</td></tr></table>e</td><td>f</td>"),
              "\"a\nb c d\ne\",f");
}

TEST(HtmlAlsWerkmap, een_ontbrekend_eindmerk_schaadt_niet) {
    EXPECT_EQ(csv_of("<TABLE><TR><TD>1<TD>Amber<TR><TD>2<TD>Bo"), "1,Amber\n2,Bo\n");
    EXPECT_EQ(csv_of("<table><td>1<td>Amber<tr><td>2"), "1,Amber\n2,\n");
    EXPECT_EQ(csv_of("<table><tr><td>1</td></tr><tr><td>2</td></tr></table><p>einde"), "1\n2\n");
}

TEST(HtmlAlsWerkmap, een_lege_rij_blijft_een_rij) {
    EXPECT_EQ(csv_of(table("<tr><td>1</td></tr><tr></tr><tr><td>2</td></tr>")), "1\n\n2\n");
}

TEST(HtmlAlsWerkmap, samengevoegde_cellen_houden_de_kolommen_onder_elkaar) {
    EXPECT_EQ(csv_of(table("<tr><td colspan=2>a</td><td>b</td></tr><tr><td>1</td><td>2</td><td>3</td></tr>")),
              "a,,b\n1,2,3\n");
    EXPECT_EQ(csv_of(table("<tr><td rowspan='2'>a</td><td>b</td></tr><tr><td>c</td></tr><tr><td>d</td></tr>")),
              "a,b\n,c\nd,\n");
    EXPECT_EQ(csv_of(table("<tr><td rowspan=\"2\" colspan=\"2\">a</td></tr><tr><td>b</td></tr>")), "a,,\n,,b\n");
    EXPECT_EQ(csv_of(table("<tr><td colspan=x>a</td><td colspan=0>b</td></tr><tr><td>1</td></tr>")), "a,b\n1,\n");
}

TEST(HtmlAlsWerkmap, een_breedte_zonder_eind_wordt_afgekapt) {
    const std::string wide = "<tr><td colspan=4000000000>a</td><td>b</td></tr>";
    EXPECT_EQ(csv_of(table(wide + "<tr><td rowspan=4000000000>1</td></tr><tr><td>2</td></tr>")), "a,\n1,\n,2\n");
    EXPECT_EQ(csv_of(table("<tr><td colspan=" + std::to_string(most_html_columns - 1) +
                           "></td><td>b</td><td>c</td></tr>" + "<tr></tr><tr><td></td></tr>")),
              std::string(most_html_columns - 1, ',') + "b\n");
}

TEST(HtmlAlsWerkmap, witruimte_telt_als_een_spatie) {
    EXPECT_EQ(first_row("<td>  Jan\n\t de   Wit </td><td>a <b>b</b> c</td><td>\n</td><td>x</td>"),
              "Jan de Wit,a b c,,x");
    EXPECT_EQ(first_row("<td>&nbsp;</td><td>a&nbsp;&nbsp;b</td><td>&nbsp;c&nbsp;</td>"), ",a  b,c");
    EXPECT_EQ(first_row("<td>a<br>b<br/>c</td><td><p>d</p><p>e</p></td><td><div>f</div></td>"),
              "\"a\nb\nc\",\"d\ne\",f");
}

TEST(HtmlAlsWerkmap, een_blok_begint_een_regel_en_ander_merk_niet) {
    for (const auto* name : {"br", "p", "div", "li", "ul", "ol", "h1", "h2", "h3", "h4"}) {
        const std::string begin = std::string("<") + name + ">";
        const std::string end = std::string("</") + name + ">";
        EXPECT_EQ(first_row("<td>a" + begin + "b</td>"), "\"a\nb\"") << name;
        EXPECT_EQ(first_row("<td>a" + end + "b</td>"), "\"a\nb\"") << name;
    }
    for (const auto* name : {"b", "span", "a", "h5", "x", "font"})
        EXPECT_EQ(first_row(std::string("<td>a<") + name + ">b</" + name + ">c</td>"), "abc") << name;
    EXPECT_EQ(first_row("<td>a</>b</td>"), "ab");
}

TEST(HtmlAlsWerkmap, witruimte_om_een_regeleinde_valt_weg) {
    EXPECT_EQ(first_row("<td> <br>a <br> <br> b<br> </td>"), "\"a\nb\"");
    EXPECT_EQ(first_row("<td>a\tb</td><td>a\vb</td><td>a\fb</td><td>a\rb</td>"), "a b,a b,a b,a b");
    EXPECT_EQ(first_row("<td>a \n<b> b</b></td><td>a<b>b</b></td>"), "a b,ab");
    EXPECT_EQ(first_row("<td>a &nbsp;b</td><td>&nbsp;&nbsp;c</td><td>Â</td><td>a\u00A1</td>"), "a  b,c,Â,a¡");
}

TEST(HtmlAlsWerkmap, tabellen_in_een_cel_sluiten_hun_eigen_rijen) {
    EXPECT_EQ(csv_of(table("<tr><td>a<table><tr><td>1</td></tr><tr><td>2</td></tr></table>b</td><td>c</td></tr>"
                           "<tr><td>d</td></tr>")),
              "\"a\n1 2\nb\",c\nd,\n");
    EXPECT_EQ(csv_of(table("<tr><td>a<table><tr><td><table><td>x</table>y</td></tr></table></td></tr><tr><td>d")),
              "\"a\nx\ny\"\nd\n");
    EXPECT_EQ(csv_of("</table><td>weg<table><tr>los<td>1</td>los</tr>los<tr><td>2</td></tr></table>"), "1\n2\n");
}

TEST(HtmlAlsWerkmap, rijen_die_naar_beneden_reiken_schuiven_wat_volgt_op) {
    EXPECT_EQ(csv_of(table("<tr><td>a</td><td rowspan=3>b</td><td>c</td></tr><tr><td>d</td><td>e</td></tr>"
                           "<tr><td>f</td><td rowspan=1>g</td></tr><tr><td>h</td><td>i</td></tr>")),
              "a,b,c\nd,,e\nf,,g\nh,i,\n");
    EXPECT_EQ(csv_of(table("<tr><td rowspan=2>a</td><td rowspan=2>b</td></tr><tr></tr><tr><td>c</td></tr>")),
              "a,b\n,\nc,\n");
    EXPECT_EQ(csv_of(table("<tr><td>a</td><td rowspan=2 colspan=2>b</td><td>c</td></tr><tr><td>d</td><td>e</td></tr>")),
              "a,b,,c\nd,,,e\n");
}

TEST(HtmlAlsWerkmap, de_breedste_rij_heeft_precies_de_kolommen_die_mogen) {
    const std::string last = std::to_string(most_html_columns);
    EXPECT_EQ(csv_of(table("<tr><td colspan=" + last + ">a</td><td>weg</td></tr><tr><td>1</td></tr>")), "a\n1\n");
    std::string cells;
    for (std::uint32_t i = 0; i < most_html_columns + 2; ++i)
        cells += "<td>" + std::to_string(i);
    EXPECT_TRUE(first_row(cells).ends_with("," + std::to_string(most_html_columns - 1)));
}

TEST(HtmlAlsWerkmap, scripts_stijlen_en_opmerkingen_tellen_niet) {
    EXPECT_EQ(
        csv_of("<style>td > a { } </style><script>document.write('<table><tr><td>x</td></tr><tr><td>y');</script>" +
               table("<!-- <tr><td>weg</td></tr> --><tr><td>1<script>if (a < b) { }</script></td></tr>"
                     "<![if !vml]><?php ?><tr><td>2<STYLE>p { }</STYLE></td></tr>")),
        "1\n2\n");
    EXPECT_EQ(csv_of(table("<tr><td>1</td></tr><tr><td>2</td></tr>") + "<script>nooit af"), "1\n2\n");
    EXPECT_EQ(csv_of(table("<!--><tr><td>1</td></tr><tr><td>2</td></tr>")), "1\n2\n");
}

TEST(HtmlAlsWerkmap, tekens_met_een_naam_of_nummer) {
    EXPECT_EQ(first_row("<td>Zo&euml; &amp; Jos&#233;</td><td>&#x20AC;5 &#128;6</td><td>&lt;b&gt;</td><td>&copy</td>"),
              "Zoë & José,€5 €6,<b>,©");
    EXPECT_EQ(
        first_row("<td>R&D</td><td>&onzin;</td><td>&#;</td><td>&#xD800;&#99999999999;</td><td>&</td><td>&#X41;</td>"),
        "R&D,&onzin;,&#;,\uFFFD\uFFFD,&,A");
    EXPECT_EQ(first_row("<td>&Eacute;&eacute;&apos;&alpha;&zwnj;</td>"), "Éé'α\u200C");
}

TEST(HtmlAlsWerkmap, een_losse_punthaak_is_tekst) {
    EXPECT_EQ(first_row("<td>1 < 2</td><td>a<3</td><td>b<</td>"), "1 < 2,a<3,b<");
}

TEST(HtmlAlsWerkmap, een_punthaak_in_een_waarde_eindigt_het_merk_niet) {
    EXPECT_EQ(first_row("<td title=\"a > b\" colspan = \"2\">1</td><td title='>'>2</td>"), "1,,2");
    EXPECT_EQ(first_row("<td title=\"nooit gesloten>1</td><td>2</td>"), "1,2");
    EXPECT_EQ(first_row("<td title=it's>1</td><td data-colspan=3 x>2</td><td>3</td>"), "1,2,3");
}

TEST(HtmlAlsWerkmap, de_tekenset_volgt_uit_de_pagina_of_is_windows_1252) {
    const std::string list = "<table><tr><td>Zo\xEB \x80</td></tr><tr><td>2</td></tr></table>";
    EXPECT_EQ(csv_of(list), "Zoë €\n2\n");
    EXPECT_EQ(csv_of("<meta charset=iso-8859-1>" + list), "Zoë €\n2\n");
    EXPECT_EQ(csv_of("<meta http-equiv='Content-Type' content='text/html; charset=utf-8'>" + list), "Zoë €\n2\n");
    EXPECT_EQ(csv_of("<meta charset=\"windows-1251\">" + list), "Zoл Ђ\n2\n");
    EXPECT_EQ(csv_of(std::string("<table><tr><td>Zoë €</td></tr><tr><td>2</td></tr></table>")), "Zoë €\n2\n");
    EXPECT_EQ(csv_of(std::string("\xEF\xBB\xBF<table><tr><td>Zoë</td></tr><tr><td>2</td></tr></table>")), "Zoë\n2\n");
}

TEST(HtmlAlsWerkmap, een_pagina_die_excel_zelf_bewaarde_is_een_pagina) {
    EXPECT_EQ(csv_of("<html xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\">" +
                     table("<tr><td>1</td></tr><tr><td>2<br></td></tr>")),
              "1\n2\n");
}

TEST(HtmlAlsWerkmap, woorden_voor_de_tabel_schaden_niet) {
    const std::string list = table("<tr><td>1</td></tr><tr><td>2</td></tr>");
    EXPECT_EQ(csv_of("Warning: iets ging mis\n" + list), "1\n2\n");
    EXPECT_EQ(csv_of(" \t\r\n" + list), "1\n2\n");
    // Only near the begin, and only a table.
    const std::string table_at_last = "x" + std::string(64 * 1024 - 1 - 6, ' ');
    EXPECT_EQ(csv_of(table_at_last + list.substr(list.find("<table"))), "1\n2\n");
    EXPECT_EQ(csv_of(table_at_last + " " + list.substr(list.find("<table"))), no_workbook);
    EXPECT_EQ(csv_of("Warning <td>1</td>"), no_workbook);
}

TEST(HtmlAlsWerkmap, het_heeft_een_blad_dat_twee_keer_gelezen_kan_worden) {
    auto book = open_workbook(test::bytes_of(table("<tr><td>1</td></tr><tr><td>2</td></tr>"))).value();
    ASSERT_EQ(book->sheets().size(), 1U);
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("nl-NL")), "1\r\n2\r\n");
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("nl-NL")), "1\r\n2\r\n");
    EXPECT_EQ(book->read_sheet(1).error(), OpenFailure::unreadable);
    EXPECT_EQ(book->sheets()[0].name, "Blad1");
    EXPECT_FALSE(book->dates_from_1904());
    EXPECT_EQ(book->formats().size(), 1U); // General
}

TEST(HtmlAlsWerkmap, wat_nergens_eindigt_kost_geen_tijd_zonder_eind) {
    for (const auto* piece : {"<a b=\"", "<a b='", "<!-- ", "</", "<", "&", "<script>", "<table><tr><td>", "<table "}) {
        std::string page = "<table><tr><td>1</td></tr><tr><td>2</td></tr></table>";
        for (int i = 0; i < 20000; ++i)
            page += piece;
        EXPECT_EQ(csv_of(page), "1\n2\n") << piece;
    }
}

} // namespace
} // namespace tavelo
