#include "workbook/xlsx/locked_package.h"

#include "workbook/sheet_csv.h"
#include "workbook/workbook.h"
#include "workbook/xlsx/ciphers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace tavelo {
namespace {

Bytes bytes_of(std::string_view text) {
    Bytes bytes(text.size());
    std::memcpy(bytes.data(), text.data(), text.size());
    return bytes;
}

Bytes file_named(const std::string& name) {
    std::ifstream stream(TAVELO_TEST_DATA "/workbook/" + name, std::ios::binary);
    return bytes_of(std::string(std::istreambuf_iterator<char>(stream), {}));
}

// Changes a text inside the file; it must be there.
Bytes with(Bytes file, std::string_view from, std::string_view to) {
    const Bytes wanted = bytes_of(from);
    const auto found = std::ranges::search(file, wanted).begin();
    if (found == file.end() || from.size() != to.size()) throw std::logic_error("cannot replace");
    std::ranges::copy(bytes_of(to), found);
    return file;
}

std::string hexadecimal(const std::optional<Bytes>& bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::byte byte : bytes.value()) {
        text += digits[std::to_integer<std::size_t>(byte) / 16];
        text += digits[std::to_integer<std::size_t>(byte) % 16];
    }
    return text;
}

TEST(VergrendeldPakket, wat_excel_zelf_opent_gaat_ook_hier_open) {
    const auto csv_of = [](const std::string& name) {
        auto book = open_workbook(file_named(name)).value();
        return blad_als_csv(*book, 1, locale_named("nl-NL")).value();
    };
    const std::string plain = csv_of("startlijst.xlsx");
    EXPECT_TRUE(plain.starts_with("Tijd,Nr"));
    EXPECT_EQ(csv_of("vergrendeld_2007.xlsx"), plain);
    EXPECT_EQ(csv_of("vergrendeld_2013.xlsx"), plain);
    EXPECT_EQ(unlocked_package(file_named("vergrendeld_2013.xlsx")), file_named("startlijst.xlsx"));
}

TEST(VergrendeldPakket, een_eigen_wachtwoord_wordt_niet_geraden) {
    EXPECT_EQ(open_workbook(file_named("geheim_2007.xlsx")).error(), OpenFailure::password);
    EXPECT_EQ(open_workbook(file_named("geheim_2013.xlsx")).error(), OpenFailure::password);
}

TEST(VergrendeldPakket, een_onbekende_manier_van_vergrendelen_vraagt_om_het_wachtwoord) {
    const Bytes file = file_named("vergrendeld_2013.xlsx");
    for (const auto& [from, to] : {std::pair{"ChainingModeCBC", "ChainingModeCFB"},
                                   {"keyBits=\"256\"", "keyBits=\"999\""},
                                   {"\"SHA512\"", "\"SHA999\""},
                                   {"cipherAlgorithm=\"AES\"", "cipherAlgorithm=\"DES\""}})
        EXPECT_EQ(unlocked_package(with(file, from, to)).error(), OpenFailure::password) << to;
}

TEST(VergrendeldPakket, op_eindeloos_rekenwerk_wordt_niet_gewacht) {
    const Bytes file = with(file_named("vergrendeld_2013.xlsx"), R"(spinCount="1000" saltSize="16")",
                            R"(spinCount="4000000000"        )");
    EXPECT_EQ(unlocked_package(file).error(), OpenFailure::password);
}

TEST(VergrendeldPakket, kapotte_beschrijving_of_afgekapt_pakket_is_beschadigd) {
    EXPECT_EQ(unlocked_package(with(file_named("vergrendeld_2013.xlsx"), "</encryption>", "</encryptieX>")).error(),
              OpenFailure::damaged);
    Bytes half = file_named("vergrendeld_2007.xlsx");
    const Bytes package_length{std::byte{0x90}, std::byte{0x24}, std::byte{0}, std::byte{0}}; // 9,360 bytes
    const auto length = std::ranges::search(half, package_length).begin();
    ASSERT_NE(length, half.end());
    *(length + 2) = std::byte{1}; // claims 65,536 bytes more than there are
    EXPECT_EQ(unlocked_package(half).error(), OpenFailure::damaged);
}

TEST(VergrendeldPakket, een_gewone_werkmap_is_niet_vergrendeld) {
    EXPECT_EQ(unlocked_package(file_named("startlijst.xls")).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(unlocked_package(file_named("startlijst.xlsx")).error(), OpenFailure::not_a_workbook);
    EXPECT_EQ(unlocked_package({}).error(), OpenFailure::not_a_workbook);
}

// The examples of the standards.
TEST(Versleuteling, samenvattingen) {
    EXPECT_EQ(hexadecimal(digest("SHA1", {bytes_of("abc")})), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(hexadecimal(digest("SHA256", {bytes_of("a"), bytes_of("bc")})),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(digest("SHA512", {})->size(), 64U);
    EXPECT_EQ(digest("SHA384", {})->size(), 48U);
    EXPECT_EQ(digest("MD5", {}), std::nullopt);
}

TEST(Versleuteling, aes) {
    Bytes key;
    for (int i = 0; i < 16; ++i)
        key.push_back(static_cast<std::byte>(i));
    const Bytes locked = from_base64("acTg2GqAR7DeW5yDpI8XTQ==").value_or(Bytes());
    EXPECT_EQ(aes_ecb_decrypted(key, bytes_of("geen heel blok")), std::nullopt);
    EXPECT_EQ(aes_ecb_decrypted(bytes_of("kort"), locked), std::nullopt);
    EXPECT_EQ(aes_cbc_decrypted(key, bytes_of("kort"), locked), std::nullopt);
    EXPECT_EQ(aes_ecb_decrypted(key, {})->size(), 0U);
    const Bytes standard{std::byte{0x69}, std::byte{0xc4}, std::byte{0xe0}, std::byte{0xd8},
                         std::byte{0x6a}, std::byte{0x7b}, std::byte{0x04}, std::byte{0x30},
                         std::byte{0xd8}, std::byte{0xcd}, std::byte{0xb7}, std::byte{0x80},
                         std::byte{0x70}, std::byte{0xb4}, std::byte{0xc5}, std::byte{0x5a}};
    EXPECT_EQ(hexadecimal(aes_ecb_decrypted(key, standard)), "00112233445566778899aabbccddeeff");
    EXPECT_EQ(hexadecimal(aes_cbc_decrypted(key, Bytes(16), standard)), "00112233445566778899aabbccddeeff");
}

TEST(Versleuteling, base64) {
    EXPECT_EQ(from_base64("Wm/Dqw=="), bytes_of("Zoë"));
    EXPECT_EQ(from_base64("YW1iZXI="), bytes_of("amber"));
    EXPECT_EQ(from_base64("YWJj"), bytes_of("abc"));
    for (const std::string_view wrong : {"", "YW", "Y*==", "YWJjZ"})
        EXPECT_EQ(from_base64(wrong), std::nullopt) << wrong;
}

} // namespace
} // namespace tavelo
