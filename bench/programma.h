// The whole program without its splash, its settings file and its dialogs: the real windows on the real parts.
#pragma once

#include "fakes/los_rooster.h"
#include "verhouding.h"

#include "app/start.h"
#include "basis/background_reader.h"
#include "basis/number.h"
#include "basis/system_time.h"
#include "excel/builtin_excel.h"
#include "platform/application.h"
#include "platform/browser.h"
#include "platform/fonts.h"
#include "schedule/record/kolommen.h"
#include "ui/main/frmTavelo.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace tavelo {

inline constexpr QSize groot_scherm(3840, 2160);
inline constexpr double een_beeld = 1.0 / 60; // seconds

struct LegeOpslag final : SettingsStore {
    [[nodiscard]] std::optional<std::string> get(std::string_view, std::string_view, std::string_view) const override {
        return {};
    }
    void save(std::string_view, std::string_view, std::string_view, std::string_view) override {}
};
struct GeenMappen final : SpecialFolders {
    [[nodiscard]] std::optional<std::string> path(int) const override { return {}; }
};
// The user always chooses `pad`.
struct VasteKeuze final : OpenDialog {
    [[nodiscard]] std::optional<std::string> ask(const OpenRequest&) override { return pad; }
    std::string pad;
};

struct EchtProgramma {
    explicit EchtProgramma(BackgroundReader::Work werk = BackgroundReader::file_work())
        : lezer(post_to_interface, std::move(werk)) {
        Main(
            programma, opslag, [] { return false; }, venster);
    }

    // With every line of the display on.
    void toon_alle_regels() {
        Instellingen& i = programma.instellingen;
        for (auto veld : {&Instellingen::showrubric, &Instellingen::shownumber, &Instellingen::showhorsesiredamr,
                          &Instellingen::showhorsecolor, &Instellingen::showhorsegender, &Instellingen::showhorseage,
                          &Instellingen::showhorsebreed, &Instellingen::showhorsebreeder, &Instellingen::showunionname})
            i.*veld = 1;
    }
    void open(const std::string& pad) {
        open_dialoog.pad = pad;
        venster.findChild<QAction*>("mnuBestand0")->trigger();
    }
    // The participant window as large as it gets, next to the main one of this size.
    [[nodiscard]] QWidget* open_monitor(QSize hoofdvenster) {
        venster.resize(hoofdvenster);
        venster.findChild<QAction*>("mnuPopup")->trigger();
        auto* deelnemer = venster.findChild<QWidget*>("frmDeelnemer");
        deelnemer->resize(groot_scherm);
        return deelnemer;
    }
    // The numbers of the start list, in its order.
    [[nodiscard]] std::vector<std::string> nummers() const {
        std::vector<std::string> gevonden;
        for (int rij = 1; rij < programma.grdRooster.rows(); ++rij)
            if (const std::string_view nummer = programma.grdRooster.text(rij, kolom_inr); leading_number(nummer) != 0)
                gevonden.emplace_back(nummer);
        return gevonden;
    }
    // What the screen's next frame would ask for, without waiting for it.
    static void schilder(QWidget& van) {
        QEvent beeld(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&van, &beeld);
    }

    FontTextMeasure meter;
    SilentMessages berichten;
    VasteKeuze open_dialoog;
    SystemFileStamp tijdstempels;
    SystemClock klok;
    QtPointer muisaanwijzer;
    test::SilentLog logboek;
    LegeOpslag opslag;
    GeenMappen mappen;
    BackgroundReader lezer;
    SystemBrowser browser;                                            // nobody presses F1
    std::function<void(frmTavelo&)> instellingen = [](frmTavelo&) {}; // what opening the settings does
    std::unique_ptr<ExcelApplication> excel = builtin_excel(locale_named("nl-NL"));
    Programma programma;
    Bediening bediening{
        programma, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, *excel}, {}, {}};
    frmTavelo venster{bediening,
                      {opslag, mappen, lezer, browser, ".", [] {}, [this](frmTavelo& v) { instellingen(v); }}};
};

} // namespace tavelo
