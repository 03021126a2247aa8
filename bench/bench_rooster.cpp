// Reading a schedule file and filling the grid, against the floor of any reader: the bytes of the same file by one call
// and every line end found.
#include "fakes/los_rooster.h"
#include "verhouding.h"

#include "basis/codeBestand.h"

#include <cstring>

namespace {

using namespace tavelo;

const std::string rooster_4000 = bench_data + "rooster_4000.rst";
const std::string rooster_1000 = bench_data + "rooster_1000.rst";

void lees(benchmark::State& state, const std::string& pad) {
    test::LosRooster rooster;
    for (auto _ : state) {
        const auto bijschrift = lees_rooster(pad, rooster.doel());
        if (!bijschrift) state.SkipWithError("not a schedule file");
        benchmark::DoNotOptimize(rooster.grid.rows());
    }
    state.counters["rows"] = rooster.grid.rows();
}

std::size_t regeleinden(std::string_view bytes) {
    std::size_t aantal = 0;
    const char* plaats = bytes.data();
    const char* const einde = plaats + bytes.size();
    while (const void* gevonden = std::memchr(plaats, '\n', static_cast<std::size_t>(einde - plaats))) {
        plaats = static_cast<const char*>(gevonden) + 1;
        ++aantal;
    }
    return aantal;
}

void vloer(benchmark::State& state) {
    for (auto _ : state) {
        const auto bytes = lees_bestand(rooster_4000, grootste_rooster);
        if (!bytes) return state.SkipWithError("no file");
        benchmark::DoNotOptimize(regeleinden(*bytes));
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    meet_vaak("lees_4000", lees, rooster_4000);
    meet_vaak("lees_1000", lees, rooster_1000);
    meet_vaak("vloer_4000", vloer);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);
    tijden.druk_verhouding("schedule read and shown in the grid / read and find line ends", "lees_4000", "vloer_4000",
                           12);
    tijden.druk_verhouding("schedule of 4000 / of 1000", "lees_4000", "lees_1000", 5);
}
