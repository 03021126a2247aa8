#include "workbook/xlsx/ciphers.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

// In hexadecimal digits, or "-" for none.
std::string decoded(std::string_view text) {
    const auto bytes = from_base64(text);
    if (!bytes) return "-";
    std::string digits;
    for (const std::byte byte : *bytes) {
        digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) >> 4];
        digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) & 15];
    }
    return digits;
}

TEST(Base64, heeft_zes_bits_per_teken) {
    EXPECT_EQ(decoded("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"),
              "00108310518720928b30d38f41149351559761969b71d79f8218a39259a7a29aabb2dbafc31cb3d35db7e39ebbf3dfbf");
    EXPECT_EQ(decoded("AAAA"), "000000");
    EXPECT_EQ(decoded("////"), "ffffff");
    EXPECT_EQ(decoded("QUJD"), "414243");
}

TEST(Base64, is_aangevuld_tot_vier_tekens) {
    EXPECT_EQ(decoded("QQ=="), "41");
    EXPECT_EQ(decoded("QUI="), "4142");
    EXPECT_EQ(decoded("QUJDRA=="), "41424344");
    EXPECT_EQ(decoded("QUJDREU="), "4142434445");
}

TEST(Base64, weigert_wat_het_niet_is) {
    for (const auto* text :
         {"", "Q", "QQ", "QUI", "QUJDR", "Q===", "====", "QU=D", "=QUJ", "QU D", "QU-_", "QUJ~", "Q\nUJ"})
        EXPECT_EQ(decoded(text), "-") << text;
    EXPECT_EQ(decoded(std::string(4096, 'A')), std::string(6144, '0'));
    EXPECT_EQ(decoded(std::string(4100, 'A')), "-");
}

} // namespace
} // namespace tavelo
