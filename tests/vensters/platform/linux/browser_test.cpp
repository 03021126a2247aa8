#include "platform/browser.h"

#include "fakes/temp_folder.h"

#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace tavelo {
namespace {

// A computer on which only what a test put there can be found.
struct SystemBrowserTest : testing::Test {
    test::TempFolder map;
    QByteArray pad = qgetenv("PATH");
    bool mislukt = false;
    std::function<void()> noteer = [this] { mislukt = true; };

    void SetUp() override { qputenv("PATH", QByteArray::fromStdString(map.file(""))); }
    void TearDown() override { qputenv("PATH", pad); }

    // A desktop's opener that keeps what it was asked for, and then ends with `code`.
    void zet_opener(int code) const {
        const std::string opener = map.write("xdg-open", "#!/bin/sh\nprintf %s \"$1\" >'" + map.file("nieuw") +
                                                             "'\n/bin/mv '" + map.file("nieuw") + "' '" +
                                                             map.file("gevraagd") + "'\nexit " + std::to_string(code));
        std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    }
    [[nodiscard]] QByteArray gevraagd() const {
        QFile bestand(QString::fromStdString(map.file("gevraagd")));
        return bestand.open(QIODevice::ReadOnly) ? bestand.readAll() : QByteArray();
    }
};

TEST_F(SystemBrowserTest, vraagt_het_bureaublad_om_de_bladzijde) {
    zet_opener(0);
    SystemBrowser().open(map.file("mijn handleiding.html"), noteer);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !gevraagd().isEmpty(); }));
    const QByteArray verwacht = "file://" + QByteArray::fromStdString(map.file("mijn%20handleiding.html"));
    EXPECT_EQ(gevraagd(), verwacht);
}

TEST_F(SystemBrowserTest, hoort_dat_het_bureaublad_geen_browser_heeft) {
    zet_opener(3);
    SystemBrowser().open(map.file("handleiding.html"), noteer);
    EXPECT_FALSE(mislukt); // not waited for
    EXPECT_TRUE(QTest::qWaitFor([this] { return mislukt; }));
}

TEST_F(SystemBrowserTest, hoort_dat_wat_het_bureaublad_heeft_niet_te_starten_is) {
    const std::string opener = map.write("xdg-open", "geen programma");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    SystemBrowser().open(map.file("handleiding.html"), noteer);
    EXPECT_TRUE(QTest::qWaitFor([this] { return mislukt; }));
}

TEST_F(SystemBrowserTest, zonder_bureaublad_en_browser_is_het_meteen_mislukt) {
    SystemBrowser().open(map.file("handleiding.html"), noteer);
    EXPECT_TRUE(mislukt);
}

} // namespace
} // namespace tavelo
