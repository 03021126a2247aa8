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

Bytes from_hexadecimal(std::string_view digits) {
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(static_cast<std::byte>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16)));
    return bytes;
}

TEST(Versleuteling, elke_samenvatting_heeft_haar_naam) {
    EXPECT_EQ(hexadecimal(digest("SHA1", {bytes_of("abc")})), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(hexadecimal(digest("SHA256", {bytes_of("abc")})),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(hexadecimal(digest("SHA384", {bytes_of("abc")})),
              "cb00753f45a35e8bb5a03d699ac65007272c32ab0eded1631a8b605a43ff5bed8086072ba1e7cc2358baeca134c825a7");
    EXPECT_EQ(hexadecimal(digest("SHA512", {bytes_of("abc")})),
              "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a2192992a274fc1a836ba3c23a3feebbd454d4423"
              "643ce80e2a9ac94fa54ca49f");
    for (const auto* name : {"", "SHA", "sha1", "SHA-1", "SHA2", "SHA5120"})
        EXPECT_EQ(digest(name, {bytes_of("abc")}), std::nullopt) << name;
}

// The examples of the standard, of each strength.
TEST(Versleuteling, aes_van_elke_sterkte) {
    const std::string_view plain = "00112233445566778899aabbccddeeff";
    const std::string_view longest = "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f";
    struct Example {
        std::size_t key_size;
        std::string_view locked;
    };
    for (const auto& [key_size, locked] :
         {Example{16, "69c4e0d86a7b0430d8cdb78070b4c55a"}, Example{24, "dda97ca4864cdfe06eaf70a0ec0d7191"},
          Example{32, "8ea2b7ca516745bfeafc49904b496089"}}) {
        const Bytes key = from_hexadecimal(longest.substr(0, 2 * key_size));
        const std::string twice = std::string(locked) + std::string(locked);
        EXPECT_EQ(hexadecimal(aes_ecb_decrypted(key, from_hexadecimal(twice))),
                  std::string(plain) + std::string(plain));
        EXPECT_EQ(hexadecimal(aes_cbc_decrypted(key, from_hexadecimal(plain), from_hexadecimal(locked))),
                  std::string(32, '0'));
    }
}

TEST(Versleuteling, een_verkeerde_lengte_wordt_geweigerd) {
    const Bytes key(16);
    for (const std::size_t size : {1U, 15U, 17U, 31U, 33U}) {
        EXPECT_EQ(aes_ecb_decrypted(key, Bytes(size)), std::nullopt) << size;
        EXPECT_EQ(aes_cbc_decrypted(key, Bytes(16), Bytes(size)), std::nullopt) << size;
    }
    for (const std::size_t size : {0U, 15U, 17U, 23U, 25U, 31U, 33U}) {
        EXPECT_EQ(aes_ecb_decrypted(Bytes(size), Bytes(16)), std::nullopt) << size;
        EXPECT_EQ(aes_cbc_decrypted(Bytes(size), Bytes(16), Bytes(16)), std::nullopt) << size;
        EXPECT_EQ(aes_cbc_decrypted(key, Bytes(size), Bytes(16)), std::nullopt) << size;
    }
    EXPECT_EQ(aes_cbc_decrypted(key, Bytes(16), Bytes(48))->size(), 48U);
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
