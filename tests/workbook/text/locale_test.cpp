#include "workbook/text/locale.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

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

TEST(Landinstelling, geeft_woorden_en_fouten_in_haar_taal) {
    EXPECT_EQ(locale_named("nl-NL").true_word, "WAAR");
    EXPECT_EQ(locale_named("nl-BE").false_word, "ONWAAR");
    EXPECT_EQ(locale_named("en-US").true_word, "TRUE");
    EXPECT_EQ(locale_named("nl-NL").errors[6], "#N/B");
    EXPECT_EQ(locale_named("en-GB").errors[6], "#N/A");
    EXPECT_EQ(locale_named("de-DE").true_word, "WAHR");
    EXPECT_EQ(locale_named("fr-FR").errors[4], "#NOM?");
    EXPECT_EQ(locale_named("de-DE").errors[8], "#ÜBERLAUF!");
    EXPECT_EQ(locale_named("de-DE").errors[12], "#KALK!");
    EXPECT_EQ(locale_named("fr-FR").errors[8], "#PROPAGATION!");
    EXPECT_EQ(locale_named("fr-FR").errors[11], "#CHAMP!");
}

} // namespace
} // namespace tavelo
