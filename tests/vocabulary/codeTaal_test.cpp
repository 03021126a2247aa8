#include "vocabulary/codeTaal.h"

#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

#include <map>

namespace tavelo {
namespace {

using Woorden = std::map<std::string, std::string>;

const Woorden engels = {
    {"startlijst", "startingorder"},
    {"startlijsten", "startingorders"},
    {"uitslag", "official result"},
    {"uitslagen", "official results"},
    {"combinaties", "combinations"},
    {"combinaties gestart en nog", "combinations started and"},
    {"te gaan", "yet to come"},
    {"naam", "rider"},
    {"persoonsnaam", "rider"},
    {"ruiter", "rider"},
    {"ruiternaam", "rider"},
    {"ruiter naam", "rider"},
    {"persoonsnummer", "ridernumber"},
    {"ruiternummer", "ridernumber"},
    {"voornaam", "firstname"},
    {"achternaam", "familyname"},
    {"eigenaar", "owner"},
    {"fokker", "breeder"},
    {"paard", "horse"},
    {"pony", "pony"},
    {"paard/pony", "horse/pony"},
    {"vader", "sire"},
    {"vadermoeder", "siredam"},
    {"stamboek", "breed"},
    {"geslacht", "sex"},
    {"gs", "sex"},
    {"gesl.", "sex"},
    {"kleur", "colour"},
    {"jaar", "born"},
    {"leeftijd", "age"},
    {"lt", "age"},
    {"chipnummer", "transponder"},
    {"rang", "rank"},
    {"vereniging", "union"},
    {"categorie", "category"},
    {"cat.", "cat."},
    {"kl.", "class"},
    {"klasse", "class"},
    {"geb", "date of birth"},
    {"geb.dat.", "date of birth"},
    {"gj", "yb"},
    {"j", "y"},
    {"prijs", "prize"},
    {"woonplaats", "domicile"},
    {"nat.", "nat."},
    {"land v. herkomst", "country"},
    {"dressuur", "dressage"},
    {"springen", "jumping"},
    {"tijd", "time"},
    {"gem.", "av."},
    {"sptn.tot", "flts.tot"},
    {"hengst", "stallion"},
    {"merrie", "mare"},
    {"ruin", "gelding"},
    {"opmerking", "remark"},
    {"pauze", "break"},
};
// Words that go on with 1, 2 or 3.
const Woorden engels_genummerd = {{"tijd", "time"}, {"btijd", "btime"}, {"etijd", "etime"},
                                  {"ptn", "pnts"},  {"sptn", "flts"},   {"stijl", "style"}};
const Woorden stamboek = {
    {"combinatienummer", "levensnummer"},
    {"combinatie nr.", "levensnummer"},
    {"comb.nr.", "levensnummer"},
    {"naam", "paard"},
    {"ruiter", "paard"},
    {"paard", "vader"},
    {"pony", "vader"},
    {"paard/pony", "vader"},
    {"vader", "moeder+mdrvdr"},
    {"vader x", "moeder+mdrvdr x "},
    {"vadermoeder", "verdere afstamm."},
    {"vereniging", "locatie"},
    {"woonplaats", "fokker"},
};

TEST(Taal, elk_woord_heeft_zijn_engels) {
    for (const auto& [nederlands, woord] : engels)
        EXPECT_EQ(vertaal(nederlands, "EN"), woord);
    for (const auto& [nederlands, woord] : engels_genummerd)
        for (const std::string nummer : {"1", "2", "3"})
            EXPECT_EQ(vertaal(nederlands + nummer, "EN"), woord + nummer);
    EXPECT_EQ(vertaal("tijd4", "EN"), "tijd4");
}

TEST(Taal, elk_woord_heeft_zijn_kop_in_de_lijsten_van_het_stamboek) {
    for (const auto& [nederlands, woord] : stamboek)
        EXPECT_EQ(vertaal(nederlands, "KWPN"), woord);
    EXPECT_EQ(vertaal("startlijst", "KWPN"), "startlijst");
}

TEST(Taal, alleen_de_eerste_letter_volgt_de_hoofdletter) {
    EXPECT_EQ(vertaal("Startlijst", "EN"), "Startingorder");
    EXPECT_EQ(vertaal("STARTLIJST", "EN"), "Startingorder");
    EXPECT_EQ(vertaal("Naam", "EN"), "Rider");
    EXPECT_EQ(vertaal("Vader X", "KWPN"), "Moeder+mdrvdr x ");
    EXPECT_EQ(vertaal("startLIJST", "EN"), "startingorder");
}

TEST(Taal, de_taal_staat_in_hoofd_of_kleine_letters) {
    EXPECT_EQ(vertaal("naam", "KWPN"), "paard");
    EXPECT_EQ(vertaal("naam", "kwpn"), "paard");
    EXPECT_EQ(vertaal("naam", "EN"), "rider");
    EXPECT_EQ(vertaal("naam", "en"), "rider");
    EXPECT_EQ(vertaal("naam", "DE"), "naam");
    EXPECT_EQ(vertaal("naam", "EN "), "naam");
}

TEST(Taal, in_het_nederlands_blijft_elk_woord_zoals_het_is) {
    for (const std::string_view woord : {"naam", "Naam", "NAAM", "établi", "Éen", "1e", "", "onbekend"})
        EXPECT_EQ(vertaal(woord), woord);
    for (const std::string_view titel : kolom_titels)
        EXPECT_EQ(vertaal(titel), titel);
}

TEST(Taal, een_leeg_of_onbekend_woord_komt_terug_zoals_het_is) {
    EXPECT_EQ(vertaal("", "EN"), "");
    EXPECT_EQ(vertaal("", "KWPN"), "");
    EXPECT_EQ(vertaal("Hnr", "EN"), "Hnr");
    EXPECT_EQ(vertaal("éloge", "EN"), "éloge");
}

TEST(Taal, het_woord_met_hoofdletters_in_de_tabel_wordt_nooit_gevonden) {
    EXPECT_EQ(vertaal("ruiter KNHS-nummer", "EN"), "ruiter KNHS-nummer");
    EXPECT_EQ(vertaal("ruiter knhs-nummer", "EN"), "ruiter knhs-nummer");
}

} // namespace
} // namespace tavelo
