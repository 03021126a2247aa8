#include "ui/main/handleiding.h"

#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"
#include "ui/main/statusregel.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace tavelo {
namespace {

constexpr std::string_view pagina = "handleiding.html";

// The program in a folder of its own, and how often the note about the manual changed.
struct Vraag : test::Opstelling {
    test::TempFolder map;
    test::FakeBrowser browser;
    int veranderd = 0;

    void zet_handleiding(const std::string& waar) const {
        std::filesystem::create_directories(map.file(waar));
        map.write(waar + "/" + std::string(pagina), "<html>");
    }
    [[nodiscard]] std::string programma_map() const {
        std::filesystem::create_directories(map.file("usr/bin"));
        return map.file("usr/bin");
    }
    void vraag() {
        toon_handleiding(bediening, programma_map(), browser, [this] { ++veranderd; });
    }
    [[nodiscard]] StatusDeel gezegd() const { return statusregel(bediening).handleiding; }
};

TEST(VindHandleiding, zoekt_bij_een_pakket_naast_het_programma_en_waar_het_gebouwd_is) {
    const std::array<std::string, 3> plaatsen = {"usr/share/doc/tavelo/html", "usr/bin/handleiding",
                                                 "usr/packaging/html"};
    for (const std::string& plaats : plaatsen) {
        const Vraag proef;
        EXPECT_EQ(vind_handleiding(proef.programma_map()), std::nullopt);
        proef.zet_handleiding(plaats);
        const auto gevonden = vind_handleiding(proef.programma_map());
        ASSERT_TRUE(gevonden) << plaats;
        EXPECT_TRUE(std::filesystem::equivalent(*gevonden, proef.map.file(plaats + "/handleiding.html"))) << plaats;
    }
}

TEST(VindHandleiding, van_een_geinstalleerd_programma_gaat_voor) {
    const Vraag proef;
    proef.zet_handleiding("usr/packaging/html");
    proef.zet_handleiding("usr/share/doc/tavelo/html");
    EXPECT_NE(vind_handleiding(proef.programma_map()).value_or("").find("share/doc"), std::string::npos);
}

TEST(ToonHandleiding, gaat_naar_de_browser_en_de_statusregel_zegt_het) {
    Vraag proef;
    EXPECT_EQ(proef.gezegd().tekst, "");
    proef.zet_handleiding("usr/share/doc/tavelo/html");
    proef.vraag();
    ASSERT_EQ(proef.browser.opened.size(), 1U);
    EXPECT_EQ(proef.browser.opened[0], vind_handleiding(proef.programma_map()));
    EXPECT_EQ(proef.gezegd().tekst, "de handleiding opent in de browser");
    EXPECT_FALSE(proef.gezegd().let_op);
    EXPECT_EQ(proef.veranderd, 1);
}

TEST(ToonHandleiding, zonder_handleiding_zegt_de_statusregel_het_en_begint_geen_browser) {
    Vraag proef;
    proef.vraag();
    EXPECT_TRUE(proef.browser.opened.empty());
    EXPECT_EQ(proef.gezegd().tekst, "de handleiding staat niet op deze computer");
    EXPECT_TRUE(proef.gezegd().let_op);
    EXPECT_EQ(proef.veranderd, 1);
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(ToonHandleiding, zonder_browser_zegt_de_statusregel_het) {
    Vraag proef;
    proef.zet_handleiding("usr/share/doc/tavelo/html");
    proef.vraag();
    proef.browser.fail();
    EXPECT_EQ(proef.gezegd().tekst, "geen browser gevonden om de handleiding te tonen");
    EXPECT_TRUE(proef.gezegd().let_op);
    EXPECT_EQ(proef.veranderd, 2);
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(ToonHandleiding, een_browser_die_veel_later_eindigt_is_gesloten_en_niet_mislukt) {
    Vraag proef;
    proef.zet_handleiding("usr/share/doc/tavelo/html");
    proef.vraag();
    proef.bediening.handleiding = Handleiding::niet_gevraagd; // said long enough
    proef.browser.fail();
    EXPECT_EQ(proef.gezegd().tekst, "");
    EXPECT_EQ(proef.veranderd, 1);
}

} // namespace
} // namespace tavelo
