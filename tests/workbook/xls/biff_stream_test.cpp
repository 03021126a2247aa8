#include "workbook/xls/biff_stream.h"

#include "xls_bytes.h"

#include <gtest/gtest.h>

namespace tavelo {

using namespace testing_xls;

namespace {

BiffRecord bof(std::uint16_t type, const std::vector<std::byte>& data) { return {.type = type, .data = data}; }

// The text of `length` characters in a record with `data`, behind which `more` stand as CONTINUE records; and what the
// record behind those holds then.
std::string text_of(std::size_t length, TextEncoding encoding, const Bytes& data, const std::vector<Bytes>& more = {}) {
    Bytes stream;
    for (const Bytes& part : more)
        stream.record(0x003C, part);
    stream.record(0x1234, Bytes().u8('!'));
    BiffCursor cursor(stream.bytes());
    BiffText text(cursor, data.bytes());
    const std::string read(text.string(length, encoding));
    return read + (text.at_end() ? "" : "+" + std::to_string(text.byte()));
}

constexpr TextEncoding unicode{.version = Biff::biff8, .code_page = 1252};
constexpr TextEncoding western{.version = Biff::biff5, .code_page = 1252};

} // namespace

TEST(BiffBytes, staan_laagste_eerst_en_zijn_nul_voorbij_het_eind) {
    const std::vector<std::byte> bytes = Bytes().u8(1).u8(2).u8(3).u8(4).u8(0x85).u8(6).u8(7).u8(0x40).u8(9).bytes();
    EXPECT_EQ(byte_at(bytes, 0), 1U);
    EXPECT_EQ(byte_at(bytes, 8), 9U);
    EXPECT_EQ(byte_at(bytes, 9), 0U);
    EXPECT_EQ(word_at(bytes, 0), 0x0201U);
    EXPECT_EQ(word_at(bytes, 3), 0x8504U);
    EXPECT_EQ(word_at(bytes, 8), 0x0009U);
    EXPECT_EQ(word_at(bytes, 9), 0U);
    EXPECT_EQ(long_at(bytes, 0), 0x04030201U);
    EXPECT_EQ(long_at(bytes, 1), 0x85040302U);
    EXPECT_EQ(long_at(bytes, 7), 0x00000940U);
    EXPECT_EQ(double_at(Bytes().u8(0).f64(1234.5).bytes(), 1), 1234.5);
    EXPECT_EQ(double_at(Bytes().f64(-0.1).bytes(), 0), -0.1);
    EXPECT_EQ(double_at(bytes, 1), double_at(Bytes().u8(2).u8(3).u8(4).u8(0x85).u8(6).u8(7).u8(0x40).u8(9).bytes(), 0));
    EXPECT_EQ(part_of(bytes, 2, 3).size(), 3U);
    EXPECT_EQ(part_of(bytes, 2, 3).data(), bytes.data() + 2);
    EXPECT_EQ(part_of(bytes, 7, 3).size(), 2U);
    EXPECT_EQ(part_of(bytes, 9, 3).size(), 0U);
    EXPECT_EQ(part_of(bytes, 99, 3).size(), 0U);
}

TEST(BiffVersie, staat_in_het_eerste_record) {
    const auto stored = [](unsigned version, unsigned kind) { return Bytes().u16(version).u16(kind).bytes(); };
    EXPECT_EQ(version_of_bof(bof(0x0009, stored(0x0600, 0))), Biff::biff2);
    EXPECT_EQ(version_of_bof(bof(0x0209, stored(0x0600, 0))), Biff::biff3);
    EXPECT_EQ(version_of_bof(bof(0x0409, stored(0x0600, 0))), Biff::biff4);
    EXPECT_EQ(version_of_bof(bof(0x0809, stored(0x0600, 0))), Biff::biff8);
    EXPECT_EQ(version_of_bof(bof(0x0809, stored(0x0500, 0))), Biff::biff5);
    EXPECT_EQ(version_of_bof(bof(0x0809, stored(0x0601, 0))), Biff::biff5);
    EXPECT_EQ(version_of_bof(bof(0x0809, stored(0x05FF, 0))), Biff::biff5);
    EXPECT_EQ(kind_of_bof(bof(0x0809, stored(0x0600, 0x20))), SubstreamKind::chart);
    EXPECT_EQ(kind_of_bof(bof(0x0809, stored(0x0600, 0x05))), SubstreamKind::globals);
}

TEST(BiffRecords, volgen_op_elkaar_door_hun_lengte) {
    const Bytes stream = Bytes().record(1).record(2, Bytes().u8(7).u8(8)).record(3, Bytes().u8(9));
    BiffCursor cursor(stream.bytes());
    EXPECT_EQ(cursor.next()->type, 1U);
    EXPECT_EQ(cursor.place(), 4U);
    EXPECT_FALSE(cursor.next_if(3).has_value());
    EXPECT_EQ(cursor.place(), 4U);
    const auto second = cursor.next_if(2);
    ASSERT_TRUE(second.has_value());
    EXPECT_EQ(second->data.size(), 2U);
    EXPECT_EQ(byte_at(second->data, 1), 8U);
    EXPECT_EQ(cursor.place(), 10U);
    EXPECT_EQ(cursor.next()->data.size(), 1U);
    EXPECT_FALSE(cursor.next().has_value());
    EXPECT_FALSE(cursor.next_if(3).has_value());
    EXPECT_FALSE(BiffCursor(stream.bytes(), 99).next().has_value());
    EXPECT_EQ(BiffCursor(stream.bytes(), 10).next()->type, 3U);
}

TEST(BiffRecords, een_afgebroken_record_geeft_wat_er_is) {
    const Bytes stream = Bytes().u16(5).u16(100).u8(1).u8(2);
    BiffCursor cursor(stream.bytes());
    EXPECT_EQ(cursor.next()->data.size(), 2U);
    EXPECT_EQ(cursor.place(), 6U);
    EXPECT_FALSE(cursor.next().has_value());
    for (std::size_t size = 0; size < 4; ++size)
        EXPECT_FALSE(BiffCursor(Bytes(stream).cut(size).bytes()).next().has_value()) << size;
    EXPECT_EQ(BiffCursor(Bytes(stream).cut(4).bytes()).next()->data.size(), 0U);
}

TEST(BiffTekst, heeft_een_of_twee_bytes_per_teken) {
    EXPECT_EQ(text_of(3, unicode, Bytes().u8(0).narrow("abc")), "abc");
    EXPECT_EQ(text_of(3, unicode, Bytes().u8(1).wide(u"a\u20ACc")), "a€c");
    EXPECT_EQ(text_of(0, unicode, Bytes().u8(0)), "");
    EXPECT_EQ(text_of(2, unicode, Bytes().u8(0).narrow("abc")), "ab+99"); // a letter is left
    EXPECT_EQ(text_of(2, unicode, Bytes().u8(0xF2).narrow("ab")), "ab");  // other flags say nothing
    EXPECT_EQ(text_of(3, western,
                      Bytes().narrow("a\xE9"
                                     "c")),
              "aéc");
    EXPECT_EQ(text_of(2, western, Bytes().narrow("abc")), "ab+99");
}

TEST(BiffTekst, heeft_letters_buiten_ascii_waar_ze_ook_staan) {
    for (std::size_t length = 1; length <= 70; ++length)
        for (std::size_t at = 0; at < length; ++at) {
            std::string stored(length, 'a');
            stored[at] = '\xE9';
            const std::string shown = std::string(at, 'a') + "é" + std::string(length - 1 - at, 'a');
            ASSERT_EQ(text_of(length, unicode, Bytes().u8(0).narrow(stored)), shown) << length << ' ' << at;
        }
}

TEST(BiffTekst, staat_er_tot_de_volgende_tekst) {
    const std::vector<std::byte> data = Bytes().u8(0).narrow("caf\xE9").u8(0).narrow("ab").bytes();
    BiffCursor cursor({});
    BiffText text(cursor, data);
    EXPECT_EQ(text.string(4, unicode), "café");
    EXPECT_EQ(text.string(2, unicode), "ab");
    EXPECT_EQ(text.string(2, unicode), "");
}

TEST(BiffTekst, slaat_opmaak_en_uitspraak_over) {
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(8).u16(2).narrow("a").zeros(8).u8(7)), "a+7");
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(4).u32(3).narrow("a").zeros(3).u8(7)), "a+7");
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(12).u16(1).u32(2).narrow("a").zeros(6).u8(7)), "a+7");
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(13).u16(1).u32(2).wide(u"a").zeros(6).u8(7)), "a+7");
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(4).u32(0x10003).narrow("a").zeros(99)), "a");
    EXPECT_EQ(text_of(1, unicode, Bytes().u8(8).u16(1).narrow("a").zeros(1), {Bytes().zeros(3).u8(7)}), "a+7");
}

TEST(BiffTekst, gaat_in_een_volgend_record_verder) {
    EXPECT_EQ(text_of(4, unicode, Bytes().u8(0).narrow("ab"), {Bytes().u8(0).narrow("cd").u8(7)}), "abcd+7");
    EXPECT_EQ(text_of(4, unicode, Bytes().u8(0).narrow("ab"), {Bytes().u8(1).wide(u"c\u20AC").u8(7)}), "abc€+7");
    EXPECT_EQ(text_of(3, unicode, Bytes().u8(1).wide(u"\u20AC"), {Bytes().u8(0).narrow("cd").u8(7)}), "€cd+7");
    EXPECT_EQ(text_of(2, unicode, Bytes().u8(0), {Bytes().u8(1).wide(u"ab")}), "ab");
    EXPECT_EQ(text_of(2, unicode, Bytes(), {Bytes().u8(0).narrow("ab").u8(7)}), "ab+7");
    EXPECT_EQ(text_of(2, unicode, Bytes().u8(0).narrow("a"), {Bytes(), Bytes().u8(0).narrow("b").u8(7)}), "ab+7");
    EXPECT_EQ(text_of(4, western, Bytes().narrow("ab"), {Bytes().narrow("c"), Bytes().narrow("d").u8(7)}), "abcd+7");
    EXPECT_EQ(text_of(9, unicode, Bytes().u8(0).narrow("ab")), "ab");
    EXPECT_EQ(text_of(9, western, Bytes().narrow("ab")), "ab");
    EXPECT_EQ(text_of(2, unicode, Bytes().u8(1).wide(u"a").u8('b')), "ab"); // half a character
}

TEST(BiffTekst, heeft_getallen_ook_over_een_grens) {
    Bytes stream;
    stream.record(0x003C, Bytes().u8(3).u8(4).u8(5));
    BiffCursor cursor(stream.bytes());
    const std::vector<std::byte> data = Bytes().u8(1).u8(2).bytes();
    BiffText text(cursor, data);
    EXPECT_EQ(text.long_word(), 0x04030201U);
    EXPECT_FALSE(text.at_end());
    EXPECT_EQ(text.word(), 5U);
    EXPECT_TRUE(text.at_end());
    EXPECT_EQ(text.byte(), 0U);
    BiffCursor again(stream.bytes());
    BiffText skipped(again, data);
    skipped.skip(0);
    EXPECT_EQ(skipped.byte(), 1U);
    skipped.skip(2);
    EXPECT_EQ(skipped.byte(), 4U);
    skipped.skip(9);
    EXPECT_TRUE(skipped.at_end());
}

} // namespace tavelo
