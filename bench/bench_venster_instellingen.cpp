// A step of a scroll bar in the settings dialog until the preview and the participant window have been repainted, both
// in windows of 3840x2160, against painting the same texts directly and against two frames of 60 Hz.
#include "programma.h"
#include "verhouding.h"

#include "platform/application.h"
#include "platform/dialogs.h"
#include "platform/qt_text.h"
#include "ui/settings/frmInstellingen.h"

#include <QPainter>
#include <QScrollBar>

#include <array>
#include <optional>
#include <vector>

namespace {

using namespace tavelo;

constexpr double twee_beelden = 2 * een_beeld;

// Counts how often a picture area is painted.
struct Schilderteller final : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++aantal;
        return false;
    }
    int aantal = 0;
};

// The whole program with a schedule open, a combination in the ring with every line on, and the dialog up.
class Opstelling {
  public:
    Opstelling() {
        tavelo_.open(bench_data + "rooster_1000.rst");
        tavelo_.toon_alle_regels();
        tavelo_.programma.instellingen.textsize = 50; // room for the step before the lines fill the height
        deelnemer_ = tavelo_.open_monitor(groot_scherm);
        zet_txtINR(tavelo_.bediening, tavelo_.nummers().front());
        tavelo_.venster.toon();
        dialoog_.emplace(
            tavelo_.bediening, kleuren_, [this] { tavelo_.venster.toon_vertoningen(); }, &tavelo_.venster);
        balk_ = dialoog_->findChild<QScrollBar*>("HScrollDeelnemerTekstGrootte");
        dialoog_->show();
        QCoreApplication::processEvents();
        for (QWidget* vlak : tavelo_.venster.findChildren<QWidget*>("picDeelnemer"))
            vlak->installEventFilter(&geschilderd_);
    }

    // Up and down in turn, so that every step changes the size.
    void stap() {
        balk_->triggerAction(omhoog_ ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
        omhoog_ = !omhoog_;
        for (QWidget* venster : std::initializer_list<QWidget*>{&tavelo_.venster, deelnemer_, &*dialoog_})
            EchtProgramma::schilder(*venster);
    }

    [[nodiscard]] int geschilderd() const { return geschilderd_.aantal; }
    [[nodiscard]] const Bediening& bediening() const { return tavelo_.bediening; }

  private:
    DialogOwner eigenaar_;
    QtColourDialog kleuren_{eigenaar_};
    EchtProgramma tavelo_;
    QWidget* deelnemer_ = nullptr;
    std::optional<frmInstellingen> dialoog_; // loads the settings when it is made, so after they have been set
    QScrollBar* balk_ = nullptr;
    Schilderteller geschilderd_;
    bool omhoog_ = true;
};

void stap(benchmark::State& state, Opstelling& opstelling) {
    const int eerder = opstelling.geschilderd();
    for (auto _ : state)
        opstelling.stap();
    constexpr std::size_t alle_regels = 9;
    if (opstelling.bediening().deelnemer_venster.picDeelnemer.regels().size() != alle_regels)
        state.SkipWithError("not every line is shown");
    if (opstelling.geschilderd() - eerder < 2 * static_cast<int>(state.iterations()))
        state.SkipWithError("not every step repainted both displays");
}

// The texts of one area as the toolkit takes them, without anything to work out.
class KaalVlak {
  public:
    explicit KaalVlak(const Tekenvlak& vlak)
        : beeld_(pixels(static_cast<int>(vlak.breedte)), pixels(static_cast<int>(vlak.hoogte)), QImage::Format_RGB32),
          achtergrond_(qt_colour(vlak.achtergrond)),
          voorgrond_(qt_colour(vlak.voorgrond)) {
        for (const GeplaatsteTekst& regel : vlak.regels()) {
            const QFont letter = display_font(vlak.lettertype, regel.punten, beeld_);
            const double stijging = QFontMetricsF(letter, &beeld_).ascent();
            teksten_.push_back(
                {letter, QPointF(regel.x, regel.y) / twips_per_pixel + QPointF(0, stijging), qt_text(regel.tekst)});
        }
    }
    void schilder() {
        QPainter schilder(&beeld_);
        schilder.fillRect(beeld_.rect(), achtergrond_);
        schilder.setPen(voorgrond_);
        for (const Tekst& tekst : teksten_) {
            schilder.setFont(tekst.letter);
            schilder.drawText(tekst.plaats, tekst.tekst);
        }
    }

  private:
    struct Tekst {
        QFont letter;
        QPointF plaats;
        QString tekst;
    };
    QImage beeld_;
    QColor achtergrond_;
    QColor voorgrond_;
    std::vector<Tekst> teksten_;
};

// The two displays at the two sizes between which a step goes up and down.
class Kaal {
  public:
    explicit Kaal(Opstelling& opstelling) {
        for (auto& stand : standen_) {
            for (const Vertoning* vertoning :
                 {&opstelling.bediening().voorbeeld, &opstelling.bediening().deelnemer_venster})
                for (const Tekenvlak* vlak : {&vertoning->picDeelnemer, &vertoning->picRubriek})
                    stand.emplace_back(*vlak);
            opstelling.stap();
        }
    }
    void schilder() {
        for (KaalVlak& vlak : standen_[beurt_])
            vlak.schilder();
        beurt_ = 1 - beurt_;
    }

  private:
    std::array<std::vector<KaalVlak>, 2> standen_;
    std::size_t beurt_ = 0;
};

void kaal(benchmark::State& state, Kaal& vlakken) {
    for (auto _ : state)
        vlakken.schilder();
}

} // namespace

int main(int argc, char** argv) {
    Application toepassing(argc, argv);
    benchmark::Initialize(&argc, argv);
    Opstelling opstelling;
    Kaal vlakken(opstelling);
    benchmark::RegisterBenchmark("stap", [&](benchmark::State& state) { stap(state, opstelling); })
        ->Repetitions(7)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("kaal", [&](benchmark::State& state) { kaal(state, vlakken); })
        ->Repetitions(7)
        ->Unit(benchmark::kMillisecond);
    Tijden tijden;
    benchmark::RunSpecifiedBenchmarks(&tijden);
    tijden.druk_verhouding("step of a scroll bar in the settings / the same texts painted directly", "stap", "kaal",
                           1.5);
    tijden.druk_budget("step of a scroll bar in the settings / two frames of 60 Hz", "stap", twee_beelden);
}
