// The real windows: from the chosen path to the painted start list of the largest schedule, with the memory that it
// takes, and from a typed number to the painted displays.
#include "programma.h"
#include "verhouding.h"

#include "platform/application.h"

#include <QLineEdit>

#include <fstream>

namespace {

using namespace tavelo;

constexpr QSize gewoon_scherm(1920, 1080); // the operator's

// Resident memory of this process in MiB; 0 where the system does not tell.
double geheugen() {
    std::ifstream status("/proc/self/status");
    for (std::string woord; status >> woord;)
        if (double kibibytes = 0; woord == "VmRSS:" && status >> kibibytes) return kibibytes / 1024;
    return 0;
}

void openen(benchmark::State& state, EchtProgramma& tavelo) {
    for (auto _ : state) {
        tavelo.open(bench_data + "rooster_4000.rst");
        EchtProgramma::schilder(tavelo.venster);
    }
    constexpr int meer_dan_alle_combinaties = 4000; // the pauses come with them
    if (tavelo.programma.grdRooster.rows() <= meer_dan_alle_combinaties) state.SkipWithError("the list is not there");
}

void nummer(benchmark::State& state, EchtProgramma& tavelo, QWidget& deelnemer) {
    auto* vak = tavelo.venster.findChild<QLineEdit*>("txtINR");
    const std::vector<std::string> nummers = tavelo.nummers();
    std::size_t beurt = 0;
    for (auto _ : state) {
        vak->setText(QString::fromStdString(nummers[beurt++ % nummers.size()]));
        EchtProgramma::schilder(tavelo.venster);
        EchtProgramma::schilder(deelnemer);
    }
}

} // namespace

int main(int argc, char** argv) {
    Application toepassing(argc, argv);
    benchmark::Initialize(&argc, argv);
    EchtProgramma tavelo;
    EchtProgramma::schilder(tavelo.venster);
    const double leeg = geheugen();
    tavelo.open(bench_data + "rooster_4000.rst");
    EchtProgramma::schilder(tavelo.venster);
    const double vol = geheugen();

    benchmark::RegisterBenchmark("openen", [&](benchmark::State& state) { openen(state, tavelo); })
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);

    tavelo.toon_alle_regels();
    QWidget* deelnemer = tavelo.open_monitor(gewoon_scherm);
    QCoreApplication::processEvents();
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark("nummer", [&](benchmark::State& state) { nummer(state, tavelo, *deelnemer); })
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks(&tijden);

    std::printf("memory: %.1f MiB with an empty window, %.1f MiB with the schedule of 4000\n", leeg, vol);
    tijden.druk_budget("chosen path to painted list of 4000 / 0.25 s", "openen", 0.25);
    tijden.druk_budget("typed number to preview and monitor of 3840 x 2160 painted / a frame of 60 Hz", "nummer",
                       een_beeld, 0.5);
}
