// A step of a scroll bar in the settings dialog until the preview and the participant window have been repainted, both
// in windows of 3840x2160, against painting the same texts directly and against two frames of 60 Hz.
#include "stil.h"
#include "verhouding.h"

#include "app/start.h"
#include "basis/number.h"
#include "basis/system_time.h"
#include "excel/builtin_excel.h"
#include "platform/application.h"
#include "platform/dialogs.h"
#include "platform/fonts.h"
#include "platform/pointer.h"
#include "platform/qt_text.h"
#include "schedule/record/kolommen.h"
#include "ui/main/frmTavelo.h"
#include "ui/settings/frmInstellingen.h"

#include <QAction>
#include <QPainter>
#include <QScrollBar>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace {

using namespace tavelo;

constexpr QSize groot_scherm(3840, 2160);
constexpr double twee_beelden = 2.0 / 60;

struct LegeOpslag final : SettingsStore {
    [[nodiscard]] std::optional<std::string> get(std::string_view, std::string_view, std::string_view) const override {
        return {};
    }
    void save(std::string_view, std::string_view, std::string_view, std::string_view) override {}
};
struct GeenMappen final : SpecialFolders {
    [[nodiscard]] std::optional<std::string> path(int) const override { return {}; }
};

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
        Main(
            programma_, opslag_, [] { return false; }, venster_);
        kies_bestand(bediening_, bench_data + "rooster_1000.rst", 0);
        laad_rooster(bediening_, 0);
        zet_alle_regels_aan();
        venster_.resize(groot_scherm);
        venster_.findChild<QAction*>("mnuPopup")->trigger();
        deelnemer_ = venster_.findChild<QWidget*>("frmDeelnemer");
        deelnemer_->resize(groot_scherm);
        zet_txtINR(bediening_, eerste_nummer());
        venster_.toon();
        dialoog_.emplace(
            bediening_, kleuren_, [this] { venster_.toon_vertoningen(); }, &venster_);
        balk_ = dialoog_->findChild<QScrollBar*>("HScrollDeelnemerTekstGrootte");
        dialoog_->show();
        QCoreApplication::processEvents();
        for (QWidget* vlak : venster_.findChildren<QWidget*>("picDeelnemer"))
            vlak->installEventFilter(&geschilderd_);
    }

    // Up and down in turn, so that every step changes the size.
    void stap() {
        balk_->triggerAction(omhoog_ ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
        omhoog_ = !omhoog_;
        for (QWidget* venster : std::initializer_list<QWidget*>{&venster_, deelnemer_, &*dialoog_}) {
            // What the screen's next frame would ask for, without waiting for it.
            QEvent beeld(QEvent::UpdateRequest);
            QCoreApplication::sendEvent(venster, &beeld);
        }
    }

    [[nodiscard]] int geschilderd() const { return geschilderd_.aantal; }
    [[nodiscard]] const Bediening& bediening() const { return bediening_; }

  private:
    void zet_alle_regels_aan() {
        Instellingen& i = programma_.instellingen;
        for (auto veld : {&Instellingen::showrubric, &Instellingen::shownumber, &Instellingen::showhorsesiredamr,
                          &Instellingen::showhorsecolor, &Instellingen::showhorsegender, &Instellingen::showhorseage,
                          &Instellingen::showhorsebreed, &Instellingen::showhorsebreeder, &Instellingen::showunionname})
            i.*veld = 1;
        i.textsize = 50; // room for the step before the lines fill the height
    }
    [[nodiscard]] std::string eerste_nummer() const {
        for (int rij = 1; rij < programma_.grdRooster.rows(); ++rij)
            if (const std::string& nummer = programma_.grdRooster.text(rij, kolom_inr); leading_number(nummer) != 0)
                return nummer;
        return {};
    }

    DialogOwner eigenaar_;
    FontTextMeasure meter_;
    GeenBerichten berichten_;
    QtOpenDialog open_dialoog_{eigenaar_};
    QtColourDialog kleuren_{eigenaar_};
    SystemFileStamp tijdstempels_;
    SystemClock klok_;
    QtPointer muisaanwijzer_;
    GeenLogboek logboek_;
    LegeOpslag opslag_;
    GeenMappen mappen_;
    std::unique_ptr<ExcelApplication> excel_ = builtin_excel(locale_named("nl-NL"));
    Programma programma_;
    Bediening bediening_{programma_,
                         {meter_, berichten_, open_dialoog_, tijdstempels_, klok_, muisaanwijzer_, logboek_, *excel_},
                         {},
                         {}};
    frmTavelo venster_{bediening_, {opslag_, mappen_, ".", [] {}, [](frmTavelo&) {}}};
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
