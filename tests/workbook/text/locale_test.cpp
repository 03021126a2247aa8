#include "workbook/text/locale.h"

#include <gtest/gtest.h>

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tavelo {
namespace {

struct Expected {
    std::string_view name;
    std::string_view decimals_thousands_date_time; // the separators
    std::string_view months;
    std::string_view short_months;
    std::string_view weekdays;
    std::string_view short_weekdays;
    std::string_view am_pm;
    std::string_view short_date_time; // format codes
    std::string_view long_date_time;
    std::string_view true_false;
    std::string_view errors;
};

constexpr std::array<Expected, 6> expected_locales = {{
    {"nl-NL", ",|.|-|:", "januari|februari|maart|april|mei|juni|juli|augustus|september|oktober|november|december",
     "jan|feb|mrt|apr|mei|jun|jul|aug|sep|okt|nov|dec", "zondag|maandag|dinsdag|woensdag|donderdag|vrijdag|zaterdag",
     "zo|ma|di|wo|do|vr|za", "AM|PM", "d-m-yyyy|hh:mm", "dddd d mmmm yyyy|hh:mm:ss", "WAAR|ONWAAR",
     "#LEEG!|#DEEL/0!|#WAARDE!|#VERW!|#NAAM?|#GETAL!|#N/B|#GEGEVENS_OPHALEN|#OVERLOPEN!|#VERBINDEN!|#GEBLOKKEERD!|"
     "#VELD!|#BEREKENEN!"},
    {"nl-BE", ",|.|/|:", "januari|februari|maart|april|mei|juni|juli|augustus|september|oktober|november|december",
     "jan|feb|mrt|apr|mei|jun|jul|aug|sep|okt|nov|dec", "zondag|maandag|dinsdag|woensdag|donderdag|vrijdag|zaterdag",
     "zo|ma|di|wo|do|vr|za", "AM|PM", "d/mm/yyyy|hh:mm", "dddd d mmmm yyyy|hh:mm:ss", "WAAR|ONWAAR",
     "#LEEG!|#DEEL/0!|#WAARDE!|#VERW!|#NAAM?|#GETAL!|#N/B|#GEGEVENS_OPHALEN|#OVERLOPEN!|#VERBINDEN!|#GEBLOKKEERD!|"
     "#VELD!|#BEREKENEN!"},
    {"en-GB", ".|,|/|:", "January|February|March|April|May|June|July|August|September|October|November|December",
     "Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec", "Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday",
     "Sun|Mon|Tue|Wed|Thu|Fri|Sat", "AM|PM", "dd/mm/yyyy|hh:mm", "dd mmmm yyyy|hh:mm:ss", "TRUE|FALSE",
     "#NULL!|#DIV/0!|#VALUE!|#REF!|#NAME?|#NUM!|#N/A|#GETTING_DATA|#SPILL!|#CONNECT!|#BLOCKED!|#FIELD!|#CALC!"},
    {"en-US", ".|,|/|:", "January|February|March|April|May|June|July|August|September|October|November|December",
     "Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec", "Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday",
     "Sun|Mon|Tue|Wed|Thu|Fri|Sat", "AM|PM", "m/d/yy|hh:mm", "dddd, mmmm d, yyyy|hh:mm:ss", "TRUE|FALSE",
     "#NULL!|#DIV/0!|#VALUE!|#REF!|#NAME?|#NUM!|#N/A|#GETTING_DATA|#SPILL!|#CONNECT!|#BLOCKED!|#FIELD!|#CALC!"},
    {"de-DE", ",|.|.|:", "Januar|Februar|März|April|Mai|Juni|Juli|August|September|Oktober|November|Dezember",
     "Jan|Feb|Mrz|Apr|Mai|Jun|Jul|Aug|Sep|Okt|Nov|Dez", "Sonntag|Montag|Dienstag|Mittwoch|Donnerstag|Freitag|Samstag",
     "So|Mo|Di|Mi|Do|Fr|Sa", "AM|PM", "dd.mm.yyyy|hh:mm", "dddd, d. mmmm yyyy|hh:mm:ss", "WAHR|FALSCH",
     "#NULL!|#DIV/0!|#WERT!|#BEZUG!|#NAME?|#ZAHL!|#NV|#DATEN_ABRUFEN|#ÜBERLAUF!|#CONNECT!|#BLOCKED!|#FIELD!|#KALK!"},
    {"fr-FR", ",|\u202F|/|:", "janvier|février|mars|avril|mai|juin|juillet|août|septembre|octobre|novembre|décembre",
     "janv.|févr.|mars|avr.|mai|juin|juil.|août|sept.|oct.|nov.|déc.",
     "dimanche|lundi|mardi|mercredi|jeudi|vendredi|samedi", "dim.|lun.|mar.|mer.|jeu.|ven.|sam.", "AM|PM",
     "dd/mm/yyyy|hh:mm", "dddd d mmmm yyyy|hh:mm:ss", "VRAI|FAUX",
     "#NUL!|#DIV/0!|#VALEUR!|#REF!|#NOM?|#NOMBRE!|#N/A|#OBTENTION_DONNEES|#PROPAGATION!|#CONNECT!|#BLOCKED!|#CHAMP!|"
     "#CALC!"},
}};

std::string joined(std::span<const std::string> words) {
    std::string all;
    for (const std::string& word : words)
        all += (&word == words.data() ? "" : "|") + word;
    return all;
}

TEST(Landinstelling, heeft_voor_elk_land_haar_woorden_tekens_en_codes) {
    for (const Expected& expected : expected_locales) {
        SCOPED_TRACE(expected.name);
        const Locale& locale = locale_named(expected.name);
        EXPECT_EQ(locale.name, expected.name);
        EXPECT_EQ(joined(std::array{locale.decimal_separator, locale.thousands_separator, locale.date_separator,
                                    locale.time_separator}),
                  expected.decimals_thousands_date_time);
        EXPECT_EQ(joined(locale.months), expected.months);
        EXPECT_EQ(joined(locale.short_months), expected.short_months);
        EXPECT_EQ(joined(locale.weekdays), expected.weekdays);
        EXPECT_EQ(joined(locale.short_weekdays), expected.short_weekdays);
        EXPECT_EQ(joined(std::array{locale.am, locale.pm}), expected.am_pm);
        EXPECT_EQ(joined(std::array{locale.short_date, locale.short_time}), expected.short_date_time);
        EXPECT_EQ(joined(std::array{locale.long_date, locale.long_time}), expected.long_date_time);
        EXPECT_EQ(joined(std::array{locale.true_word, locale.false_word}), expected.true_false);
        EXPECT_EQ(joined(locale.errors), expected.errors);
    }
}

TEST(Landinstelling, is_nederlands_voor_een_onbekende_naam) {
    EXPECT_EQ(locale_named("nl-NL").name, "nl-NL");
    EXPECT_EQ(locale_named("xx-YY").name, "nl-NL");
    EXPECT_EQ(locale_named("").name, "nl-NL");
}

TEST(Landinstelling, volgt_de_taal_van_een_onbekend_land) {
    EXPECT_EQ(locale_named("de-AT").name, "de-DE");
    EXPECT_EQ(locale_named("fr-BE").name, "fr-FR");
    EXPECT_EQ(locale_named("en-IE").name, "en-GB");
    EXPECT_EQ(locale_named("nl").name, "nl-NL");
    EXPECT_EQ(locale_named("en-US").name, "en-US");
}

} // namespace
} // namespace tavelo
