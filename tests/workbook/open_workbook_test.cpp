#include "fakes/read_faults.h"
#include "workbook/workbook.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

namespace tavelo {
namespace {

const test::XlsxMaker simple{.sheet_data = R"(<row r="1"><c r="A1" t="inlineStr"><is><t>Amber</t></is></c></row>)"};

struct OpenWorkbook : testing::Test {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("tavelo_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));

    OpenWorkbook() { std::filesystem::create_directories(folder); }
    ~OpenWorkbook() override { std::filesystem::remove_all(folder); }

    std::string write(const std::string& name, const std::vector<std::byte>& bytes) const {
        const auto path = folder / std::filesystem::path(std::u8string(name.begin(), name.end()));
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        const auto text = path.u8string();
        return {text.begin(), text.end()};
    }
    std::string write(const std::string& name, std::string_view text) const {
        const auto* const begin = reinterpret_cast<const std::byte*>(text.data());
        return write(name, std::vector<std::byte>(begin, begin + text.size()));
    }
};

TEST_F(OpenWorkbook, de_inhoud_beslist_en_niet_de_extensie) {
    const std::string file = write("zondag.xls", simple.bytes());
    auto book = open_workbook(file);
    ASSERT_TRUE(book.has_value());
    EXPECT_EQ(blad_als_csv(**book, 1, locale_named("nl-NL")), "Amber\r\n");
}

TEST_F(OpenWorkbook, een_naam_met_accenten_gaat_open) {
    EXPECT_TRUE(open_workbook(write("zoë café.xlsx", simple.bytes())).has_value());
}

TEST_F(OpenWorkbook, het_bestand_is_weer_vrij_zodra_het_gelezen_is) {
    const std::string file = write("zondag.xlsx", simple.bytes());
    auto book = open_workbook(file).value();
    write("zondag.xlsx", "wordt net opgeslagen");
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("nl-NL")), "Amber\r\n");
    EXPECT_TRUE(std::filesystem::remove(file));
}

TEST_F(OpenWorkbook, elke_mislukking_heeft_haar_eigen_reden) {
    EXPECT_EQ(open_workbook((folder / "weg.xlsx").string()).error(), OpenFailure::not_found);
    EXPECT_EQ(open_workbook(std::string_view("")).error(), OpenFailure::not_found);
    EXPECT_EQ(open_workbook(folder.string()).error(), OpenFailure::unreadable);
    EXPECT_EQ(open_workbook(write("leeg.xlsx", "")).error(), OpenFailure::empty);
    EXPECT_EQ(open_workbook(write("witruimte.xls", " \r\n")).error(), OpenFailure::empty);
    EXPECT_EQ(open_workbook(write("lijst.xls", "<html><table></table></html>")).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(open_workbook(write("brief.xlsx", "Een brief.\r\nGeen lijst.\r\n")).error(), OpenFailure::not_a_workbook);

    auto half = simple.bytes();
    half.resize(half.size() - 30);
    EXPECT_EQ(open_workbook(write("half.xlsx", half)).error(), OpenFailure::damaged);
}

TEST_F(OpenWorkbook, het_tijdelijke_bestand_van_excel_wordt_zo_genoemd) {
    const std::string owner =
        std::string("\x04") + "Jans" + std::string(49, ' ') + std::string("\x04\0J\0a\0n\0s\0", 10);
    EXPECT_EQ(open_workbook(write("~$zondag.xlsx", owner)).error(), OpenFailure::owner_file);
    EXPECT_EQ(open_workbook(write("zondag.xlsx", owner)).error(), OpenFailure::not_a_workbook);
    EXPECT_TRUE(open_workbook(write("~$echt.xlsx", simple.bytes())).has_value());
    EXPECT_EQ(open_workbook(write("~$klein.xlsx", test::zip_of({{"a", "b"}}))).error(), OpenFailure::not_a_workbook);
    EXPECT_TRUE(open_workbook(write("~$lang.xls", "nr;naam\n" + std::string(2000, 'x') + ";y\n")).has_value());
}

TEST_F(OpenWorkbook, het_tijdelijke_bestand_van_excel_heeft_een_naam_en_een_maat) {
    const std::string list = "nr;naam\n";
    EXPECT_EQ(open_workbook(write("~$a.xls", list + std::string(1024 - list.size(), 'x'))).error(),
              OpenFailure::owner_file);
    EXPECT_TRUE(open_workbook(write("~$b.xls", list + std::string(1025 - list.size(), 'x'))).has_value());
    EXPECT_TRUE(open_workbook(write("a~$.xls", list)).has_value());
    EXPECT_TRUE(open_workbook(write("~a$.xls", list)).has_value());
    std::filesystem::create_directory(folder / "~$map");
    EXPECT_TRUE(open_workbook(write("~$map/lijst.xls", list)).has_value());
#ifndef _WIN32
    EXPECT_EQ(open_workbook(write("map\\~$lijst.xls", list)).error(), OpenFailure::owner_file);
#endif
}

TEST_F(OpenWorkbook, alleen_pk_begint_een_pakket) {
    EXPECT_EQ(open_workbook(write("a.xls", "PK;naam\n")).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(open_workbook(write("a.xls", "PK")).error(), OpenFailure::not_a_workbook);
    EXPECT_TRUE(open_workbook(write("a.xls", "PJ;naam\n")).has_value());
    EXPECT_TRUE(open_workbook(write("a.xls", "KP;naam\n")).has_value());
    EXPECT_TRUE(open_workbook(write("a.xls", "QK;naam\n")).has_value());
    EXPECT_EQ(open_workbook(write("a.xls", "P")).error(), OpenFailure::not_a_workbook);
}

TEST_F(OpenWorkbook, een_te_groot_bestand_wordt_niet_gelezen) {
    const std::string file = write("groot.xlsx", "PK");
    std::filesystem::resize_file(file, largest_workbook_file + 1); // takes no room on the disk
    EXPECT_EQ(open_workbook(file).error(), OpenFailure::too_large);
}

TEST_F(OpenWorkbook, een_bestand_van_meer_dan_een_stuk_komt_heel_binnen) {
    constexpr std::size_t step = 1024 * 1024;
    for (const std::size_t size : {step - 1, step, step + 1, 2 * step + 5}) {
        const std::string end = ";einde\n";
        auto book = open_workbook(write("lang.csv", std::string(size - end.size(), ' ') + end));
        ASSERT_TRUE(book.has_value()) << size;
        EXPECT_TRUE(blad_als_csv(**book, 1, locale_named("nl-NL"))->ends_with(",einde\r\n")) << size;
    }
}

#ifndef _WIN32
TEST_F(OpenWorkbook, lezen_dat_mislukt_is_geen_half_bestand) {
    const std::string file = write("zondag.xlsx", simple.bytes());
    {
        const test::ReadFaults faults(std::vector<test::ReadStep>{{.error = EIO}});
        EXPECT_EQ(open_workbook(file).error(), OpenFailure::unreadable);
    }
    {
        const test::ReadFaults faults({{.most = 3}, {.error = EIO}});
        EXPECT_EQ(open_workbook(file).error(), OpenFailure::unreadable);
    }
    const test::ReadFaults slow({{.most = 3}, {.most = 1}, {.most = 100}});
    EXPECT_TRUE(open_workbook(file).has_value());
    EXPECT_GE(slow.reads(), 4U);
}
#endif

TEST_F(OpenWorkbook, wat_iets_anders_is_gaat_open_onder_elke_naam) {
    const auto shown = [this](const std::string& name, std::string_view content) {
        auto book = open_workbook(write(name, content));
        return book ? blad_als_csv(**book, 1, locale_named("nl-NL")).value_or("")
                    : std::string(sentence_of(book.error()));
    };
    EXPECT_EQ(shown("a.xlsx", "nr;naam\r\n007;Amber\r\n"), "nr,naam\r\n007,Amber\r\n");
    EXPECT_EQ(shown("b.xls", "<table><tr><td>nr</td></tr><tr><td>007</td></tr></table>"), "nr\r\n007\r\n");
}

TEST(OpenFailureZin, elke_reden_heeft_een_eigen_zin) {
    EXPECT_EQ(sentence_of(OpenFailure::not_found), "Het bestand is niet gevonden.");
    EXPECT_EQ(sentence_of(OpenFailure::unreadable),
              "Het bestand kan niet worden gelezen; misschien houdt een ander programma het vast.");
    EXPECT_EQ(sentence_of(OpenFailure::not_a_workbook), "Het bestand is geen Excel-werkmap.");
    EXPECT_EQ(sentence_of(OpenFailure::damaged), "De werkmap is beschadigd of nog niet helemaal opgeslagen.");
    EXPECT_EQ(sentence_of(OpenFailure::password), "De werkmap is met een wachtwoord beveiligd.");
    EXPECT_EQ(sentence_of(OpenFailure::too_large), "De werkmap is te groot om te lezen.");
    EXPECT_EQ(sentence_of(OpenFailure::no_memory), "Er is te weinig geheugen om de werkmap te lezen.");
    EXPECT_EQ(sentence_of(OpenFailure::empty), "Het bestand is leeg of nog niet opgeslagen.");
    EXPECT_EQ(sentence_of(OpenFailure::binary_workbook),
              "Dit is een binaire Excel-werkmap (.xlsb): sla de werkmap op als .xlsx.");
    EXPECT_EQ(sentence_of(OpenFailure::owner_file),
              "Dit is een tijdelijk bestand van Excel (~$): kies de werkmap zelf.");
}

} // namespace
} // namespace tavelo
