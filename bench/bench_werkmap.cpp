// Opening a start list of 4,000 rows and 12 columns in a workbook and filling the grid from it, each format against the
// floor of its reader, in one process. The floor of .xlsx is the part of the sheet unpacked by zlib in pieces, the
// checksum counted, nothing kept: a quarter of the time of `unzip -p`, which excel.py holds it against. The floor of
// .xls is the file read by one call and stepped through from record to record by their lengths.
#include "verhouding.h"

#include "basis/codeBestand.h"
#include "excel/builtin_excel.h"
#include "excel/codeExcel.h"
#include "fakes/seams.h"

#include <zip.h>

#include <array>
#include <memory>

namespace {

using namespace tavelo;

const std::string lijst_xlsx = bench_data + "startlijst_4000.xlsx";
const std::string lijst_xls = bench_data + "startlijst_4000.xls";
const std::string lange_xlsx = bench_data + "startlijst_16000.xlsx";

void vul_grid(benchmark::State& state, const std::string& bestand) {
    const auto excel = builtin_excel(locale_named("nl-NL"));
    test::FakeMessages berichten;
    test::FakePointer muisaanwijzer;
    for (auto _ : state) {
        Grid grid;
        lees_excel(bestand, 1, grid, *excel, berichten, muisaanwijzer);
        if (!berichten.shown.empty() || grid.columns() != 12) return state.SkipWithError("not the start list");
        benchmark::DoNotOptimize(grid.text(grid.rows() - 1, 3));
    }
}

void vloer_xlsx(benchmark::State& state) {
    for (auto _ : state) {
        const std::unique_ptr<zip_t, void (*)(zip_t*)> archief(zip_open(lijst_xlsx.c_str(), ZIP_RDONLY, nullptr),
                                                               zip_discard);
        if (!archief) return state.SkipWithError("no file");
        zip_file_t* const blad = zip_fopen(archief.get(), "xl/worksheets/sheet1.xml", 0);
        if (blad == nullptr) return state.SkipWithError("no sheet");
        std::array<char, 64 * 1024> stuk{};
        std::int64_t bytes = 0;
        while (const auto gelezen = zip_fread(blad, stuk.data(), stuk.size()))
            bytes += gelezen;
        zip_fclose(blad);
        if (bytes < 1'000'000) return state.SkipWithError("not the whole sheet");
    }
}

void vloer_xls(benchmark::State& state) {
    constexpr std::string_view begin("\x09\x08\x10\x00\x00\x06\x05\x00", 8); // the records lie in one piece behind it
    for (auto _ : state) {
        const auto bytes = lees_bestand(lijst_xls, largest_workbook_file);
        if (!bytes) return state.SkipWithError("no file");
        const auto byte = [&](std::size_t plaats) { return static_cast<unsigned char>((*bytes)[plaats]); };
        std::size_t records = 0;
        for (std::size_t plaats = bytes->find(begin); plaats + 4 <= bytes->size(); ++records)
            plaats += 4 + byte(plaats + 2) + byte(plaats + 3) * std::size_t{256};
        if (records < 40'000) return state.SkipWithError("not the records");
        benchmark::DoNotOptimize(records);
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    meet_vaak("xlsx_4000", vul_grid, lijst_xlsx);
    meet_vaak("xlsx_16000", vul_grid, lange_xlsx);
    meet_vaak("vloer_xlsx", vloer_xlsx);
    meet_vaak("xls_4000", vul_grid, lijst_xls);
    meet_vaak("vloer_xls", vloer_xls);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);
    tijden.druk_verhouding("xlsx shown in the grid / its sheet unpacked", "xlsx_4000", "vloer_xlsx", 8);
    tijden.druk_verhouding("xls shown in the grid / read and stepped through", "xls_4000", "vloer_xls", 4);
    tijden.druk_verhouding("xlsx of 16000 rows / of 4000", "xlsx_16000", "xlsx_4000", 5);
}
