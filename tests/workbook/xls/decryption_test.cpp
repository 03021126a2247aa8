// Locked workbooks: those that Excel opens without asking are read, others ask for their password. The keys here were
// computed apart from the program, with the password that Excel knows and the salt 00 01 .. 0F.
#include "workbook/xls/decryption.h"
#include "workbook/xls/digest.h"
#include "xls_bytes.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace tavelo {

using namespace testing_xls;
using Shown = std::vector<std::string>;

namespace {

std::vector<std::byte> from_hex(std::string_view digits) {
    const auto value = [](char digit) { return static_cast<unsigned>(digit <= '9' ? digit - '0' : digit - 'a' + 10); };
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(static_cast<std::byte>(value(digits[i]) << 4 | value(digits[i + 1])));
    return bytes;
}

std::string hex(ByteSpan bytes) {
    std::string text;
    for (const std::byte byte : bytes) {
        text.push_back("0123456789abcdef"[std::to_integer<unsigned>(byte) >> 4]);
        text.push_back("0123456789abcdef"[std::to_integer<unsigned>(byte) & 15]);
    }
    return text;
}

ByteSpan bytes_of(std::string_view text) { return std::as_bytes(std::span(text)); }

Bytes hex_bytes(std::string_view digits) {
    Bytes bytes;
    for (const std::byte byte : from_hex(digits))
        bytes.u8(std::to_integer<unsigned>(byte));
    return bytes;
}

constexpr std::string_view salt = "000102030405060708090a0b0c0d0e0f";
constexpr unsigned filepass = 0x002F;

// Locks one byte: its value, its place in the stream, the length of its record's data.
using Locking = std::function<unsigned(unsigned, std::size_t, std::size_t)>;

// Locks the data of all records behind FILEPASS, but for BOF and the first four bytes of BOUNDSHEET.
Bytes locked(Bytes stream, const Locking& lock) {
    bool behind = false;
    for (std::size_t at = 0; at + 4 <= stream.size();) {
        const ByteSpan bytes = stream.bytes();
        const unsigned type = word_at(bytes, at);
        const std::size_t length = word_at(bytes, at + 2);
        const std::size_t plain = type == 0x0809 ? length : type == 0x0085 ? 4 : 0;
        for (std::size_t i = plain; behind && i < length; ++i)
            stream.put_u8(at + 4 + i, lock(byte_at(stream.bytes(), at + 4 + i), at + 4 + i, length));
        behind = behind || type == filepass;
        at += 4 + length;
    }
    return stream;
}

Locking rc4_with(std::vector<std::string_view> keys) {
    std::vector<std::byte> stream;
    for (const std::string_view key : keys) {
        Rc4 rc4(from_hex(key));
        for (int i = 0; i < 1024; ++i)
            stream.push_back(rc4.next());
    }
    return [stream](unsigned value, std::size_t place, std::size_t) {
        return value ^ std::to_integer<unsigned>(stream.at(place));
    };
}

unsigned by_xor(unsigned value, std::size_t place, std::size_t length) {
    static const std::vector<std::byte> key = from_hex("3c5bd417f01f2813f04bb403c473a420");
    return std::rotr(static_cast<std::uint8_t>(value ^ std::to_integer<unsigned>(key[(place + length) % 16])), 3);
}

// The cells lie on both sides of the first border between two keys.
Bytes cells_of(const Bytes& label) {
    return number(0, 0, 1.5).record(0x1234, Bytes().zeros(1000)).add(number(1, 0, 2.5)).add(label);
}
Bytes book_with(const Bytes& lock) { return sheet_8(cells_of(label_8(2, 0, "Paard")), Bytes().record(filepass, lock)); }
const Shown all_cells = {"A1=1.5", "A2=2.5", "A3=Paard"};

const Bytes weak_lock = Bytes()
                            .u16(1)
                            .u16(1)
                            .u16(1)
                            .add(hex_bytes(salt))
                            .add(hex_bytes("01fd4e05dc6e0e72fcc4b72175686883ded643a3b989170bc6e163b5debaf714"));

Bytes chosen_lock(unsigned bits, std::string_view verifier, std::string_view digest) {
    const Bytes header =
        Bytes().u32(4).u32(0).u32(0x6801).u32(0x8004).u32(bits).u32(1).u32(0).u32(0).wide(u"Naam").u16(0);
    Bytes lock = Bytes().u16(1).u16(4).u16(2).u32(4).u32(static_cast<std::uint32_t>(header.size())).add(header);
    return lock.u32(16).add(hex_bytes(salt)).add(hex_bytes(verifier)).u32(20).add(hex_bytes(digest));
}

bool asks_for_password(const Bytes& file) {
    const auto workbook = open_xls(file.bytes());
    return !workbook && workbook.error() == OpenFailure::password;
}

} // namespace

TEST(XlsSlot, de_vingerafdrukken_zijn_de_bekende) {
    const std::string long_text(200, 'a');
    EXPECT_EQ(hex(md5({})), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(hex(md5(bytes_of("abc"))), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(hex(md5(bytes_of(long_text.substr(0, 56)))), "3b0c8ac703f828b04c6c197006d17218");
    EXPECT_EQ(hex(md5(bytes_of(long_text))), "887f30b43b2867f4a9accceee7d16e6c");
    EXPECT_EQ(hex(sha1({})), "da39a3ee5e6b4b0d3255bfef95601890afd80709");
    EXPECT_EQ(hex(sha1(bytes_of("abc"))), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(hex(sha1(bytes_of(long_text.substr(0, 56)))), "c2db330f6083854c99d4b5bfb6e8f29f201be699");
    EXPECT_EQ(hex(sha1(bytes_of(long_text))), "e61cfffe0d9195a525fc6cf06ca2d77119c24a40");
}

TEST(XlsSlot, de_bytes_van_rc4_zijn_de_bekende) {
    Rc4 rc4(bytes_of("Key"));
    std::vector<std::byte> bytes;
    for (int i = 0; i < 9; ++i)
        bytes.push_back(rc4.next());
    EXPECT_EQ(hex(bytes), "eb9f7781b734ca72a7");
}

TEST(XlsSlot, een_vingerafdruk_klopt_voor_elke_lengte_om_een_blok) {
    struct Digests {
        unsigned size;
        std::string_view md5;
        std::string_view sha1;
    };
    constexpr std::array<Digests, 15> table = {{
        {1, "55a54008ad1ba589aa210d2629c1df41", "bf8b4530d8d246dd74ac53a13471bba17941dff7"},
        {54, "c6c0fc662f5f7f53209bd2676b345662", "7fe50979b12cf9232dda5ca196ac5d968090bc2c"},
        {55, "f1289732253518750e22b62a571a1748", "63ac9708fb581dd150d3647549f9e0cb51dcf1df"},
        {57, "d5f0a59aa9d6d8164d3754fb91f67809", "4e77d3077d2ab5167db3434c31cac3d15a3afc12"},
        {63, "dd785945d1d6b87eca0d276dbb8756fd", "d94ff3ad53f9b9327704b812ee9c1f3abbba3d48"},
        {64, "e3ab394ce4eb7da020a27d2e2443143c", "5f55a35e13f1865e7ffc22dca1275b1a49b0ff56"},
        {65, "28a6b0f918d9aea03e979a1657d8d0f6", "d7f8931010f8342a97383e1410a58c47d057708b"},
        {118, "42a01c09c0e7349354695155b02c9b92", "b348b9a103899a241372402cdc7b44c9bf3a8fcd"},
        {119, "d49720530a386a3191eac0dc840dd1bd", "774001b5ad1f46b40c48e1b94cb092c593ead25b"},
        {120, "8a440004b569286a42c722295ce1c5a6", "6ebf3111dc761f11b13f29df0484848785385973"},
        {121, "1f6329f06fb62076bef2278b7007e60f", "467945c0e868aaff130a18a6ff44c3963010999f"},
        {127, "36d03458e8a745e61afcf02257826e12", "82d007f6e7e5672722c0717b6bea2ba6f17cd35c"},
        {128, "52cc29caecfd9380a2261a80c58e6787", "0a44ac02432f6ead67d86fcb70a4d8ce589e50ec"},
        {129, "0fa5eac15b498f879494809c74939fc7", "461b146c523c63566b8bf8852dc8462116cf2e3f"},
        {1000, "c3b2968d34e038455d14c8827156e193", "7461968a9edb9b418224f1acb305d2feeaa10ba5"},
    }};
    for (const Digests& expected : table) {
        std::vector<std::byte> message;
        for (unsigned i = 0; i < expected.size; ++i)
            message.push_back(static_cast<std::byte>((i * 7 + expected.size) & 0xFF));
        EXPECT_EQ(hex(md5(message)), expected.md5) << expected.size;
        EXPECT_EQ(hex(sha1(message)), expected.sha1) << expected.size;
    }
}

TEST(XlsSlot, rc4_blijft_lang_de_bekende) {
    std::vector<std::byte> key;
    for (unsigned i = 1; i <= 16; ++i)
        key.push_back(static_cast<std::byte>(i));
    Rc4 rc4(key);
    std::vector<std::byte> bytes;
    for (int i = 0; i < 2000; ++i)
        bytes.push_back(rc4.next());
    EXPECT_EQ(hex(md5(bytes)), "74826a8b5eef5ab7eab85a1a7e59efe6");
}

TEST(XlsSlot, rc4_van_40_bits_gaat_vanzelf_open) {
    const Locking lock = rc4_with({"e0f0f3ab5b2c55a6fff6d99ae30691fb", "cdb235c584cc3283c74f3970baac0043"});
    EXPECT_EQ(shown(locked(book_with(weak_lock), lock)), all_cells);
    EXPECT_EQ(open_xls(locked(book_with(weak_lock), lock).bytes()).value()->sheets()[0].name, "Blad1");
}

TEST(XlsSlot, rc4_van_gekozen_sterkte_gaat_vanzelf_open) {
    const Bytes strong =
        chosen_lock(128, "a024a295d910dcd16b2b69c9dfef1919", "74a70eb0e7278136e857318b9e9a13d19115d50b");
    EXPECT_EQ(shown(locked(book_with(strong),
                           rc4_with({"ac2a7b172474c79c0b1292e558dfd9b1", "f5648bfcf2dc15ff7dd417b6af542bcb"}))),
              all_cells);
    const Bytes weak = chosen_lock(0, "c872728f14b55d849b7dde3f7cfd96a7", "d5e6c96d597b070d79bf31b1599eddf2ece8d44b");
    EXPECT_EQ(shown(locked(book_with(weak),
                           rc4_with({"ac2a7b17240000000000000000000000", "f5648bfcf20000000000000000000000"}))),
              all_cells);
}

TEST(XlsSlot, rc4_heeft_40_tot_128_bits) {
    struct Strength {
        unsigned bits;
        std::string_view verifier;
        std::string_view digest;
        std::string_view first_key;
        std::string_view second_key;
    };
    constexpr std::array<Strength, 2> allowed = {{
        {48, "fe40ebfdac74fdd1db32c63a2e30be30", "4cd62ac951e052e3278b7f62db63e6eee4ef575d", "ac2a7b172474",
         "f5648bfcf2dc"},
        {120, "ab99d6f228c809d094d7c4ebb193123b", "9163191849f219591f9137ff6b6dc9f4970819dd",
         "ac2a7b172474c79c0b1292e558dfd9", "f5648bfcf2dc15ff7dd417b6af542b"},
    }};
    for (const auto& [bits, verifier, digest, first_key, second_key] : allowed)
        EXPECT_EQ(shown(locked(book_with(chosen_lock(bits, verifier, digest)), rc4_with({first_key, second_key}))),
                  all_cells)
            << bits;
    // Of these the password fits too, but nobody locks so.
    constexpr std::array<Strength, 4> refused = {{
        {32, "7236b1d8af9e6b1ae337c2c8bbeb3b5f", "803b38e76bbc85fdc2c0ad78d526ed2969e919c7", "", ""},
        {44, "8c3636cb58f911c8df399a7b20a1cafb", "35baa0ef367ca7d546e1f7512fe734c34e6c6cf9", "", ""},
        {136, "867908fe5aac996f43eb8cfc87165fa1", "eb77fe39f54a39aaf2762bd50bbeedd1b21dbb1d", "", ""},
        {160, "b199202b9a7875619992dde14bb27f3f", "058b6c1e8d5c1c76af270f20b37fe92f05dca1c2", "", ""},
    }};
    for (const auto& [bits, verifier, digest, first_key, second_key] : refused)
        EXPECT_TRUE(asks_for_password(book_with(chosen_lock(bits, verifier, digest)))) << bits;
}

TEST(XlsSlot, wat_achter_het_slot_staat_telt_niet) {
    const Locking weak = rc4_with({"e0f0f3ab5b2c55a6fff6d99ae30691fb", "cdb235c584cc3283c74f3970baac0043"});
    EXPECT_EQ(shown(locked(book_with(Bytes(weak_lock).u32(0x12345678)), weak)), all_cells);
    const Bytes strong =
        chosen_lock(128, "a024a295d910dcd16b2b69c9dfef1919", "74a70eb0e7278136e857318b9e9a13d19115d50b");
    EXPECT_EQ(shown(locked(book_with(Bytes(strong).u32(0x12345678)),
                           rc4_with({"ac2a7b172474c79c0b1292e558dfd9b1", "f5648bfcf2dc15ff7dd417b6af542bcb"}))),
              all_cells);
}

TEST(XlsSlot, het_oudste_slot_gaat_vanzelf_open) {
    EXPECT_EQ(shown(locked(book_with(Bytes().u16(0).u16(0xB359).u16(0x9A0A)), by_xor)), all_cells);
    const Bytes old_lock = Bytes().record(filepass, Bytes().u16(0xB359).u16(0x9A0A));
    EXPECT_EQ(shown(locked(sheet_5(cells_of(label_5(2, 0, "Paard")), old_lock), by_xor)), all_cells);
}

TEST(XlsSlot, gaat_open_waar_de_stroom_in_het_bestand_ligt) {
    constexpr std::size_t before = 100;
    const Bytes plain = book_with(Bytes().u16(0).u16(0xB359).u16(0x9A0A));
    Bytes file = Bytes().zeros(before).add(locked(plain, by_xor)).zeros(50);
    std::vector<std::byte> bytes = file.bytes();
    EXPECT_EQ(unlock(std::span(bytes).subspan(before, plain.size())), Lock::opened);
    EXPECT_EQ(bytes, Bytes().zeros(before).add(plain).zeros(50).bytes());
}

TEST(XlsSlot, sommige_records_blijven_achter_een_slot_leesbaar) {
    const Bytes lock = Bytes().record(0x0809, bof_8(globals)).record(filepass, Bytes().u16(0).u16(0xB359).u16(0x9A0A));
    const auto stays = [&lock](unsigned type) {
        const Bytes file = Bytes(lock).record(type, Bytes().narrow("Paard"));
        std::vector<std::byte> bytes = file.bytes();
        EXPECT_EQ(unlock(bytes), Lock::opened);
        return bytes == file.bytes();
    };
    for (const unsigned type : {0x0009U, 0x0209U, 0x0409U, 0x0809U, 0x00E1U, 0x0138U, 0x0194U, 0x0195U, 0x0196U})
        EXPECT_TRUE(stays(type)) << type;
    for (const unsigned type : {0x0001U, 0x0085U, 0x00E0U, 0x00E2U, 0x0137U, 0x0139U, 0x0193U, 0x0197U})
        EXPECT_FALSE(stays(type)) << type;
}

TEST(XlsSlot, een_eigen_wachtwoord_wordt_gevraagd) {
    EXPECT_TRUE(asks_for_password(book_with(Bytes().u16(0).u16(0xB358).u16(0x9A0A))));
    EXPECT_TRUE(asks_for_password(book_with(Bytes(weak_lock).put_u8(6, 0xFF)))); // another salt
    EXPECT_TRUE(asks_for_password(book_with(chosen_lock(128, salt, salt))));
}

TEST(XlsSlot, een_slot_dat_niet_te_begrijpen_is_vraagt_om_een_wachtwoord) {
    for (std::size_t size = 0; size < weak_lock.size(); ++size)
        EXPECT_TRUE(asks_for_password(book_with(Bytes(weak_lock).cut(size)))) << size;
    EXPECT_TRUE(asks_for_password(book_with(Bytes().u16(1).u16(4).u16(2).u32(0).u32(0xFFFFFFFF).zeros(200))));
    EXPECT_TRUE(asks_for_password(book_with(chosen_lock(7, salt, salt))));
    EXPECT_TRUE(asks_for_password(book_with(chosen_lock(1024, salt, salt))));
}

} // namespace tavelo
