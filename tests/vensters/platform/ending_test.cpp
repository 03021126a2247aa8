#include "platform/ending.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>

#ifndef _WIN32
#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tavelo {
namespace {

struct EndingTest : testing::Test {
    int netjes = 0;
    Ending einde{[this] { ++netjes; }, [] {}};
};

TEST_F(EndingTest, het_einde_van_de_sessie_sluit_netjes_af) {
    QTimer::singleShot(0, qApp, [this] {
        EXPECT_EQ(netjes, 0);
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(netjes, 1);
    });
    QCoreApplication::exec();
}

TEST_F(EndingTest, ook_een_toepassing_die_alleen_meldt_dat_zij_gaat_eindigen) {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); }); // not by a wish to quit
    QCoreApplication::exec();
    EXPECT_EQ(netjes, 1);
}

#ifndef _WIN32

TEST_F(EndingTest, een_sein_sluit_netjes_af_en_beeindigt_ook_de_lus_van_een_dialoog) {
    for (const int sein : {SIGTERM, SIGHUP, SIGINT}) {
        netjes = 0;
        bool dialoog_klaar = false;
        QTimer::singleShot(0, qApp, [&] {
            QEventLoop dialoog;
            QTimer::singleShot(0, &dialoog, [&] { std::raise(sein); });
            dialoog.exec();
            EXPECT_EQ(netjes, 1) << sein;
            dialoog_klaar = true;
        });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_TRUE(dialoog_klaar);
    }
}

TEST_F(EndingTest, een_lezer_van_het_logboek_die_er_niet_meer_is_beeindigt_niets) {
    int pijp[2] = {};
    ASSERT_EQ(pipe(pijp), 0);
    close(pijp[0]);
    EXPECT_EQ(write(pijp[1], "x", 1), -1);
    EXPECT_EQ(errno, EPIPE);
    close(pijp[1]);
}

TEST(EndingZonder, een_sein_dat_vanaf_het_begin_genegeerd_werd_blijft_genegeerd) {
    struct sigaction eerder {};
    struct sigaction nu {};
    std::signal(SIGHUP, SIG_IGN);
    {
        const Ending einde([] {}, [] {});
        sigaction(SIGHUP, nullptr, &nu);
        EXPECT_EQ(nu.sa_handler, SIG_IGN);
        sigaction(SIGTERM, nullptr, &eerder);
        EXPECT_NE(eerder.sa_handler, SIG_DFL);
    }
    std::signal(SIGHUP, SIG_DFL);
    sigaction(SIGTERM, nullptr, &nu);
    EXPECT_EQ(nu.sa_handler, SIG_DFL);
}

// What the toolkit does when its display is gone: exit() from the depth of a loop.
TEST(EndingZonder, een_einde_zonder_terugkeer_doet_nog_het_laatste) {
    const pid_t kind = fork();
    if (kind == 0) {
        const Ending einde([] {}, [] { _exit(42); });
        std::exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(kind, &status, 0), kind);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 42);
}

#endif

} // namespace
} // namespace tavelo
