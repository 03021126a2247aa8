#include "platform/linux/settings_store.h"

#include "app/instellingen.h"
#include "platform/qt_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr std::string_view toepassing = "Vendalo 3.5 Deelnemer";

struct SettingsStoreTest : testing::Test {
    QTemporaryDir map;
    QString bestand = UserSettingsStore(map.path()).file_name(toepassing);

    void schrijf(std::string_view tekst) const {
        QFile file(bestand);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(tekst.data(), static_cast<qint64>(tekst.size()));
    }
    [[nodiscard]] std::string lees() const {
        QFile file(bestand);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(geen bestand)";
    }
};

TEST_F(SettingsStoreTest, elke_tekst_komt_ongeschonden_terug) {
    const std::vector<std::string> teksten = {"",
                                              "Arial",
                                              "a,b;c",
                                              "\"tussen aanhalingstekens\"",
                                              "half \"aangehaald",
                                              "\"",
                                              "D:\\Data\\",
                                              "\\\"",
                                              "100 % %20 %s",
                                              "Zoë's café-cup, ’s-Hertogenbosch",
                                              "  met blanco's  ",
                                              "\teen tab",
                                              "regel 1\r\nregel 2",
                                              "a=b",
                                              "[Layout]",
                                              "; geen commentaar",
                                              "# ook niet",
                                              std::string("nul\0teken", 9),
                                              "\x7F",
                                              "&HFFFFFF"};
    {
        UserSettingsStore opslag(map.path());
        for (std::size_t i = 0; i < teksten.size(); ++i)
            opslag.save(toepassing, "Files", "sleutel" + std::to_string(i), teksten[i]);
        opslag.flush();
    }
    const UserSettingsStore opslag(map.path());
    for (std::size_t i = 0; i < teksten.size(); ++i)
        EXPECT_EQ(opslag.get(toepassing, "Files", "sleutel" + std::to_string(i)), teksten[i]) << i;
}

TEST_F(SettingsStoreTest, vreemde_namen_van_secties_en_sleutels_komen_terug) {
    const std::vector<std::string> namen = {"a=b", "[x]", "", " blanco ", "; x", "# x", "\"q\"", "Ünï"};
    {
        UserSettingsStore opslag(map.path());
        for (const std::string& sectie : namen)
            for (const std::string& sleutel : namen)
                opslag.save(toepassing, sectie, sleutel, sectie + "|" + sleutel);
        opslag.flush();
    }
    const UserSettingsStore opslag(map.path());
    for (const std::string& sectie : namen)
        for (const std::string& sleutel : namen)
            EXPECT_EQ(opslag.get(toepassing, sectie, sleutel), sectie + "|" + sleutel);
}

TEST_F(SettingsStoreTest, zonder_bestand_sectie_of_sleutel_is_er_niets) {
    EXPECT_EQ(UserSettingsStore(map.path()).get(toepassing, "Files", "lastfolder"), std::nullopt);
    schrijf("[Layout]\nfontname=Arial\n");
    const UserSettingsStore opslag(map.path());
    EXPECT_EQ(opslag.get(toepassing, "Files", "fontname"), std::nullopt);
    EXPECT_EQ(opslag.get(toepassing, "Layout", "FontName"), std::nullopt);
    EXPECT_EQ(opslag.get(toepassing, "Layout", "fontname"), "Arial");
    EXPECT_EQ(opslag.get("Vendalo 3.5", "Layout", "fontname"), std::nullopt);
}

TEST_F(SettingsStoreTest, wat_bewaard_is_staat_pas_na_flush_in_het_bestand_maar_is_meteen_te_lezen) {
    UserSettingsStore opslag(map.path());
    opslag.save(toepassing, "Files", "lastfolder", "/een/");
    opslag.save(toepassing, "Files", "lastfolder", "/twee/");
    EXPECT_EQ(opslag.get(toepassing, "Files", "lastfolder"), "/twee/");
    EXPECT_EQ(lees(), "(geen bestand)");
    opslag.flush();
    EXPECT_EQ(lees(), "[Files]\nlastfolder=/twee/\n");
    EXPECT_EQ(opslag.get(toepassing, "Files", "lastfolder"), "/twee/");
}

TEST_F(SettingsStoreTest, alles_wat_het_programma_niet_kent_blijft_staan) {
    schrijf("\xEF\xBB\xBF; met de hand gemaakt\r\nrommel zonder betekenis\n[Layout]\nfontname=Times\r\nvreemd = 1\n\n"
            "[Anders]\n\xFF\xFE\x01=\n[Layout\n=\n\"half=1\nlaatste regel zonder einde");
    UserSettingsStore opslag(map.path());
    opslag.save(toepassing, "Layout", "fontname", "Arial");
    opslag.save(toepassing, "Layout", "textsize", "100");
    opslag.save(toepassing, "Files", "lastfolder", "");
    opslag.flush();
    EXPECT_EQ(lees(),
              "\xEF\xBB\xBF; met de hand gemaakt\r\nrommel zonder betekenis\n[Layout]\nfontname=Arial\r\nvreemd = 1\n"
              "textsize=100\n\n[Anders]\n\xFF\xFE\x01=\n[Layout\n=\n\"half=1\nlaatste regel zonder einde\n"
              "[Files]\nlastfolder=\n");
}

TEST_F(SettingsStoreTest, een_laatste_regel_zonder_einde_krijgt_er_een_als_er_iets_onder_komt) {
    schrijf("[Files]\nander=x");
    UserSettingsStore opslag(map.path());
    opslag.save(toepassing, "Files", "ander", "x");
    opslag.flush();
    EXPECT_EQ(lees(), "[Files]\nander=x");
    opslag.save(toepassing, "Files", "lastfolder", "/map/");
    opslag.save(toepassing, "Layout", "textsize", "100");
    opslag.flush();
    EXPECT_EQ(lees(), "[Files]\nander=x\nlastfolder=/map/\n[Layout]\ntextsize=100\n");
}

TEST_F(SettingsStoreTest, wat_een_ander_intussen_schreef_blijft_staan) {
    UserSettingsStore opslag(map.path());
    EXPECT_EQ(opslag.get(toepassing, "Files", "lastfolder"), std::nullopt);
    opslag.save(toepassing, "Files", "lastfolder", "/map/");
    schrijf("[Files]\nander=x\n");
    opslag.flush();
    EXPECT_EQ(lees(), "[Files]\nander=x\nlastfolder=/map/\n");
}

TEST_F(SettingsStoreTest, van_een_dubbele_sleutel_telt_de_laatste) {
    schrijf("[Files]\nlastfolder=een\n[Layout]\n[Files]\nlastfolder=twee\n");
    UserSettingsStore opslag(map.path());
    EXPECT_EQ(opslag.get(toepassing, "Files", "lastfolder"), "twee");
    opslag.save(toepassing, "Files", "lastfolder", "drie");
    opslag.flush();
    EXPECT_EQ(UserSettingsStore(map.path()).get(toepassing, "Files", "lastfolder"), "drie");
    EXPECT_EQ(lees(), "[Files]\nlastfolder=een\n[Layout]\n[Files]\nlastfolder=drie\n");
}

TEST_F(SettingsStoreTest, een_bestand_dat_niet_te_lezen_is_wordt_niet_vervangen) {
    ASSERT_TRUE(QDir().mkpath(bestand)); // a folder under the name of the file
    UserSettingsStore opslag(map.path());
    EXPECT_EQ(opslag.get(toepassing, "Files", "lastfolder"), std::nullopt);
    opslag.save(toepassing, "Files", "lastfolder", "/map/");
    opslag.flush();
    EXPECT_TRUE(QFileInfo(bestand).isDir());
}

TEST_F(SettingsStoreTest, een_map_die_niet_te_maken_is_stoort_niet) {
    const QString geen_map = map.filePath("bestand");
    QFile file(geen_map);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("inhoud");
    file.close();
    UserSettingsStore opslag(geen_map + "/dieper");
    opslag.save(toepassing, "Files", "lastfolder", "/map/");
    opslag.flush();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "inhoud");
}

TEST_F(SettingsStoreTest, een_ontbrekende_map_wordt_gemaakt_en_er_blijft_geen_tijdelijk_bestand) {
    UserSettingsStore opslag(map.filePath("nog/niet"));
    opslag.save(toepassing, "Files", "lastfolder", "/map/");
    opslag.flush();
    EXPECT_EQ(QDir(map.filePath("nog/niet")).entryList(QDir::Files | QDir::Hidden),
              QStringList{"Vendalo 3.5 Deelnemer.ini"});
}

TEST_F(SettingsStoreTest, een_schuine_streep_in_de_naam_blijft_binnen_de_map) {
    UserSettingsStore opslag(map.path());
    opslag.save("map/naam", "s", "k", "v");
    opslag.flush();
    EXPECT_EQ(QDir(map.path()).entryList(QDir::Files), QStringList{"map%2Fnaam.ini"});
}

TEST_F(SettingsStoreTest, rommel_in_een_waarde_geeft_alleen_voor_dat_veld_de_nulwaarde) {
    schrijf("[Layout]\ntextsize=99999\nbackcolor=abc\nforecolor=&HFF\nrubrictextsize=150\n");
    const Instellingen instellingen = laad_instellingen(UserSettingsStore(map.path()));
    EXPECT_EQ(instellingen.textsize, 0);
    EXPECT_EQ(instellingen.backcolor, 0);
    EXPECT_EQ(instellingen.forecolor, 255);
    EXPECT_EQ(instellingen.rubrictextsize, 150);
    EXPECT_EQ(instellingen.fontname, "Arial");
    EXPECT_EQ(instellingen.rubricbackcolor, 16777215);
}

TEST_F(SettingsStoreTest, een_gekozen_letter_staat_onder_fontname_en_wordt_de_volgende_keer_niet_gelezen) {
    UserSettingsStore opslag(map.path());
    Instellingen instellingen = laad_instellingen(opslag);
    instellingen.fontname = "Verdana";
    bewaar_instellingen(instellingen, opslag);
    const UserSettingsStore volgende(map.path());
    EXPECT_EQ(laad_instellingen(volgende).fontname, "Arial");
    EXPECT_EQ(volgende.get(toepassing, "Layout", "fontname"), "Verdana");
}

} // namespace
} // namespace tavelo
