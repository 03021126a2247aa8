#include "workbook/lookalike/decoded_text.h"

#include "read_sheet.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

// "-" for what is no text.
std::string decoded(std::string_view bytes) { return decoded_text(test::bytes_of(bytes)).value_or("-"); }

std::string bytes(std::initializer_list<unsigned> values) {
    std::string all;
    for (const unsigned value : values)
        all += static_cast<char>(static_cast<unsigned char>(value));
    return all;
}

TEST(Tekenset, utf8_is_wat_de_standaard_toelaat) {
    for (const auto* text :
         {"\x7F", "\u0080", "\u00BF", "\u00C0", "\u07FF", "\u0800", "\u0FFF", "\u1000", "\uD7FF", "\uE000", "\uEFFF",
          "\uF000", "\uFFFF", "\U00010000", "\U0003FFFF", "\U00040000", "\U000FFFFF", "\U00100000", "\U0010FFFF"})
        EXPECT_EQ(decoded(text), text);
}

TEST(Tekenset, wat_geen_utf8_is_is_windows_1252) {
    const std::array<std::pair<std::string, std::string_view>, 24> table = {{
        {bytes({0x80}), "€"},                                  // no lead
        {bytes({0xBF}), "¿"},                                  // no lead
        {bytes({0xC0, 0xBF}), "À¿"},                           // overlong
        {bytes({0xC1, 0xBF}), "Á¿"},                           // overlong
        {bytes({0xC2}), "Â"},                                  // cut off
        {bytes({0xC2, 0x7F}), "Â\x7F"},                        // no continuation
        {bytes({0xC2, 0xC0}), "ÂÀ"},                           // no continuation
        {bytes({0xDF, 0x41}), "ßA"},                           // no continuation
        {bytes({0xE0, 0x9F, 0xBF}), "àŸ¿"},                    // overlong
        {bytes({0xE1, 0xBF}), "á¿"},                           // cut off
        {bytes({0xE1, 0xBF, 0x41}), "á¿A"},                    // no continuation
        {bytes({0xED, 0xA0, 0xBF}), "í\u00A0¿"},               // a surrogate
        {bytes({0xEF, 0x41, 0xBF}), "ïA¿"},                    // no continuation
        {bytes({0xF0, 0x8F, 0xBF, 0xBF}), "ð\u008F¿¿"},        // overlong
        {bytes({0xF1, 0xBF, 0xBF}), "ñ¿¿"},                    // cut off
        {bytes({0xF1, 0xBF, 0xBF, 0x41}), "ñ¿¿A"},             // no continuation
        {bytes({0xF4, 0x90, 0xBF, 0xBF}), "ô\u0090¿¿"},        // beyond the last
        {bytes({0xF5, 0xBF, 0xBF, 0xBF}), "õ¿¿¿"},             // no lead
        {bytes({0xFF, 0x41}), "ÿA"},                           // no lead
        {bytes({0x41, 0xE9, 0x42}), "AéB"},                    // between letters
        {bytes({0xC3, 0xA9, 0xE9}), "Ã©é"},                    // half of it is
        {bytes({0xEF, 0xBB, 0xBF, 0xE9}), "ï»¿é"},             // a mark that lies
        {bytes({0xE0, 0xA0, 0x80, 0x80}), "à\u00A0€€"},        // one too many
        {bytes({0xF4, 0x8F, 0xBF, 0xBF, 0xBF}), "ô\u008F¿¿¿"}, // one too many
    }};
    for (const auto& [stored, text] : table)
        EXPECT_EQ(decoded(stored), text);
}

TEST(Tekenset, een_merk_vooraan_wijst_haar_aan_en_valt_weg) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF"
                      "Zoë"),
              "Zoë");
    EXPECT_EQ(decoded("\xEF\xBB\xBF"), "");
    EXPECT_EQ(decoded(bytes({0xFF, 0xFE, 0x5A, 0x00, 0xAC, 0x20})), "Z€");
    EXPECT_EQ(decoded(bytes({0xFE, 0xFF, 0x00, 0x5A, 0x20, 0xAC})), "Z€");
    EXPECT_EQ(decoded(bytes({0xFF, 0xFE})), "");
    EXPECT_EQ(decoded(bytes({0xFF, 0xFE, 0x5A, 0x00, 0x41})), "Z"); // half a character is left
    EXPECT_EQ(decoded(bytes({0xFE, 0xFF, 0x00, 0x5A, 0x00})), "Z");
}

// Characters, as many times as told, in either order.
std::string utf16(std::size_t latin, std::size_t other, bool big = false) {
    std::string all;
    for (std::size_t i = 0; i < latin; ++i)
        all += big ? bytes({0x00, 0x41}) : bytes({0x41, 0x00});
    for (std::size_t i = 0; i < other; ++i)
        all += big ? bytes({0x04, 0x16}) : bytes({0x16, 0x04});
    return all;
}

TEST(Tekenset, zonder_merk_verraden_de_nullen_van_het_begin_utf16) {
    EXPECT_EQ(decoded(utf16(2, 0)), "AA");
    EXPECT_EQ(decoded(utf16(2, 0, true)), "AA");
    EXPECT_EQ(decoded(utf16(3, 2)), "AAAЖЖ");
    EXPECT_EQ(decoded(utf16(3, 2, true)), "AAAЖЖ");
    EXPECT_EQ(decoded(utf16(2, 0) + "B"), "AA");
    EXPECT_EQ(decoded(utf16(17, 40)).substr(0, 19), "AAAAAAAAAAAAAAAAAЖ");
    // Zeros that are too few, or that stand at both places, are no text.
    EXPECT_EQ(decoded(utf16(1, 0)), "-");
    EXPECT_EQ(decoded(utf16(2, 2)), "-");
    EXPECT_EQ(decoded(utf16(2, 2, true)), "-");
    EXPECT_EQ(decoded(utf16(16, 40)), "-");
    EXPECT_EQ(decoded(utf16(16, 40, true)), "-");
    EXPECT_EQ(decoded(utf16(3, 0) + utf16(1, 0, true)), "-");
    EXPECT_EQ(decoded(utf16(3, 0, true) + utf16(1, 0)), "-");
}

TEST(Tekenset, in_opmaak_telt_de_naam_die_er_staat) {
    const std::array<std::pair<std::string_view, std::string_view>, 16> table = {{
        {"windows-1250", "ł"},
        {"windows-1251", "і"},
        {"windows-1253", "³"},
        {"windows-1254", "³"},
        {"windows-1257", "³"},
        {"windows-1258", "³"},
        {"macintosh", "≥"},
        {"shift_jis", "ｳ"},
        {"ibm850", "│"},
        {"cp850", "│"},
        {"windows-1252", "³"},
        {"iso-8859-1", "³"},
        {"utf-8", "³"},
        {"windows-12511", "³"},
        {"WINDOWS-1251", "і"},
        {"", "³"},
    }};
    for (const auto& [charset, text] : table)
        EXPECT_EQ(decoded("<meta charset=" + std::string(charset) + ">\xB3"),
                  "<meta charset=" + std::string(charset) + ">" + std::string(text));
    // Two code pages of these have the same character there.
    EXPECT_TRUE(decoded("<meta charset=windows-1253>\xE1").ends_with("α"));
    EXPECT_TRUE(decoded("<meta charset=windows-1254>\xFD").ends_with("ı"));
    EXPECT_TRUE(decoded("<meta charset=windows-1257>\xE0").ends_with("ą"));
    EXPECT_TRUE(decoded("<meta charset=windows-1258>\xFE").ends_with("₫"));
}

TEST(Tekenset, de_naam_staat_achter_charset_of_encoding) {
    const std::array<std::pair<std::string_view, std::string_view>, 17> table = {{
        {"<meta charset='windows-1251'/>", "і"},
        {"<META CHARSET = \"windows-1251\">", "і"},
        {"<meta charset\t=\r\nwindows-1251\r\n>", "і"},
        {"<meta content='text/html; charset=windows-1251'>", "і"},
        {"<meta content='text/html; charset=windows-1251; x'>", "і"},
        {"<meta charset=windows-1251/>", "і"},
        {"<meta charset=windows-1251\tx>", "і"},
        {"<meta charset=windows-1251 x>", "і"},
        {"<meta charset=windows-1251?x>", "і"},
        {"<meta charset=windows-1251\nx>", "і"},
        {"<?xml version='1.0' encoding='windows-1251'?>", "і"},
        {"<?xml encoding='macintosh'?><meta charset=windows-1251>", "і"},
        {"<p>charset=windows-1251", "³"},
        {"<?xml charset", "³"},
        {"<meta", "³"},
        {"<meta charset=windows-1251 charset=macintosh>", "і"},
        {"<meta charset=windows-1251:x>", "³"},
    }};
    for (const auto& [page, text] : table)
        EXPECT_TRUE(decoded(std::string(page) + ">\xB3").ends_with(text)) << page;
    EXPECT_EQ(decoded("<?xml encoding='windows-1251'?>\xB3 charset = "), "<?xml encoding='windows-1251'?>і charset = ");
}

TEST(Tekenset, een_naam_telt_alleen_aan_het_begin) {
    constexpr std::size_t head = 4096;
    const std::string name = "<meta charset=windows-1251";
    for (const std::size_t end : {head - 1, head})
        EXPECT_TRUE(decoded(std::string(end - name.size(), ' ') + name + ">\xB3").ends_with("і")) << end;
    for (const std::size_t end : {head + 1, head + 100})
        EXPECT_TRUE(decoded(std::string(end - name.size(), ' ') + name + ">\xB3").ends_with("³")) << end;
}

TEST(Tekenset, een_stuurteken_maakt_dat_het_geen_tekst_is) {
    for (int code = 0; code < 0x20; ++code) {
        const bool is_space = code >= '\t' && code <= '\r';
        const std::string text = "a" + std::string(1, static_cast<char>(code)) + "b";
        EXPECT_EQ(decoded(text), is_space ? text : "-") << code;
    }
    EXPECT_EQ(decoded("a b\x7F"), "a b\x7F");
    EXPECT_EQ(decoded("ab\x1A"), "ab");
    EXPECT_EQ(decoded("ab\x1A\x1A"), "-");
    EXPECT_EQ(decoded("\x1A"), "");
    EXPECT_EQ(decoded(""), "");
}

} // namespace
} // namespace tavelo
