#include "shown.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr double a_friday = 46346;     // 20 November 2026
constexpr double afternoon = 46346.63; // 15:07:12

TEST(Opmaakletters, achter_een_schuine_streep_streepje_of_ster_tellen_als_een_teken) {
    expect_shown({
        {5, "\\é0", "é5"},
        {5, "_é0", " 5"},
        {5, "*é0", "5"},
        {5, "é0", "é5"},
        {5, "\"é\"0", "é5"},
        {5, "0_", "5"},
        {5, "0*", "5"},
        {5, "0\\", "5"},
    });
}

TEST(Opmaakletters, van_een_landcode_wijzen_de_taal_aan) {
    expect_shown({
        {a_friday, "[$-407]dddd", "Freitag"},
        {a_friday, "[$-de-DE]dddd", "Freitag"},
        {a_friday, "[$-DE-at]dddd", "Freitag"},
        {a_friday, "[$-40C]dddd", "vendredi"},
        {a_friday, "[$-fr-BE]dddd", "vendredi"},
        {a_friday, "[$-413]dddd", "vrijdag"},
        {a_friday, "[$-NL-be]dddd", "vrijdag"},
        {a_friday, "[$-413x]dddd", "Friday"},
        {a_friday, "[$-de]dddd", "Friday"},
        {a_friday, "[$-10C07]dddd", "Freitag"},
        {a_friday, "[$-411]dddd", "Friday"},
        {a_friday, "[$-]dddd", "Friday"},
        {a_friday, "[$x-413-407]dddd", "xFriday"},
        {a_friday, "[$-407][$-413]dddd", "vrijdag"},
    });
}

TEST(Opmaakletters, van_een_landcode_wijzen_de_taal_aan_ook_voor_een_nederlander) {
    expect_shown(
        {
            {a_friday, "[$-409]dddd", "Friday"},
            {a_friday, "[$-EN-us]dddd", "Friday"},
            {a_friday, "[$-en]dddd", "vrijdag"},
            {a_friday, "[$-809]mmmmm", "N"},
        },
        "nl-NL");
}

TEST(Opmaakletters, van_een_landcode_vragen_de_opmaak_van_het_systeem) {
    expect_shown({
        {afternoon, "[$-f800]x", "Friday, November 20, 2026"},
        {afternoon, "[$-F800]x", "Friday, November 20, 2026"},
        {afternoon, "[$-x-sysdate]x", "Friday, November 20, 2026"},
        {afternoon, "[$-X-SYSDATE]x", "Friday, November 20, 2026"},
        {afternoon, "[$-f400]x", "15:07:12"},
        {afternoon, "[$-F400]x", "15:07:12"},
        {afternoon, "[$-x-systime]x", "15:07:12"},
        {afternoon, "[$-X-Systime]x", "15:07:12"},
        {afternoon, "[$-F800][$-F400]x", "Friday, November 20, 2026"},
        {afternoon, "[$-F400][$-F800]x", "15:07:12"},
        {afternoon, "[$-x-shortdate]x", "11/20/26"},
        {afternoon, "[$-x-shorttime]x", "15:07"},
        {afternoon, "[$-x-longtime]x", "15:07:12"},
        {afternoon, "[$-x-shortdatetime]x", "11/20/26 15:07"},
        {afternoon, "[$-X-longtime]0", "46347"},
    });
}

TEST(Opmaakletters, zijn_een_datum_of_gewone_letters) {
    expect_shown({
        {afternoon, "aa", "aa"},
        {afternoon, "aaa", "Fri"},
        {afternoon, "aaaa", "Friday"},
        {afternoon, "aaaaa", "Friday"},
        {afternoon, "b1yyyy", "2026"},
        {afternoon, "b2yyyy", "1448"},
        {afternoon, "B3yyyy", "6932026"},
        {afternoon, "b", "69"},
        {afternoon, "bb", "69"},
        {afternoon, "bbb", "2569"},
        {afternoon, "e", "2026"},
        {afternoon, "ee", "2026"},
        {afternoon, "gge", "2026"},
        {afternoon, "ggy", "26"},
        {afternoon, "gg0", "gg46347"},
        {afternoon, "g", "g"},
        {afternoon, "y", "26"},
        {afternoon, "yy", "26"},
        {afternoon, "yyy", "2026"},
        {afternoon, "mmmmm", "N"},
        {afternoon, "mmmmmm", "November"},
        {afternoon, "d", "20"},
        {afternoon, "ddd", "Fri"},
        {afternoon, "ddddd", "Friday"},
        {afternoon, "h", "15"},
        {afternoon, "hhh", "15"},
        {afternoon, "sss", "12"},
        {afternoon, "[hm]0", "46347"},
        {afternoon, "[x]0", "46347"},
        {afternoon, "[H]", "1112319"},
        {afternoon, "[M]", "66739147"},
        {afternoon, "[S]", "4004348832"},
        {afternoon, "[SSS]", "4004348832"},
    });
}

TEST(Opmaakletters, zijn_in_een_getal_gewone_letters) {
    expect_shown({
        {afternoon, "[<0]0;e-m", "2026-11"},
        {afternoon, "[<0]0;b1yyyy", "2026"},
        {afternoon, "[<0]0;gge", "2026"},
        {afternoon, "0b1", "46347b1"},
        {afternoon, "0e", "46347e"},
        {afternoon, "0 e", "46347 e"},
        {afternoon, "0e1", "46347e1"},
        {afternoon, "0E+e", "5E+4e"},
        {afternoon, "0bb", "46347bb"},
        {afternoon, "e0", "e46347"},
        {afternoon, "0gge", "46347gge"},
        {afternoon, "General e", "46346.63 e"},
        {afternoon, "e General", "e 46346.63"},
    });
}

} // namespace
} // namespace tavelo
