// Fixture of the tests of the main window: the real window, with a fake behind every seam.
#pragma once

#include "app/instellingen.h"
#include "fakes/file_readers.h"
#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"
#include "ui/main/frmTavelo.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tavelo::test {

struct MetHoofdvenster : testing::Test {
    TempFolder map;
    Opstelling opstelling;
    FakeSettings opslag;
    FakeSpecialFolders mappen;
    FakeBrowser browser;
    DirectReader lezer;
    virtual FileReader& lezer_van_de_poll() { return lezer; }
    Programma& programma = opstelling.programma;
    int intros = 0;
    int instellingen_getoond = 0;
    std::unique_ptr<frmTavelo> venster;

    void SetUp() override {
        programma.instellingen = laad_instellingen(opslag);
        mappen.folders[5] = map.file("documenten"); // without them the folders of the suite stand in the root
        venster = std::make_unique<frmTavelo>(
            opstelling.bediening, TaveloOmgeving{opslag, mappen, lezer_van_de_poll(), browser, map.file("programma"),
                                                 [this] { ++intros; }, [this](frmTavelo&) { ++instellingen_getoond; }});
        venster->laad();
        QCoreApplication::processEvents();
    }
    void TearDown() override {
        venster.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <class Widget = QWidget>
    [[nodiscard]] Widget& vind(const char* naam) const {
        auto* gevonden = venster->findChild<Widget*>(naam);
        if (!gevonden) throw std::runtime_error(std::string("geen ") + naam);
        return *gevonden;
    }
    [[nodiscard]] QLineEdit& txtINR() const { return vind<QLineEdit>("txtINR"); }
    [[nodiscard]] QTableView& grdRooster() const { return vind<QTableView>("grdRooster"); }

    void open(const std::string& pad) {
        opstelling.open_dialoog.answer = pad;
        vind<QAction>("mnuBestand0").trigger();
    }
    void typ(const char* tekst) const {
        txtINR().selectAll();
        QTest::keyClicks(&txtINR(), tekst);
    }
    void wissel_monitor() const { vind<QAction>("mnuPopup").trigger(); }

    // When a file was changed, for who opens it and for the poll. A file that is gone has no time for the poll.
    void zet_tijd(const std::string& pad, const LocalTime& tijd) {
        opstelling.tijdstempels.stamps[pad] = tijd;
        std::tm delen{};
        delen.tm_year = tijd.year - 1900;
        delen.tm_mon = tijd.month - 1;
        delen.tm_mday = tijd.day;
        delen.tm_hour = tijd.hour;
        delen.tm_min = tijd.minute;
        delen.tm_sec = tijd.second;
        delen.tm_isdst = -1;
        const auto punt = std::chrono::system_clock::from_time_t(std::mktime(&delen));
        std::error_code weg;
        std::filesystem::last_write_time(pad, std::chrono::file_clock::from_sys(punt), weg);
    }
    // The timer of the re-import, fired by hand.
    void tik() const { QMetaObject::invokeMethod(&vind<QTimer>("Timer1"), "timeout", Qt::DirectConnection); }
};

} // namespace tavelo::test
