// Excel by automation, with excel_server.exe in Excel's place. For every case the tests register that server, with what
// is to go wrong on its command line, under Excel's class for the whole computer (Wine looks nowhere else). So they
// touch nothing unless that is asked for: TAVELO_EXCEL_SERVER names the server.
#include "excel/codeExcel.h"
#include "fakes/seams.h"
#include "fakes/temp_folder.h"
#include "platform/excel.h"
#include "platform/windows/wide_text.h"

#include <chrono>
#include <cstdlib>
#include <sstream>
#include <thread>

#include <windows.h>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr const wchar_t* class_key = L"Software\\Classes\\CLSID\\{00024500-0000-0000-C000-000000000046}";
const char* const server = std::getenv("TAVELO_EXCEL_SERVER");
using Texts = std::vector<std::vector<std::string>>;
const Texts whole_sheet = {{"nr", "naam"}, {"1", "Zoë €"}, {"2", "Łukasz"}};

struct ExcelZelf : testing::Test {
    test::TempFolder map;
    std::string logboek = map.file("leden.txt");
    Grid grid;
    test::FakeMessages messages;
    test::FakePointer pointer;
    std::unique_ptr<ExcelApplication> excel = installed_excel();

    bool geregistreerd = false;

    ~ExcelZelf() override {
        excel.reset();
        if (geregistreerd) RegDeleteTreeW(HKEY_LOCAL_MACHINE, class_key);
    }

    void registreer_opdracht(const std::string& opdracht) {
        ASSERT_NE(server, nullptr) << "these tests put a server of their own in Excel's place";
        const std::wstring key = std::wstring(class_key) + L"\\LocalServer32";
        const std::wstring value = wide(opdracht);
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(),
                                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
        geregistreerd = true;
    }
    // The last argument takes no value: what the system adds to the command comes behind it.
    void registreer(const std::string& gedrag = "") {
        if (server != nullptr)
            registreer_opdracht("\"" + std::string(server) + "\" --log \"" + logboek + "\" " + gedrag + " -");
        ASSERT_TRUE(geregistreerd);
    }
    bool lees(const std::string& bestand = "C:\\lijsten\\één.xlsx", int blad = 1) {
        return lees_excel(bestand, blad, grid, *excel, messages, pointer);
    }
    [[nodiscard]] Texts texts() const {
        Texts all;
        for (int row = 0; row < grid.rows(); ++row) {
            all.emplace_back();
            for (int column = 0; column < grid.columns(); ++column)
                all.back().emplace_back(grid.text(row, column));
        }
        return all;
    }
    // How often a member was called.
    [[nodiscard]] int aantal(const std::string& lid) const {
        std::ifstream stream(logboek);
        int count = 0;
        for (std::string line; std::getline(stream, line);)
            count += line == lid;
        return count;
    }
    // The server ends a moment after it was let go.
    [[nodiscard]] bool wacht_op(const std::string& lid, int keer) const {
        for (int i = 0; i < 600; ++i) {
            if (aantal(lid) >= keer) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return false;
    }
    void expect_everything_restored() const {
        EXPECT_TRUE(grid.redraw());
        EXPECT_EQ(pointer.depth, 0);
        EXPECT_EQ(aantal("Quit"), 0);
    }
};

TEST_F(ExcelZelf, het_eerste_blad_komt_in_het_grid) {
    registreer();
    EXPECT_FALSE(lees()); // a second sheet follows
    EXPECT_EQ(texts(), whole_sheet);
    EXPECT_EQ(grid.column_width(0), 5000);
    EXPECT_EQ(grid.column_width(1), 10000);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(aantal("Close"), 1);
    EXPECT_EQ(aantal("Text"), 6);
    expect_everything_restored();
}

TEST_F(ExcelZelf, het_laatste_blad_is_het_laatste) {
    registreer();
    EXPECT_TRUE(lees("x.xls", 2));
    EXPECT_EQ(texts(), (Texts{{"tweede"}}));
    EXPECT_TRUE(lees("x.xls", 3));
    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(aantal("Close"), 2);
    expect_everything_restored();
}

TEST_F(ExcelZelf, excel_wordt_een_keer_gemaakt_bewaard_en_aan_het_einde_losgelaten_zonder_quit) {
    registreer();
    lees();
    lees();
    EXPECT_EQ(aantal("started"), 1);
    EXPECT_EQ(aantal("ended"), 0);
    excel.reset();
    EXPECT_TRUE(wacht_op("ended", 1));
    expect_everything_restored();
}

TEST_F(ExcelZelf, niet_geregistreerd_is_er_geen_excel) {
    EXPECT_FALSE(excel->Workbooks());
    registreer();
    EXPECT_TRUE(excel->Workbooks()); // installed meanwhile
}

TEST_F(ExcelZelf, een_server_die_niet_start_is_er_niet) {
    registreer_opdracht("C:\\bestaat niet.exe");
    EXPECT_FALSE(excel->Workbooks());
}

TEST_F(ExcelZelf, een_fout_bij_workbooks_is_een_weigering_en_wat_niet_antwoordt_wordt_niet_bewaard) {
    registreer("--fail Workbooks");
    const auto workbooks = excel->Workbooks();
    ASSERT_FALSE(workbooks);
    EXPECT_EQ(workbooks.error(), "Workbooks is stuk");
    EXPECT_TRUE(wacht_op("ended", 1));
}

TEST_F(ExcelZelf, een_fout_bij_openen_geeft_de_ene_melding) {
    registreer("--fail Open");
    EXPECT_TRUE(lees());
    EXPECT_EQ(messages.shown, std::vector<std::string>{"YEP1: Open is stuk"});
    EXPECT_EQ(texts(), Texts{});
    expect_everything_restored();
}

TEST_F(ExcelZelf, een_fout_in_elk_ander_lid_laat_alleen_dat_weg) {
    struct Case {
        const char* member;
        Texts left;
    };
    const Texts blank = {{"", ""}, {"", ""}, {"", ""}};
    for (const Case& c :
         {Case{"Sheets", {}}, Case{"_NewEnum", {}}, Case{"Next", {}}, Case{"UsedRange", {}}, Case{"Rows", {}},
          Case{"Rows.Count", {}}, Case{"Columns", {{}, {}, {}}}, Case{"Columns.Count", {{}, {}, {}}},
          Case{"Count", whole_sheet}, Case{"Cells", blank}, Case{"Width", whole_sheet}, Case{"Value", whole_sheet},
          Case{"Text", blank}, Case{"Close", whole_sheet}}) {
        SCOPED_TRACE(c.member);
        excel = installed_excel();
        registreer(std::string("--fail ") + c.member);
        const int closed = aantal("Close");
        lees();
        EXPECT_EQ(texts(), c.left);
        EXPECT_EQ(aantal("Close"), closed + 1);
        EXPECT_TRUE(messages.shown.empty());
        expect_everything_restored();
    }
}

TEST_F(ExcelZelf, verdwijnt_excel_halverwege_dan_blijft_staan_wat_er_was_en_de_volgende_keer_leest_een_nieuwe) {
    struct Case {
        const char* member;
        std::size_t messages;
    };
    for (const Case& c : {Case{"Open", 1}, Case{"Sheets", 0}, Case{"Next", 0}, Case{"UsedRange", 0}, Case{"Cells", 0},
                          Case{"Text", 0}, Case{"Close", 0}}) {
        SCOPED_TRACE(c.member);
        excel = installed_excel();
        messages.shown.clear();
        registreer(std::string("--die ") + c.member);
        lees();
        EXPECT_EQ(messages.shown.size(), c.messages);
        for (const std::string& text : messages.shown)
            EXPECT_TRUE(text.starts_with("YEP1: ") && text.size() > 6) << text;
        expect_everything_restored();

        registreer();
        messages.shown.clear();
        lees();
        EXPECT_EQ(texts(), whole_sheet);
        EXPECT_TRUE(messages.shown.empty());
    }
}

TEST_F(ExcelZelf, op_een_trage_en_op_een_bezette_excel_wordt_gewacht) {
    registreer("--slow 20");
    lees();
    EXPECT_EQ(texts(), whole_sheet);
    excel = installed_excel();
    registreer("--busy 3");
    lees();
    EXPECT_EQ(texts(), whole_sheet);
    EXPECT_TRUE(messages.shown.empty());
    expect_everything_restored();
}

} // namespace
} // namespace tavelo
