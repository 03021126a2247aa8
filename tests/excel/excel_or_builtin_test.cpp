#include "excel/excel_or_builtin.h"

#include "excel/fake_excel.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::FakeExcel;

struct ExcelOfIngebouwd : testing::Test {
    std::unique_ptr<FakeExcel> excel = std::make_unique<FakeExcel>();
    std::unique_ptr<FakeExcel> ingebouwd = std::make_unique<FakeExcel>();
    FakeExcel& van_excel = *excel;
    FakeExcel& van_ingebouwd = *ingebouwd;
    std::vector<std::string> logboek;

    ExcelOrBuiltin keuze() {
        return {std::move(excel), std::move(ingebouwd),
                [this](std::string_view regel) { logboek.emplace_back(regel); }};
    }
};

TEST_F(ExcelOfIngebouwd, excel_leest_wanneer_het_er_is) {
    ExcelOrBuiltin programma = keuze();
    ASSERT_TRUE(programma.Workbooks());
    EXPECT_EQ(van_excel.calls["Workbooks"], 1);
    EXPECT_TRUE(van_ingebouwd.calls.empty());
    EXPECT_EQ(logboek, std::vector<std::string>{"Excel leest de werkmap"});
}

TEST_F(ExcelOfIngebouwd, weigert_excel_dan_leest_de_ingebouwde_lezer_en_excel_wordt_de_volgende_keer_weer_gevraagd) {
    van_excel.failing_member = "Workbooks";
    ExcelOrBuiltin programma = keuze();
    ASSERT_TRUE(programma.Workbooks());
    EXPECT_EQ(van_ingebouwd.calls["Workbooks"], 1);
    van_excel.failing_member.clear();
    ASSERT_TRUE(programma.Workbooks());
    EXPECT_EQ(van_ingebouwd.calls["Workbooks"], 1);
    EXPECT_EQ(logboek,
              (std::vector<std::string>{"de ingebouwde lezer leest de werkmap: stuk", "Excel leest de werkmap"}));
}

TEST_F(ExcelOfIngebouwd, zonder_excel_leest_de_ingebouwde_lezer) {
    excel = nullptr;
    ExcelOrBuiltin programma = keuze();
    ASSERT_TRUE(programma.Workbooks());
    EXPECT_EQ(van_ingebouwd.calls["Workbooks"], 1);
    EXPECT_EQ(logboek, std::vector<std::string>{"de ingebouwde lezer leest de werkmap: dit systeem heeft geen Excel"});
}

} // namespace
} // namespace tavelo
