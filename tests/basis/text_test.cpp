#include "basis/text.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using Delen = std::vector<std::string_view>;

TEST(Text, trimmen_neemt_alleen_spaties_weg) {
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed("\t a \n"), "\t a \n");
    EXPECT_EQ(trimmed("\xC2\xA0"
                      "a"),
              "\xC2\xA0"
              "a"); // a hard space is a character like any other
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Text, hoofd_en_kleine_letters_vouwen_alle_letters_van_windows_1252) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    const std::string alles = from_windows_1252(bytes);
    EXPECT_EQ(lower_case("ABCXYZ ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ ŠŒŽŸ"), "abcxyz àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ šœžÿ");
    EXPECT_EQ(upper_case("abcxyz àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ šœžÿ"), "ABCXYZ ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ ŠŒŽŸ");
    // Folding is one to one: there and back gives every character of the page in one case.
    EXPECT_EQ(lower_case(upper_case(lower_case(alles))), lower_case(alles));
    EXPECT_EQ(code_points(upper_case(alles)).size(), 256U);
}

TEST(Text, wat_geen_letterpaar_heeft_blijft_staan) {
    for (const std::string_view tekst : {"ß", "×", "÷", "µ", "ƒ", "ª", "€", "[@`{", "ĳ", "Ω"}) {
        EXPECT_EQ(lower_case(tekst), tekst);
        EXPECT_EQ(upper_case(tekst), tekst);
    }
}

TEST(Text, bytes_die_geen_tekst_zijn_blijven_bij_het_vouwen_wat_ze_zijn) {
    EXPECT_EQ(lower_case("A\xFF"
                         "B\xC3"),
              "a\xFF"
              "b\xC3");
}

TEST(Text, vervangen_zoekt_niet_nog_eens_in_wat_vervangen_is) {
    EXPECT_EQ(replaced("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(replaced("a--b", "-", "--"), "a----b");
    EXPECT_EQ(replaced("abc", "", "x"), "abc");
    EXPECT_EQ(removed("a*b**c", "*"), "abc");
}

TEST(Text, splitsen_geeft_ook_lege_delen) {
    EXPECT_EQ(split("a--b", "-"), (Delen{"a", "", "b"}));
    EXPECT_EQ(split("", "-"), Delen{""});
    EXPECT_EQ(split("-", "-"), (Delen{"", ""}));
}

TEST(Text, delen_lopen_de_tekst_af_zoals_splitsen_hem_deelt) {
    for (const std::string_view tekst : {"", "a", "\t", "a\t", "\ta", "a\t\tb"}) {
        Delen delen;
        Parts parts(tekst, '\t');
        while (const auto deel = parts.next())
            delen.push_back(*deel);
        EXPECT_EQ(parts.next(), std::nullopt); // the end stays the end
        EXPECT_EQ(delen, split(tekst, "\t"));
    }
}

TEST(Text, samenvoegen_zet_het_teken_alleen_tussen_de_delen) {
    EXPECT_EQ(join(std::vector<std::string>{"a", "", "b"}, ", "), "a, , b");
    EXPECT_EQ(join(std::vector<std::string>{"a"}, ", "), "a");
    EXPECT_EQ(join(std::vector<std::string>{}, ", "), "");
}

TEST(Text, de_laatste_tekens_breken_geen_teken_doormidden) {
    EXPECT_EQ(last("1234", 3), "234");
    EXPECT_EQ(last("12", 3), "12");
    EXPECT_EQ(last("00€", 2), "0€");
    EXPECT_EQ(last("abc", 0), "");
    EXPECT_EQ(last("", 2), "");
}

TEST(Text, windows_1252_wordt_gelezen_met_zijn_vijf_lege_plaatsen) {
    EXPECT_EQ(from_windows_1252("caf\xE9 \x80 \x8A \x9F \xFF"), "café € Š Ÿ ÿ");
    EXPECT_EQ(code_points(from_windows_1252("\x81\x8D\x8F\x90\x9D")), U"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(from_windows_1252("\x82\x83\x84\x85\x86\x87\x88\x89\x8B\x8C\x8E"), "‚ƒ„…†‡ˆ‰‹ŒŽ");
    EXPECT_EQ(from_windows_1252("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E"), "‘’“”•–—˜™š›œž");
    EXPECT_EQ(from_windows_1252(std::string_view("a\0b\x1A", 4)), std::string("a\0b\x1A", 4));
}

TEST(Text, windows_1252_staat_er_al_als_het_ascii_is) {
    std::string room = "oud";
    for (const std::string_view plain :
         {std::string_view(""), std::string_view("a\0\x7F", 3), std::string_view("caf")}) {
        const std::string_view view = view_of_windows_1252(plain, room);
        EXPECT_EQ(view, plain);
        EXPECT_EQ(view.data(), plain.data());
    }
    const std::string_view made = view_of_windows_1252("caf\xE9s", room);
    EXPECT_EQ(made, "cafés");
    EXPECT_EQ(made.data(), room.data());
    from_windows_1252("plat", room);
    EXPECT_EQ(room, "plat");
    from_windows_1252("", room);
    EXPECT_EQ(room, "");
}

TEST(Text, een_vreemde_letter_wordt_op_elke_plaats_in_een_lange_tekst_gevonden) {
    for (std::size_t lengte = 0; lengte < 40; ++lengte) {
        for (std::size_t plaats = 0; plaats <= lengte; ++plaats) {
            const auto om = [&](char letter, std::string_view midden) {
                return std::string(plaats, letter).append(midden).append(lengte - plaats, letter);
            };
            ASSERT_EQ(from_windows_1252(om('Q', "\xC9")), om('Q', "É"));
            ASSERT_EQ(lower_case(om('Q', "É")), om('q', "é"));
            ASSERT_EQ(upper_case(om('q', "é")), om('Q', "É"));
            ASSERT_EQ(trimmed(" " + om('Q', "É") + "  "), om('Q', "É"));
        }
    }
}

TEST(Text, code_points_lezen_utf_8_en_melden_wat_het_niet_is) {
    EXPECT_EQ(code_points("aé€😀"), U"aé€😀");
    EXPECT_EQ(code_points("\xC0\x80"), U"\xFFFD\xFFFD");           // overlong
    EXPECT_EQ(code_points("\xED\xA0\x80"), U"\xFFFD\xFFFD\xFFFD"); // half of a pair
    EXPECT_EQ(code_points("\xE2\x82"), U"\xFFFD\xFFFD");           // cut off
    std::string terug;
    for (const char32_t teken : std::u32string(U"aé€😀"))
        append_utf8(terug, teken);
    EXPECT_EQ(terug, "aé€😀");
}

TEST(Text, van_misvormde_utf_8_is_elke_byte_een_onleesbaar_teken) {
    const auto onleesbaar = [](std::size_t aantal) { return std::u32string(aantal, U'\xFFFD'); };
    EXPECT_EQ(code_points("\x80"), onleesbaar(1)); // goes on with nothing
    EXPECT_EQ(code_points("\xC1\xBF"), onleesbaar(2));
    EXPECT_EQ(code_points("\xE0\x80"), onleesbaar(2)); // three bytes, of which one is missing
    EXPECT_EQ(code_points("\xE0\x9F\xBF"), onleesbaar(3));
    EXPECT_EQ(code_points("\xF0"), onleesbaar(1));
    EXPECT_EQ(code_points("\xF0\x9F"), onleesbaar(2));
    EXPECT_EQ(code_points("\xF0\x9F\x98"), onleesbaar(3));
    EXPECT_EQ(code_points("\xF0\x9F\x98z"), onleesbaar(3) + U"z");
    EXPECT_EQ(code_points("\xF0\x8F\xBF\xBF"), onleesbaar(4)); // written too long
    EXPECT_EQ(code_points("\xF4\x90\x80\x80"), onleesbaar(4)); // beyond the last character
    EXPECT_EQ(code_points("\xF5\x80\x80\x80"), onleesbaar(4));
    EXPECT_EQ(code_points("\xF9\x90\x80\x80"), onleesbaar(4));
    EXPECT_EQ(code_points("\xFF\xBF\xBF\xBF"), onleesbaar(4));
}

TEST(Text, een_teken_eindigt_waar_zijn_tekst_eindigt) {
    constexpr std::string_view gezicht = "\xF0\x9F\x98\x80";
    EXPECT_EQ(code_points(gezicht.substr(0, 3)), std::u32string(3, U'\xFFFD'));
    EXPECT_EQ(code_points(std::string_view("€").substr(0, 2)), std::u32string(2, U'\xFFFD'));
    EXPECT_EQ(code_points(std::string_view("é").substr(0, 1)), std::u32string(1, U'\xFFFD'));
    EXPECT_EQ(lower_case(gezicht.substr(0, 3)), gezicht.substr(0, 3));
}

TEST(Text, de_grenzen_van_elke_lengte_in_utf_8_worden_goed_gelezen_en_geschreven) {
    const std::vector<std::pair<char32_t, std::string_view>> grenzen = {{0x7F, "\x7F"},
                                                                        {0x80, "\xC2\x80"},
                                                                        {0x7FF, "\xDF\xBF"},
                                                                        {0x800, "\xE0\xA0\x80"},
                                                                        {0xD7FF, "\xED\x9F\xBF"},
                                                                        {0xE000, "\xEE\x80\x80"},
                                                                        {0xFFFF, "\xEF\xBF\xBF"},
                                                                        {0x10000, "\xF0\x90\x80\x80"},
                                                                        {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    for (const auto& [teken, bytes] : grenzen) {
        std::string geschreven;
        append_utf8(geschreven, teken);
        EXPECT_EQ(geschreven, bytes) << static_cast<std::uint32_t>(teken);
        EXPECT_EQ(code_points(bytes), std::u32string(1, teken)) << static_cast<std::uint32_t>(teken);
    }
}

TEST(Text, utf_8_is_alleen_wat_de_standaard_zo_noemt) {
    for (const char* is :
         {"", "a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBD",
          "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "Zo\xC3\xAB \xE2\x82\xAC \xF0\x9F\x90\xB4"})
        EXPECT_TRUE(is_utf8(is)) << is;
    for (const char* is_not : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC2\x7F", "\xC2\xC0", "\xE0\x9F\xBF",
                               "\xE2\x82", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF0\x9F\x90", "\xF4\x90\x80\x80",
                               "\xF5\x80\x80\x80", "\xFF", "Zo\xEB van"})
        EXPECT_FALSE(is_utf8(is_not)) << is_not;
}

TEST(Text, het_laatste_teken_kan_de_hele_tekst_zijn) {
    EXPECT_EQ(last("€", 1), "€");
    EXPECT_EQ(last("😀", 1), "😀");
    EXPECT_EQ(last("a€", 1), "€");
    EXPECT_EQ(last("\x82\xAC", 1), "\x82\xAC"); // the first letter of it is missing
}

} // namespace
} // namespace tavelo
