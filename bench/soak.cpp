// A whole day at the show in minutes: the real windows and the real reader of the poll, by a clock that this program
// advances.
//
//     soak [HOURS]        12 without an argument
//
// Every ten seconds of the show the poll looks at the file, which other programs rewrite in six ways. The operator
// types numbers, goes from class to class, switches between the two slots, tries settings and cancels them, opens and
// closes the participant window; its monitor goes and comes back. It ends with an error when the list is ever another
// than a fresh opening gives, when memory grew after the first hour, when a handle, thread, timer or object is left
// over or when the pictures are not those of a program that was just started. How the last hour answered, compared with
// the first, is printed as a ratio and not judged: a machine may be busy.
#include "programma.h"

#include "basis/background_reader.h"
#include "basis/codeDatumTijd.h"
#include "fakes/grid_events.h"
#include "fakes/temp_folder.h"
#include "platform/application.h"
#include "schedule/toeval.h"
#include "ui/display/frmDeelnemer.h"
#include "ui/settings/frmInstellingen.h"

#include <QAbstractEventDispatcher>
#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <malloc.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace tavelo {
namespace {

namespace fs = std::filesystem;
using test::Toeval;

constexpr std::int64_t seconde = 1'000'000'000;
constexpr int tikken_per_uur = 360;
constexpr int rubrieken_per_dag = 14;
constexpr int nummers_per_dag = 3000;
constexpr int vensters_per_dag = 200;
constexpr int monitors_per_dag = 20;
constexpr int dag = 12; // hours

[[noreturn]] void mis(const std::string& wat) {
    std::fprintf(stderr, "soak: %s\n", wat.c_str());
    std::exit(1);
}
void eis(bool voorwaarde, const std::string& wat) {
    if (!voorwaarde) mis(wat);
}

struct KeuzeloosKleur final : ColourDialog {
    [[nodiscard]] std::optional<std::int32_t> ask(std::int32_t) override { return {}; }
};

// ---- the clock of the show

std::int64_t nu = 1'781'330'400 * seconde; // a Saturday morning in June

BackgroundReader::Work op_de_klok_van_de_show() {
    BackgroundReader::Work werk = BackgroundReader::file_work();
    // The clock stands still while anybody looks at it.
    werk.look = [kijk = werk.look](const std::string& pad) {
        FileReader::Blik blik = kijk(pad);
        if (blik) blik->leeftijd = std::chrono::nanoseconds(nu - blik->kenmerk.gewijzigd);
        return blik;
    };
    return werk;
}

// ---- the other programs of the suite

// A class: its combinations, and how they stand in the file.
class Rubriek {
  public:
    Rubriek(int nummer, Toeval& toeval, const test::TempFolder& map)
        : nummer_(nummer), toeval_(toeval), pad_(map.file("rubriek" + std::to_string(nummer) + ".rst")) {
        for (int rijen = 30 + toeval.onder(40); rijen > 0; --rijen)
            erbij();
        schrijf(tekst());
    }

    [[nodiscard]] const std::string& pad() const { return pad_; }
    // A number of the start list.
    [[nodiscard]] std::string nummer() const {
        return std::to_string(1 + toeval_.onder(static_cast<int>(namen_.size())));
    }

    // A rider or a horse changed, an entry more or the last one gone.
    void wijzig() {
        switch (toeval_.onder(6)) {
        case 0:
            return erbij();
        case 1:
            if (namen_.size() > 20) namen_.pop_back();
            return;
        default:
            namen_[static_cast<std::size_t>(toeval_.onder(static_cast<int>(namen_.size())))] = naam();
        }
    }

    void schrijf_in_een_van_zes_manieren() {
        if (!rest_.empty()) return schrijf_verder(); // the slow writer goes first
        wijzig();
        const std::string nieuw = tekst();
        switch (manier_++ % 6) {
        case 0: // in place
            return schrijf(nieuw);
        case 1: { // under another name, and renamed
            const std::string ander = pad_ + ".nieuw";
            schrijf(nieuw, ander);
            fs::rename(ander, pad_);
            return;
        }
        case 2: // truncated, and completed by the next write
            rest_ = nieuw;
            return schrijf("");
        case 3: // deleted, and created by the next write
            rest_ = nieuw;
            fs::remove(pad_);
            return;
        case 4: // stamped back: not to be read before it is written again
            rest_ = nieuw;
            schrijf(nieuw);
            return stempel(nu - 3600 * seconde);
        default: // slowly: half of it now
            rest_ = nieuw;
            return schrijf(nieuw.substr(0, nieuw.size() / 2));
        }
    }
    void schrijf_verder() {
        if (!rest_.empty()) schrijf(std::exchange(rest_, ""));
    }
    [[nodiscard]] bool half() const { return !rest_.empty(); }

  private:
    std::string naam() {
        return "Ruiter " + std::to_string(++gezien_) +
               toeval_.uit(std::vector<std::string>{"", " (HC)x",
                                                    " van \xC9"
                                                    "e"});
    }
    void erbij() { namen_.push_back(naam()); }
    [[nodiscard]] std::string tekst() const {
        std::string tekst = "[Vendalo 3.4]\r\nsinglesignin:0\r\n";
        std::string lijst;
        for (std::size_t i = 0; i < namen_.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            tekst += "dnr:" + n + "\tna:" + namen_[i] + "\tpa:Paard " + namen_[i] + "\tva:Vader " + n + "\r\n";
            lijst += "\tdnr:" + n + "\t0\t\t0\t\t0\t";
        }
        return tekst + "rnr:1\trid:S1\troms:Rubriek " + std::to_string(nummer_) + "\trcom:2\trkla:*B*\trcat:*A*" +
               lijst + "\r\n";
    }
    void stempel(std::int64_t tijd) const {
        fs::last_write_time(pad_, std::chrono::file_clock::from_sys(
                                      std::chrono::sys_time<std::chrono::nanoseconds>(std::chrono::nanoseconds(tijd))));
    }
    void schrijf(const std::string& bytes) const { schrijf(bytes, pad_); }
    void schrijf(const std::string& bytes, const std::string& pad) const {
        std::ofstream(pad, std::ios::binary | std::ios::trunc) << bytes;
        fs::last_write_time(pad, std::chrono::file_clock::from_sys(
                                     std::chrono::sys_time<std::chrono::nanoseconds>(std::chrono::nanoseconds(nu))));
    }

    int nummer_;
    Toeval& toeval_;
    std::string pad_;
    std::vector<std::string> namen_;
    std::string rest_; // what the next write gives
    int manier_ = 0;
    int gezien_ = 0;
};

// ---- what is left over

int in_map(const char* map) {
    return static_cast<int>(std::distance(fs::directory_iterator(map), fs::directory_iterator()));
}

struct Stand {
    std::size_t bytes = 0;    // of the heap in use: the toolkit's letters of every size that was shown are among them
    std::size_t resident = 0; // bytes
    int handles = 0;
    int threads = 0;
    qsizetype timers = 0;
    qsizetype objects = 0;
};

Stand stand() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    malloc_trim(0);
    Stand s;
    const struct mallinfo2 heap = mallinfo2();
    s.bytes = heap.uordblks + heap.hblkhd;
    std::ifstream statm("/proc/self/statm");
    std::size_t alles = 0;
    statm >> alles >> s.resident;
    s.resident *= static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    s.handles = in_map("/proc/self/fd");
    s.threads = in_map("/proc/self/task");
    QList<QObject*> objecten{QCoreApplication::instance()};
    for (QWidget* venster : QApplication::topLevelWidgets())
        objecten += venster;
    for (qsizetype i = 0; i < objecten.size(); ++i) {
        objecten += objecten[i]->children();
        s.timers += QAbstractEventDispatcher::instance()->registeredTimers(objecten[i]).size();
    }
    s.objects = objecten.size();
    return s;
}

// Of this thread: what else the machine does is left out.
double processor_seconden() {
    timespec tijd{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tijd);
    return static_cast<double>(tijd.tv_sec) + static_cast<double>(tijd.tv_nsec) / 1e9;
}

void wacht(const auto& tot) {
    constexpr int lang_ms = 60'000;
    eis(QTest::qWaitFor(tot, lang_ms), "er komt geen antwoord");
}

// ---- the operator

// Whether an event that comes `per_dag` times a day is due in this poll.
bool is_beurt(int tik, int per_dag) {
    constexpr int tikken = dag * tikken_per_uur;
    return tik * per_dag / tikken != (tik - 1) * per_dag / tikken;
}

class Show {
  public:
    Show() {
        for (int i = 0; i < rubrieken_per_dag; ++i)
            rubrieken_.push_back(std::make_unique<Rubriek>(i, toeval_, map_));
        p_.instellingen = [this](frmTavelo& venster) { probeer_instellingen(venster); };
        open_volgende();
    }

    void speel(int uren) {
        for (int uur = 0; uur < uren; ++uur) {
            for (int i = 0; i < tikken_per_uur; ++i)
                speel_tik(uur * tikken_per_uur + i + 1);
            controleer_lijst();
            einde_van_uur(uur);
        }
        controleer_wat_overblijft();
        controleer_beelden();
        std::printf("ratio response of the last hour to the first: %.2f (at most 1.25)\n", laatste_ / eerste_);
        std::printf("%d polls, %d re-reads waited for, %d numbers, %d pictures compared\n", tikken_, gewacht_, getypt_,
                    vergeleken_);
    }

  private:
    void speel_tik(int tik) {
        const std::int64_t begin = nu;
        if (toeval_.een_op(3)) huidige().schrijf_in_een_van_zes_manieren();
        poll("Timer1");
        while (vind<QTimer>("TimerNogeens").isActive() && nu < begin + 8 * seconde) {
            nu += 2 * seconde;
            ++gewacht_;
            if (toeval_.een_op(2)) huidige().schrijf_verder();
            vind<QTimer>("TimerNogeens").stop();
            poll("TimerNogeens");
        }
        if (is_beurt(tik, nummers_per_dag)) typ(huidige().nummer());
        if (is_beurt(tik, 2 * vensters_per_dag)) actie("mnuPopup").trigger();
        if (is_beurt(tik, monitors_per_dag)) verlies_en_vind_de_monitor();
        if (is_beurt(tik, 120)) klik("btnFast_1");
        if (is_beurt(tik, 100)) wissel_van_slot_en_terug();
        if (is_beurt(tik, rubrieken_per_dag)) {
            controleer_lijst();
            open_volgende();
        }
        QCoreApplication::processEvents();
        nu = begin + 10 * seconde;
        ++tikken_;
    }

    void poll(const char* timer) {
        QMetaObject::invokeMethod(&vind<QTimer>(timer), "timeout", Qt::DirectConnection);
        wacht([this] { return !p_.lezer.busy(); });
    }

    void typ(const std::string& nummer) {
        auto& txtINR = vind<QLineEdit>("txtINR");
        txtINR.selectAll();
        if (nummer.empty())
            QTest::keyClick(&txtINR, Qt::Key_Delete);
        else
            QTest::keyClicks(&txtINR, QString::fromStdString(nummer));
        EchtProgramma::schilder(p_.venster);
        if (QWidget* const venster = deelnemer()) EchtProgramma::schilder(*venster);
        eis(p_.programma.txtINR == nummer, "het getypte nummer staat er niet");
        ++getypt_;
    }

    void open_volgende() {
        slot_ = 1 - slot_;
        open_[slot_] = geopend_++ % rubrieken_per_dag;
        klik(slot_ == 0 ? "btnRooster_0" : "btnRooster_1");
        huidige().schrijf_verder();
        p_.open(huidige().pad());
    }
    // The list of the other slot, and back: as it stands in the file by then.
    void wissel_van_slot_en_terug() {
        if (geopend_ < 2) return;
        klik(slot_ == 0 ? "btnRooster_1" : "btnRooster_0");
        typ(rubrieken_[open_[1 - slot_]]->nummer());
        klik(slot_ == 0 ? "btnRooster_0" : "btnRooster_1");
    }

    void probeer_instellingen(frmTavelo& venster) {
        KeuzeloosKleur kleuren;
        frmInstellingen dialoog(
            p_.bediening, kleuren, [&] { venster.toon_vertoningen(); }, &venster);
        dialoog.show();
        for (auto* vinkje : dialoog.findChildren<QCheckBox*>())
            if (toeval_.een_op(3)) vinkje->click();
        for (auto* schuif : dialoog.findChildren<QScrollBar*>())
            if (schuif->isVisible()) schuif->setValue(schuif->minimum() + toeval_.onder(50));
        QCoreApplication::processEvents();
        dialoog.reject();
    }

    void sluit_monitor() {
        if (deelnemer()) actie("mnuPopup").trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // it is gone, not only closed
    }
    void verlies_en_vind_de_monitor() {
        if (!deelnemer()) actie("mnuPopup").trigger();
        auto& venster = static_cast<frmDeelnemer&>(*deelnemer());
        const Scherm bureau = aanwezige_schermen().front();
        const Scherm monitor{"monitor", {bureau.vlak.links + bureau.vlak.breedte, 0, 1920, 1080}};
        venster.pas_schermen_toe({bureau, monitor});
        venster.setGeometry(monitor.vlak.links + 100, 100, 960, 540);
        if (toeval_.een_op(2)) QTest::keyClick(&p_.venster, Qt::Key_F11);
        venster.pas_schermen_toe({bureau});
        QCoreApplication::processEvents();
        venster.pas_schermen_toe({bureau, monitor});
        QCoreApplication::processEvents();
    }

    // ---- what must hold

    // Every write has come to rest, and one more poll has seen it: then the list is that of a fresh opening.
    void controleer_lijst() {
        huidige().schrijf_verder();
        nu += 10 * seconde;
        poll("Timer1");
        test::LosRooster vers;
        eis(lees_rooster(huidige().pad(), vers.doel()).has_value(), "het bestand is niet te lezen");
        vul_nr_tijd(vers.grid, vers.schedule.huidige_rubriek, vers.berichten);
        eis(test::all_texts(p_.programma.grdRooster) == test::all_texts(vers.grid),
            "de lijst is een andere dan na openen, poll " + std::to_string(tikken_));
    }

    // The processor's time for a number, with the participant window open, in seconds: the same work every hour.
    double traagheid() {
        QWidget* const monitor = p_.open_monitor({1300, 800});
        monitor->resize(1280, 720);
        QCoreApplication::processEvents();
        std::vector<double> tijden;
        for (int i = 0; i < 200; ++i) {
            const double begin = processor_seconden();
            typ(std::to_string(1 + i % 20));
            tijden.push_back(processor_seconden() - begin);
        }
        sluit_monitor();
        std::ranges::sort(tijden);
        return tijden[tijden.size() / 2];
    }

    // In the same state at every end of an hour: the first class open, nothing typed, no participant window.
    void einde_van_uur(int uur) {
        sluit_monitor();
        p_.open(rubrieken_[0]->pad());
        const double traag = traagheid();
        typ("");
        wacht([this] { return !vind<QTimer>("TimerGroen").isActive(); });
        const Stand s = stand();
        if (uur == 0) {
            begin_ = s;
            eerste_ = traag;
        }
        einde_ = s;
        laatste_ = traag;
        std::printf("hour %2d: %8.0f KiB held, %8.0f KiB resident, %d handles, %d threads, %lld timers, %lld objects, "
                    "a number in %.2f ms\n",
                    uur + 1, static_cast<double>(s.bytes) / 1024, static_cast<double>(s.resident) / 1024, s.handles,
                    s.threads, static_cast<long long>(s.timers), static_cast<long long>(s.objects), traag * 1000);
        std::fflush(stdout);
        p_.open(huidige().pad());
    }

    void controleer_wat_overblijft() const {
        constexpr double speling = 1.05;
        eis(static_cast<double>(einde_.resident) <= speling * static_cast<double>(begin_.resident),
            "het geheugen is gegroeid");
        eis(einde_.handles <= begin_.handles, "er is een bestand open gebleven");
        // The thread of the last poll may still be on its way out.
        eis(QTest::qWaitFor([this] { return in_map("/proc/self/task") <= begin_.threads; }, 60'000),
            "er is een draad overgebleven");
        eis(einde_.timers <= begin_.timers, "er is een klok overgebleven");
        constexpr qsizetype komt_en_gaat =
            5; // of the toolkit, such as a tooltip; what is left behind comes by twenties
        eis(einde_.objects <= begin_.objects + komt_en_gaat, "er is een onderdeel van een venster overgebleven");
    }

    static std::vector<QImage> beelden(EchtProgramma& van, const std::string& pad, const std::string& nummer) {
        van.venster.resize(1300, 800);
        van.open(pad);
        auto& txtINR = *van.venster.findChild<QLineEdit*>("txtINR");
        txtINR.selectAll();
        QTest::keyClicks(&txtINR, QString::fromStdString(nummer));
        QWidget* const monitor = van.open_monitor({1300, 800});
        van.venster.activateWindow();
        QCoreApplication::processEvents();
        std::vector<QImage> gemaakt{monitor->grab().toImage()};
        for (const char* naam : {"picDeelnemer", "grdRooster", "frameRoosterinstellingen"})
            gemaakt.push_back(van.venster.findChild<QWidget*>(naam)->grab().toImage());
        return gemaakt;
    }
    void controleer_beelden() {
        sluit_monitor();
        const std::vector<QImage> nu_gemaakt = beelden(p_, rubrieken_[0]->pad(), "7");
        p_.venster.hide();
        EchtProgramma vers;
        const std::vector<QImage> vers_gemaakt = beelden(vers, rubrieken_[0]->pad(), "7");
        for (std::size_t i = 0; i < vers_gemaakt.size(); ++i) {
            eis(!vers_gemaakt[i].isNull() && nu_gemaakt[i] == vers_gemaakt[i],
                "beeld " + std::to_string(i) + " is een ander dan na een start");
            ++vergeleken_;
        }
    }

    // ---- where things are

    template <class Deel = QWidget>
    [[nodiscard]] Deel& vind(const char* naam) {
        auto* const gevonden = p_.venster.findChild<Deel*>(naam);
        eis(gevonden != nullptr, std::string("geen ") + naam);
        return *gevonden;
    }
    [[nodiscard]] QAction& actie(const char* naam) { return vind<QAction>(naam); }
    void klik(const char* naam) { QTest::mouseClick(&vind(naam), Qt::LeftButton); }
    [[nodiscard]] QWidget* deelnemer() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return p_.venster.findChild<QWidget*>("frmDeelnemer");
    }
    [[nodiscard]] Rubriek& huidige() { return *rubrieken_[open_[slot_]]; }

    test::TempFolder map_;
    Toeval toeval_{20260613};
    std::vector<std::unique_ptr<Rubriek>> rubrieken_;
    EchtProgramma p_{op_de_klok_van_de_show()};
    std::array<std::size_t, 2> open_{};
    std::size_t slot_ = 1;
    std::size_t geopend_ = 0;

    Stand begin_; // after the first hour
    Stand einde_;
    double eerste_ = 0;
    double laatste_ = 0;
    int tikken_ = 0;
    int gewacht_ = 0;
    int getypt_ = 0;
    int vergeleken_ = 0;
};

} // namespace
} // namespace tavelo

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    tavelo::Application toepassing(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the settings of who runs it
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0); // no timer that comes and goes with the focus
    tavelo::Show().speel(argc > 1 ? std::atoi(argv[1]) : tavelo::dag);
}
