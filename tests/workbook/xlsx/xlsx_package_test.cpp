#include "workbook/xlsx/opened_sheet.h"
#include "workbook/xlsx/package.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

#include <cstring>

namespace tavelo {
namespace {

using test::opened;
using test::part;
using test::Parts;
using test::remove_part;
using test::rename_part;
using test::replace_part;
using test::XlsxMaker;
using test::zip_of;

const XlsxMaker simple{.sheet_data = R"(<row r="1"><c r="A1" t="s"><v>0</v></c></row>)",
                       .shared_strings = "<si><t>Amber</t></si>",
                       .styles = "<cellXfs><xf/></cellXfs>"};

std::string replaced_in(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

OpenFailure open_failure(std::vector<std::byte> bytes) { return open_xlsx(std::move(bytes)).error(); }

OpenFailure sheet_failure(std::vector<std::byte> bytes) {
    return open_xlsx(std::move(bytes)).value()->read_sheet(0).error();
}

OpenFailure sheet_failure(const std::string& sheet_part) {
    Parts parts = simple.parts();
    replace_part(parts, "xl/worksheets/sheet1.xml", sheet_part);
    return sheet_failure(zip_of(parts));
}

TEST(XlsxPakket, de_strenge_vorm_is_dezelfde) {
    XlsxMaker strict = simple;
    strict.main_namespace = "http://purl.oclc.org/ooxml/spreadsheetml/main";
    strict.relation_namespace = "http://purl.oclc.org/ooxml/officeDocument/relationships";
    EXPECT_EQ(opened(strict.bytes()).shown("A1"), "Amber");
}

TEST(XlsxPakket, namen_met_backslash_andere_hoofdletters_of_een_schuine_streep_vooraan) {
    Parts parts = simple.parts();
    rename_part(parts, "_rels/.rels", "_RELS\\.rels");
    rename_part(parts, "xl/workbook.xml", "/xl/Workbook.xml");
    rename_part(parts, "xl/_rels/workbook.xml.rels", "xl\\_rels\\workbook.xml.rels");
    rename_part(parts, "xl/worksheets/sheet1.xml", "XL\\Worksheets\\SHEET1.XML");
    rename_part(parts, "xl/sharedStrings.xml", "xl\\sharedstrings.xml");
    EXPECT_EQ(opened(zip_of(parts)).shown("A1"), "Amber");
}

TEST(XlsxPakket, doelen_vanaf_de_wortel) {
    Parts parts = simple.parts();
    for (const char* rels : {"_rels/.rels", "xl/_rels/workbook.xml.rels"}) {
        std::string text = replaced_in(part(parts, rels), "Target=\"xl/", "Target=\"/xl/");
        text = replaced_in(text, "Target=\"worksheets", "Target=\"/xl/worksheets");
        replace_part(parts, rels, text);
    }
    EXPECT_EQ(opened(zip_of(parts)).shown("A1"), "Amber");
}

TEST(XlsxPakket, het_werkboek_mag_elders_staan) {
    Parts parts = simple.parts();
    replace_part(parts, "_rels/.rels", replaced_in(part(parts, "_rels/.rels"), "xl/workbook.xml", "boek.xml"));
    rename_part(parts, "xl/workbook.xml", "boek.xml");
    rename_part(parts, "xl/_rels/workbook.xml.rels", "_rels/boek.xml.rels");
    rename_part(parts, "xl/worksheets/sheet1.xml", "worksheets/sheet1.xml");
    rename_part(parts, "xl/sharedStrings.xml", "sharedStrings.xml");
    rename_part(parts, "xl/styles.xml", "styles.xml");
    EXPECT_EQ(opened(zip_of(parts)).shown("A1"), "Amber");
}

TEST(XlsxPakket, zonder_teksten_en_stijlen_gaat_het_ook) {
    Parts parts = simple.parts();
    replace_part(parts, "xl/worksheets/sheet1.xml",
                 "<worksheet><sheetData><row><c><v>0.25</v></c></row></sheetData></worksheet>");
    remove_part(parts, "xl/sharedStrings.xml");
    remove_part(parts, "xl/styles.xml");
    EXPECT_EQ(opened(zip_of(parts)).shown("A1"), "0,25");
}

TEST(XlsxPakket, bladen_van_alle_soorten_tellen_in_hun_volgorde) {
    Parts parts = simple.parts();
    replace_part(
        parts, "xl/workbook.xml",
        R"(<workbook xmlns:r="r"><sheets><sheet name="Grafiek" r:id="c"/><sheet name="Macro" r:id="m"/><sheet name="Venster" r:id="d"/><sheet name="L&amp;ijst" state="hidden" r:id="rId1"/></sheets></workbook>)");
    replace_part(
        parts, "xl/_rels/workbook.xml.rels",
        replaced_in(
            part(parts, "xl/_rels/workbook.xml.rels"), "</Relationships>",
            R"(<Relationship Id="c" Type="x/chartsheet" Target="c.xml"/><Relationship Id="m" Type="x/xlMacrosheet" Target="worksheets/sheet1.xml"/><Relationship Id="d" Type="x/dialogsheet" Target="d.xml"/></Relationships>)"));
    auto book = open_xlsx(zip_of(parts)).value();
    ASSERT_EQ(book->sheets().size(), 4U);
    EXPECT_EQ(book->sheets()[0].kind, SheetKind::chart);
    EXPECT_EQ(book->sheets()[1].kind, SheetKind::macro);
    EXPECT_EQ(book->sheets()[2].kind, SheetKind::dialog);
    EXPECT_EQ(book->sheets()[3].kind, SheetKind::worksheet);
    EXPECT_EQ(book->sheets()[3].name, "L&ijst");
    EXPECT_TRUE(book->read_sheet(0)->cells.empty());
    EXPECT_EQ(book->read_sheet(1)->cells.size(), 1U);
    EXPECT_EQ(book->read_sheet(3)->cells.size(), 1U);
    EXPECT_FALSE(book->read_sheet(4).has_value());
}

TEST(XlsxPakket, een_blad_twee_keer_lezen_geeft_twee_keer_hetzelfde) {
    auto book = open_xlsx(simple.bytes()).value();
    const auto first = book->read_sheet(0);
    const auto second = book->read_sheet(0);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(book->texts()[first->cells.at(0).text], "Amber");
    EXPECT_EQ(book->texts()[second->cells.at(0).text], "Amber");
}

TEST(XlsxPakket, een_klimmend_of_vreemd_doel_wordt_niet_gelezen) {
    for (const char* target : {"../../../etc/passwd", "file:///etc/passwd", "C:\\boek.xml"}) {
        Parts parts = simple.parts();
        replace_part(parts, "xl/_rels/workbook.xml.rels",
                     replaced_in(part(parts, "xl/_rels/workbook.xml.rels"), "worksheets/sheet1.xml", target));
        EXPECT_EQ(sheet_failure(zip_of(parts)), OpenFailure::damaged) << target;
    }
}

TEST(XlsxPakket, een_doel_buiten_het_pakket_wordt_niet_gelezen) {
    Parts parts = simple.parts();
    replace_part(parts, "xl/_rels/workbook.xml.rels",
                 replaced_in(part(parts, "xl/_rels/workbook.xml.rels"), "Target=\"worksheets",
                             "TargetMode=\"External\" Target=\"worksheets"));
    EXPECT_EQ(sheet_failure(zip_of(parts)), OpenFailure::damaged);
}

TEST(XlsxPakket, wat_geen_zip_is_of_geen_werkmap) {
    const auto bytes_of = [](std::string_view text) {
        std::vector<std::byte> bytes(text.size());
        std::memcpy(bytes.data(), text.data(), text.size());
        return bytes;
    };
    EXPECT_EQ(open_failure({}), OpenFailure::not_a_workbook);
    EXPECT_EQ(open_failure(bytes_of("<html></html>")), OpenFailure::not_a_workbook);
    EXPECT_EQ(open_failure(zip_of({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}})),
              OpenFailure::not_a_workbook);

    Parts document = simple.parts();
    replace_part(document, "xl/workbook.xml", "<document/>");
    EXPECT_EQ(open_failure(zip_of(document)), OpenFailure::not_a_workbook);

    Parts binary = simple.parts();
    replace_part(binary, "_rels/.rels", replaced_in(part(binary, "_rels/.rels"), "xl/workbook.xml", "xl/workbook.bin"));
    rename_part(binary, "xl/workbook.xml", "xl/workbook.bin");
    EXPECT_EQ(open_failure(zip_of(binary)), OpenFailure::binary_workbook);
}

TEST(XlsxPakket, een_half_geschreven_of_kapotte_werkmap_is_beschadigd) {
    auto half = simple.bytes();
    half.resize(half.size() / 2);
    EXPECT_EQ(open_failure(half), OpenFailure::damaged);

    for (const char* missing : {"xl/workbook.xml", "xl/_rels/workbook.xml.rels"}) {
        Parts parts = simple.parts();
        remove_part(parts, missing);
        const auto book = open_xlsx(zip_of(parts));
        EXPECT_EQ(book ? (*book)->read_sheet(0).error() : book.error(), OpenFailure::damaged) << missing;
    }
    EXPECT_EQ(sheet_failure("<worksheet><sheetData><row>"), OpenFailure::damaged);
    EXPECT_EQ(sheet_failure(""), OpenFailure::damaged);

    Parts no_sheets = simple.parts();
    replace_part(no_sheets, "xl/workbook.xml", "<workbook><sheets/></workbook>");
    EXPECT_EQ(open_failure(zip_of(no_sheets)), OpenFailure::damaged);
}

TEST(XlsxPakket, kapotte_teksten_schaden_alleen_een_blad_dat_ze_gebruikt) {
    Parts parts = simple.parts();
    replace_part(parts, "xl/sharedStrings.xml", "<sst><si><t>Amber");
    EXPECT_EQ(sheet_failure(zip_of(parts)), OpenFailure::damaged);
    replace_part(parts, "xl/worksheets/sheet1.xml",
                 "<worksheet><sheetData><row><c><v>1</v></c></row></sheetData></worksheet>");
    EXPECT_EQ(opened(zip_of(parts)).shown("A1"), "1");
}

TEST(XlsxPakket, een_documenttype_wordt_geweigerd) {
    const std::string entities = R"(<!DOCTYPE sst [<!ENTITY a "haha"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>)";
    EXPECT_EQ(sheet_failure(entities + "<worksheet><sheetData/></worksheet>"), OpenFailure::damaged);
    EXPECT_EQ(sheet_failure(R"(<!DOCTYPE sst SYSTEM "file:///etc/passwd"><worksheet/>)"), OpenFailure::damaged);

    Parts parts = simple.parts();
    replace_part(parts, "xl/sharedStrings.xml", entities + "<sst><si><t>&b;&b;</t></si></sst>");
    EXPECT_EQ(sheet_failure(zip_of(parts)), OpenFailure::damaged);
}

TEST(XlsxPakket, vier_bytes_zijn_genoeg_om_er_een_te_willen_zijn) {
    const auto failure = [](std::initializer_list<unsigned> values) {
        std::vector<std::byte> bytes;
        for (const unsigned value : values)
            bytes.push_back(static_cast<std::byte>(value));
        return open_failure(bytes);
    };
    EXPECT_EQ(failure({'P', 'K', 3, 4}), OpenFailure::damaged);
    EXPECT_EQ(failure({'P', 'K', 3, 4, 0}), OpenFailure::damaged);
    EXPECT_EQ(failure({'P', 'K', 3}), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure({'Q', 'K', 3, 4}), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure({'P', 'L', 3, 4}), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure({'P', 'K', 4, 4}), OpenFailure::not_a_workbook);
    EXPECT_EQ(failure({'P', 'K', 3, 5}), OpenFailure::not_a_workbook);
}

TEST(XlsxPakket, te_diepe_nesting_wordt_geweigerd) {
    std::string deep = "<worksheet>";
    for (int i = 0; i < 100'000; ++i)
        deep += "<a>";
    EXPECT_EQ(sheet_failure(deep), OpenFailure::damaged);
}

TEST(XlsxPakket, een_eindeloos_element_wordt_geweigerd) {
    EXPECT_EQ(sheet_failure("<worksheet naam=\"" + std::string(3'000'000, 'x') + "\"/>"), OpenFailure::damaged);
}

TEST(XlsxPakket, een_zipbom_wordt_geweigerd_ook_als_hij_zich_kleiner_voordoet) {
    const std::string bomb = "<styleSheet>" + std::string(largest_list_part, ' ') + "</styleSheet>";
    Parts parts = simple.parts();
    replace_part(parts, "xl/styles.xml", bomb);
    auto bytes = zip_of(parts);
    EXPECT_LT(bytes.size(), 50'000U);
    EXPECT_EQ(open_failure(bytes), OpenFailure::too_large);

    const auto claim = static_cast<std::uint32_t>(bomb.size());
    const std::uint32_t lie = 1000;
    for (std::size_t i = 0; i + sizeof claim <= bytes.size(); ++i) {
        if (std::memcmp(&bytes[i], &claim, sizeof claim) == 0) std::memcpy(&bytes[i], &lie, sizeof lie);
    }
    EXPECT_EQ(open_failure(bytes), OpenFailure::too_large);
}

TEST(XlsxPakket, een_blad_mag_groter_uitpakken_dan_een_lijst) {
    EXPECT_LT(largest_list_part, largest_part);
    Parts parts = simple.parts();
    replace_part(parts, "xl/worksheets/sheet1.xml",
                 "<worksheet><sheetData>" + std::string(largest_list_part, ' ') + "</sheetData></worksheet>");
    EXPECT_TRUE(opened(zip_of(parts)).sheet.cells.empty());
}

} // namespace
} // namespace tavelo
