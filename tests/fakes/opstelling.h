// The rules of the main window with a fake behind every seam. A test fills `programma` and the fakes and calls the
// rules with `bediening`.
#pragma once

#include "excel/automation.h"
#include "fakes/seams.h"
#include "ui/main/bediening.h"
#include "ui/main/rooster_grid.h"

#include <memory>

namespace tavelo::test {

// A computer without a spreadsheet program.
struct NoExcel final : ExcelApplication {
    [[nodiscard]] Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override {
        return std::unexpected("geen Excel");
    }
};

struct Opstelling {
    Programma programma;
    FakeMeasure meter;
    FakeMessages berichten;
    FakeOpenDialog open_dialoog;
    FakeFileStamp tijdstempels;
    FakeClock klok;
    FakePointer muisaanwijzer;
    FakeSkipLog logboek;
    NoExcel excel;
    Bediening bediening{
        programma, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, excel}, {}, {}};

    Opstelling() { richt_grid_in(programma.grdRooster); }
    Opstelling(const Opstelling&) = delete; // `bediening` refers to its neighbours
    Opstelling& operator=(const Opstelling&) = delete;
};

} // namespace tavelo::test
