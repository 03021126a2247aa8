// Workbooks that are made to take the computer's memory, and a computer that has none left.
#include "excel/builtin_excel.h"

#include "excel/codeExcel.h"
#include "fakes/heap.h"
#include "fakes/seams.h"
#include "fakes/temp_folder.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

const std::string te_weinig = "YEP1: Er is te weinig geheugen om de werkmap te lezen.";

struct Geheugen : testing::Test {
    test::TempFolder folder;
    std::unique_ptr<ExcelApplication> excel = builtin_excel(locale_named("nl-NL"));
    test::FakePointer pointer;

    std::string write(const test::XlsxMaker& maker) const {
        const std::vector<std::byte> bytes = maker.bytes();
        return folder.write("map.xlsx", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
};

std::string cells(std::size_t count, const std::string& cell) {
    std::string rows;
    for (std::size_t i = 0; i < count; ++i)
        rows.append("<row>").append(cell).append("</row>");
    return rows;
}

TEST_F(Geheugen, een_lange_tekst_waar_alle_cellen_naar_wijzen_blijft_binnen_de_som) {
    const std::string file = write({.sheet_data = cells(2500, R"(<c t="s"><v>0</v></c>)"),
                                    .shared_strings = "<si><t>" + std::string(1024 * 1024, 'x') + "</t></si>"});
    Grid grid;
    test::FakeMessages messages;
    EXPECT_TRUE(lees_excel(file, 1, grid, *excel, messages, pointer));
    EXPECT_TRUE(messages.shown.empty());
    ASSERT_EQ(grid.rows(), 2500);
    std::size_t bytes = 0;
    for (int row = 0; row < grid.rows(); ++row) {
        ASSERT_LE(grid.text(row, 0).size(), longest_text);
        bytes += grid.text(row, 0).size();
    }
    EXPECT_EQ(grid.text(0, 0), std::string(longest_text, 'x'));
    EXPECT_EQ(grid.text(2499, 0), "");
    EXPECT_EQ(bytes, most_shown_bytes / longest_text * longest_text);
}

// Each `new` in turn finds no memory, once. Whichever it is, the operator gets a sentence and an empty list, and the
// program goes on. A failure that nobody was told of would leave a list that is not complete.
TEST_F(Geheugen, elke_toewijzing_mag_mislukken) {
    const std::string name = "Zoë van der Meer";
    const std::string td = "<td>een wat langere tekst</td>";
    const std::string page = "<table><tr>" + td + td + td + td + "</tr><tr><td>1<td>2<td>3<td>" + name +
                             "</tr><tr><td>x</tr><tr><td>y</tr></table>";
    const std::string lines = "nr;hnr;tijd;een wat langere tekst\n1;2;3;" + name + "\nx;;;\ny;;;\n";
    const std::string cell = R"(<Cell><Data ss:Type="String">een wat langere tekst</Data></Cell>)";
    const std::string xml =
        R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet" xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">)"
        R"(<Styles><Style ss:ID="d"><NumberFormat ss:Format="0.00"/></Style></Styles><Worksheet ss:Name="Dag 1"><Table>)"
        "<Row>" +
        cell + cell + R"(</Row><Row><Cell ss:Index="4"><Data ss:Type="String">)" + name +
        R"(</Data></Cell></Row><Row ss:Index="4">)" + cell + "</Row></Table></Worksheet></Workbook>";
    const std::string row = "<t:table-row><t:table-cell><x:p>een wat langere tekst</x:p></t:table-cell>";
    const auto ods = test::zip_of(
        {{"content.xml",
          R"(<o:document-content xmlns:o="o" xmlns:t="t" xmlns:x="x"><o:body><o:spreadsheet><t:table t:name="Dag 1">)" +
              row + R"(</t:table-row><t:table-row><t:table-cell t:number-columns-repeated="3"/><t:table-cell><x:p>)" +
              name + "</x:p></t:table-cell></t:table-row>" + row + "</t:table-row>" + row +
              "</t:table-row></t:table></o:spreadsheet></o:body></o:document-content>"},
         {"META-INF/manifest.xml", "<manifest/>"}});
    struct Bestand {
        std::string path;
        std::size_t least; // allocations
    };
    for (const auto& [file, least] :
         {Bestand{TAVELO_TEST_DATA "/workbook/startlijst.xlsx", 50},
          Bestand{TAVELO_TEST_DATA "/workbook/startlijst.xls", 50}, Bestand{folder.write("pagina.xls", page), 20},
          Bestand{folder.write("regels.xls", lines), 20}, Bestand{folder.write("xml.xls", xml), 20},
          Bestand{folder.write("ods.xls", {reinterpret_cast<const char*>(ods.data()), ods.size()}), 20}}) {
        [[maybe_unused]] std::size_t failures = 0;
        for (std::size_t n = 1;; ++n) {
            Grid grid;
            test::FakeMessages messages;
            test::fail_allocation(n);
            const bool last = lees_excel(file, 1, grid, *excel, messages, pointer);
            const bool failed = test::allocation_has_failed();
            test::fail_allocation(0);
            if (!failed) {
                EXPECT_EQ(messages.shown, std::vector<std::string>());
                EXPECT_EQ(grid.rows(), 4) << file;
                EXPECT_EQ(grid.text(1, 3), name) << file;
                break;
            }
            ++failures;
            ASSERT_EQ(messages.shown, std::vector<std::string>{te_weinig}) << file << ", allocation " << n;
            ASSERT_EQ(grid.rows(), 0);
            ASSERT_TRUE(last) << file << ", allocation " << n; // there is nothing to go on with
        }
#ifndef __SANITIZE_ADDRESS__
        EXPECT_GT(failures, least) << file;
#endif
    }
}

} // namespace
} // namespace tavelo
