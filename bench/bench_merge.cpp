// Re-reading a schedule of which one row in a hundred changed and merging it into the grid, against reading it afresh.
#include "fakes/los_rooster.h"
#include "verhouding.h"

#include "schedule/herlees_rooster.h"

#include <array>

namespace {

using namespace tavelo;

struct Versies {
    std::string eerst;
    std::string daarna;
};
const Versies versies_4000{bench_data + "rooster_4000.rst", bench_data + "rooster_4000_gewijzigd.rst"};
const Versies versies_1000{bench_data + "rooster_1000.rst", bench_data + "rooster_1000_gewijzigd.rst"};

void herlees(benchmark::State& state, const Versies& versies) {
    test::LosRooster rooster;
    if (!lees_rooster(versies.eerst, rooster.doel())) return state.SkipWithError("not a schedule file");
    bool gewijzigd = false; // there and back again: either way the same rows differ
    for (auto _ : state) {
        gewijzigd = !gewijzigd;
        const std::string& pad = gewijzigd ? versies.daarna : versies.eerst;
        if (!herlees_rooster(pad, rooster.doel(), rooster.grdImport)) state.SkipWithError("not a schedule file");
    }
    state.counters["rows"] = rooster.grid.rows();
}

void lees(benchmark::State& state, const Versies& versies) {
    test::LosRooster rooster;
    for (auto _ : state) {
        if (!lees_rooster(versies.daarna, rooster.doel())) state.SkipWithError("not a schedule file");
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    meet_vaak("herlees_4000", herlees, versies_4000);
    meet_vaak("herlees_1000", herlees, versies_1000);
    meet_vaak("lees_4000", lees, versies_4000);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);
    tijden.druk_verhouding("re-read and merge with 1 % changed / fresh read", "herlees_4000", "lees_4000", 2);
    tijden.druk_verhouding("re-read and merge of 4000 / of 1000", "herlees_4000", "herlees_1000", 5);
}
