#include "workbook/xls/code_page.h"

#include "workbook/xls/digest.h"

#include <gtest/gtest.h>

#include <array>
#include <span>

namespace tavelo {
namespace {

std::string digest_of(std::string_view text) {
    std::string digits;
    for (const std::byte byte : md5(std::as_bytes(std::span(text)))) {
        digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) >> 4];
        digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) & 15];
    }
    return digits;
}

std::string bytes_from(unsigned first, unsigned last) {
    std::string bytes;
    for (unsigned value = first; value <= last; ++value)
        bytes += static_cast<char>(static_cast<unsigned char>(value));
    return bytes;
}

struct Page {
    unsigned number;
    std::string_view digest; // of the characters 80 to FF in UTF-8, made from the tables of another program
};

constexpr std::string_view western = "ee594295b63ab23d24772103cdf873da";
constexpr std::string_view macintosh = "3df989167a33359d5abc6db4a7d98e10";

TEST(Codetabel, heeft_voor_elke_byte_haar_teken) {
    constexpr std::array<Page, 24> pages = {{
        {437, "3a16d97f233106107284a60c0f950a1a"},
        {850, "f71c04432b42e4473e92e1f503df03eb"},
        {852, "a5aa0a0e6d1b13815323e69693c25a1b"},
        {866, "a4435c2b6cbb3ec10a157249b5abaf8b"},
        {874, "7c372c228740ed00bb0351c656938f4f"},
        {1250, "d8924cce72784211aee20139c1aa1726"},
        {1251, "7b171330c1c654301778f0786b6e46fe"},
        {1252, western},
        {1253, "5dd5af3f1532f1b36326bd94dd1b86f6"},
        {1254, "2ca1c638d20cb8c9eb35fe6d8c746593"},
        {1255, "863d4211bd1ea85a7d02e160461c1313"},
        {1256, "f91eeb27bac87d493f44a29e3acb1033"},
        {1257, "755298263deef8e94e6169bcd45ce208"},
        {1258, "5e7c556e659b8150228c800c866c2e23"},
        {10000, macintosh},
        {32768, macintosh},
        {32769, western},
        {32767, western},
        {0, western},
        {931, western},
        {933, western},
        {9999, western},
        {1259, western},
        {65001, western},
    }};
    for (const Page& page : pages) {
        EXPECT_EQ(digest_of(utf8_of(bytes_from(0x80, 0xFF), page.number)), page.digest) << page.number;
        EXPECT_EQ(utf8_of(bytes_from(0, 0x7F), page.number), bytes_from(0, 0x7F)) << page.number;
    }
}

TEST(Codetabel, van_japan_heeft_voor_elk_paar_bytes_zijn_teken) {
    std::string all;
    for (unsigned lead = 0x81; lead <= 0xFC; ++lead) {
        if (lead >= 0xA0 && lead <= 0xDF) continue;
        for (unsigned trail = 0x40; trail <= 0xFC; ++trail)
            if (trail != 0x7F) all += utf8_of(bytes_from(lead, lead) + bytes_from(trail, trail), 932);
    }
    EXPECT_EQ(digest_of(all), "704903df0caf20ab5c3793aed9597541"); // as the tables of another program have them
}

TEST(Codetabel, van_japan_heeft_ook_tekens_van_een_byte) {
    EXPECT_EQ(utf8_of(bytes_from(0, 0x80), 932), bytes_from(0, 0x7F) + "\u0080");
    EXPECT_EQ(utf8_of("\xA0\xA1\xA2\xDE\xDF\xFD\xFE\xFF", 932), "\u00A0｡｢ﾞﾟ\u00FD\u00FE\u00FF");
    // Without a second byte that fits, the first stands alone.
    EXPECT_EQ(utf8_of("\x81\x3F", 932), "\u0081?");
    EXPECT_EQ(utf8_of("\x81\x40", 932), "\u3000");
    EXPECT_EQ(utf8_of("\x81\x7E", 932), "×");
    EXPECT_EQ(utf8_of("\x81\x7F", 932), "\u0081\x7F");
    EXPECT_EQ(utf8_of("\x81\x80", 932), "÷");
    EXPECT_EQ(utf8_of("\x81\xFC", 932), "◯");
    EXPECT_EQ(utf8_of("\x81\xFD", 932), "\u0081\u00FD");
    EXPECT_EQ(utf8_of("\x9F\x40", 932), "檗");
    EXPECT_EQ(utf8_of("\xA0\x40", 932), "\u00A0@");
    EXPECT_EQ(utf8_of("\xDF\x40", 932), "ﾟ@");
    EXPECT_EQ(utf8_of("\xE0\x40", 932), "漾");
    EXPECT_EQ(utf8_of("\xFC\x4B", 932), "黑");
    EXPECT_EQ(utf8_of("\xFC\x4C", 932), "\uFFFD");
    EXPECT_EQ(utf8_of("\xFD\x40", 932), "\u00FD@");
    EXPECT_EQ(utf8_of("\x85\x40", 932), "\uFFFD"); // a row that there is not
    EXPECT_EQ(utf8_of("\x94\x6E\x81", 932), "馬\u0081");
    EXPECT_EQ(utf8_of(std::string_view("\x94\x6E\x81@").substr(0, 3), 932),
              "馬\u0081"); // what follows is not looked at
}

TEST(Codetabel, van_een_byte_per_letter_is_die_van_windows) {
    EXPECT_EQ(character_of_byte(0x41), u'A');
    EXPECT_EQ(character_of_byte(0x7F), u'\x7F');
    EXPECT_EQ(character_of_byte(0x80), u'€');
    EXPECT_EQ(character_of_byte(0x81), u'\x81');
    EXPECT_EQ(character_of_byte(0x9F), u'Ÿ');
    EXPECT_EQ(character_of_byte(0xE9), u'é');
    EXPECT_EQ(character_of_byte(0xFF), u'ÿ');
}

TEST(Utf16, wordt_utf8) {
    EXPECT_EQ(utf8_of(u""), "");
    EXPECT_EQ(utf8_of(u"Amber"), "Amber");
    EXPECT_EQ(utf8_of(u"\x7F\x80\u07FF\u0800\uD7FF\uE000\uFFFF"), "\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF");
    EXPECT_EQ(utf8_of(u"a\U00010000b\U0010FFFFc\U0001F40E"), "a\U00010000b\U0010FFFFc\U0001F40E");
    EXPECT_EQ(utf8_of(u"\U000103FF\U00010400"), "\U000103FF\U00010400");
}

TEST(Utf16, met_een_half_paar_krijgt_een_vervangingsteken) {
    const auto of = [](std::initializer_list<unsigned> units) {
        std::u16string text;
        for (const unsigned unit : units)
            text += static_cast<char16_t>(unit);
        return utf8_of(text);
    };
    EXPECT_EQ(of({0xD800}), "\uFFFD");
    EXPECT_EQ(of({0xDBFF, 0x41}), "\uFFFDA");
    EXPECT_EQ(of({0xDC00, 0x41}), "\uFFFDA");
    EXPECT_EQ(of({0xDFFF}), "\uFFFD");
    EXPECT_EQ(of({0xD800, 0xD800, 0xDC00}), "\uFFFD\U00010000");
    EXPECT_EQ(of({0xDC00, 0xDC00}), "\uFFFD\uFFFD");
    EXPECT_EQ(of({0xDC00, 0xD800}), "\uFFFD\uFFFD");
    EXPECT_EQ(of({0xD800, 0xE000}), "\uFFFD\uE000");
    EXPECT_EQ(of({0xD7FF, 0xDC00}), "\uD7FF\uFFFD");
    EXPECT_EQ(of({0xDBFF, 0xDFFF}), "\U0010FFFF");
    EXPECT_EQ(utf8_of(std::u16string_view(u"\U0001F40E").substr(0, 1)), "\uFFFD"); // the other half is not its own
}

} // namespace
} // namespace tavelo
