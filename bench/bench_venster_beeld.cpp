// Composing and painting the public display on a 3840 x 2160 screen, against painting the same texts in the same fonts
// without composing anything.
#include "programma.h"
#include "verhouding.h"

#include "platform/application.h"
#include "platform/qt_text.h"
#include "ui/display/codeOpmaak.h"
#include "ui/display/frmTekenvlak.h"

#include <QImage>
#include <QPainter>

namespace {

using namespace tavelo;

// A schedule with every line of the display switched on.
struct Opstelling {
    EchtProgramma tavelo;
    Vertoning venster;
    QImage beeld{groot_scherm, QImage::Format_RGB32};
    int rij = 1;

    Opstelling() {
        tavelo.open(bench_data + "rooster_1000.rst");
        tavelo.toon_alle_regels();
        tavelo.programma.txtINR = "1"; // an empty number box would clear the heading
        venster.picDeelnemer.breedte = twips(beeld.width());
        venster.picDeelnemer.hoogte = twips(beeld.height());
    }

    // Another combination every time, as in the ring.
    void stel_samen() {
        Programma& programma = tavelo.programma;
        const Grid& grid = programma.grdRooster;
        rij = rij % (grid.rows() - 1) + 1;
        programma.huidig_nr_tijd = grid.text(rij, kolom_nrtijd);
        toon_combinatie(venster, int16_of(grid.text(rij, kolom_inr)).value_or(0), rij, grid.text(rij, kolom_naam),
                        programma, tavelo.meter, tavelo.klok);
    }
    void schilder_vlakken() {
        QPainter painter(&beeld);
        schilder(painter, beeld.rect(), venster.picDeelnemer);
        const Tekenvlak& band = venster.picRubriek;
        schilder(painter, QRectF(0, 0, band.breedte / twips_per_pixel, band.hoogte / twips_per_pixel), band);
    }
};

void samenstellen_en_schilderen(benchmark::State& state) {
    Opstelling opstelling;
    for (auto _ : state) {
        opstelling.stel_samen();
        opstelling.schilder_vlakken();
    }
}

// The floor: fonts made beforehand, texts already placed.
void alleen_schilderen(benchmark::State& state) {
    Opstelling opstelling;
    struct Regel {
        QPointF basis;
        QFont font;
        QString tekst;
    };
    const auto regels_van = [&](const Tekenvlak& vlak) {
        std::vector<Regel> regels;
        for (const GeplaatsteTekst& regel : vlak.regels()) {
            const QFont font = display_font(vlak.lettertype, regel.punten, opstelling.beeld);
            const double stijging = QFontMetricsF(font, &opstelling.beeld).ascent();
            regels.push_back(
                {{regel.x / twips_per_pixel, regel.y / twips_per_pixel + stijging}, font, qt_text(regel.tekst)});
        }
        return regels;
    };
    struct Beeld {
        std::vector<Regel> deelnemer;
        std::vector<Regel> rubriek;
        QRectF band;
    };
    std::vector<Beeld> beelden;
    for (int i = 1; i < opstelling.tavelo.programma.grdRooster.rows(); ++i) {
        opstelling.stel_samen();
        const Tekenvlak& band = opstelling.venster.picRubriek;
        beelden.push_back({regels_van(opstelling.venster.picDeelnemer),
                           regels_van(band),
                           {0, 0, band.breedte / twips_per_pixel, band.hoogte / twips_per_pixel}});
    }

    std::size_t welk = 0;
    for (auto _ : state) {
        const Beeld& nu = beelden[welk++ % beelden.size()];
        QPainter painter(&opstelling.beeld);
        painter.setPen(Qt::black);
        const auto schilder_regels = [&](const QRectF& vlak, const std::vector<Regel>& regels) {
            painter.fillRect(vlak, Qt::white);
            for (const Regel& regel : regels) {
                painter.setFont(regel.font);
                painter.drawText(regel.basis, regel.tekst);
            }
        };
        schilder_regels(opstelling.beeld.rect(), nu.deelnemer);
        schilder_regels(nu.band, nu.rubriek);
    }
}

} // namespace

int main(int argc, char** argv) {
    Application toepassing(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark("samenstellen_en_schilderen", samenstellen_en_schilderen)
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("alleen_schilderen", alleen_schilderen)->Repetitions(5)->Unit(benchmark::kMillisecond);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);
    tijden.druk_verhouding("display of 3840 x 2160 composed and painted / painted only", "samenstellen_en_schilderen",
                           "alleen_schilderen", 1.5);
}
