// The container around the workbook: its sectors, its directory, and how both can be broken.
#include "workbook/xls/compound_file.h"

#include "xls_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavelo {

using namespace testing_xls;
using Shown = std::vector<std::string>;

namespace {

constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
constexpr std::uint32_t table_sector = 0xFFFFFFFD;
constexpr std::uint32_t nothing = 0xFFFFFFFF;

enum EntryType : unsigned { storage = 1, stream = 2, root = 5 };

struct Entry {
    std::u16string name;
    unsigned type = stream;
    Bytes content = {};
    std::uint32_t left = nothing;
    std::uint32_t right = nothing;
    std::uint32_t child = nothing;
};

// Header, one sector of the table, the directory, then the contents one after another. Contents are padded to 4,096
// bytes, so that they do not count as small. With `small` the one content lies in the mini stream.
class Container {
  public:
    explicit Container(std::vector<Entry> entries, unsigned sector_shift = 9)
        : entries_(std::move(entries)), sector_size_(std::size_t{1} << sector_shift), sector_shift_(sector_shift) {}

    static constexpr std::size_t first_table_place = 512; // with sectors of 512 bytes

    [[nodiscard]] Bytes bytes() {
        next_.push_back(table_sector);
        const std::size_t directory_sectors = (entries_.size() * 128 + sector_size_ - 1) / sector_size_;
        add_chain(directory_sectors);
        Bytes contents;
        Bytes directory;
        for (Entry& entry : entries_) {
            std::uint32_t first = end_of_chain;
            if (entry.content.size() > 0) {
                entry.content.pad(4096);
                first = add_chain(entry.content.size() / sector_size_);
                contents.add(entry.content);
            }
            directory.add(entry_bytes(entry, first, entry.content.size()));
        }
        return header(end_of_chain, 0).add(table()).add(directory.pad(sector_size_)).add(contents);
    }

    // The second entry lies in the mini stream of the first, the root.
    [[nodiscard]] Bytes small_bytes() {
        next_.push_back(table_sector);
        add_chain(1);
        const std::uint32_t mini_table_sector = add_chain(1);
        Bytes content = entries_[1].content;
        const std::size_t size = content.size();
        const std::size_t mini_sectors = (size + 63) / 64;
        Bytes mini_table;
        for (std::size_t i = 0; i < mini_sectors; ++i)
            mini_table.u32(i + 1 < mini_sectors ? static_cast<std::uint32_t>(i + 1) : end_of_chain);
        content.pad(sector_size_);
        const std::uint32_t first = add_chain(content.size() / sector_size_);
        Bytes directory = entry_bytes(entries_[0], first, content.size()).add(entry_bytes(entries_[1], 0, size));
        return header(mini_table_sector, 1)
            .add(table())
            .add(directory.pad(sector_size_))
            .add(mini_table.pad(sector_size_))
            .add(content);
    }

  private:
    std::uint32_t add_chain(std::size_t sectors) {
        const auto first = static_cast<std::uint32_t>(next_.size());
        for (std::size_t i = 1; i < sectors; ++i)
            next_.push_back(first + static_cast<std::uint32_t>(i));
        next_.push_back(end_of_chain);
        return first;
    }

    [[nodiscard]] Bytes table() const {
        Bytes bytes;
        for (const std::uint32_t next : next_)
            bytes.u32(next);
        while (bytes.size() < sector_size_)
            bytes.u32(nothing);
        return bytes;
    }

    [[nodiscard]] Bytes header(std::uint32_t mini_table_sector, std::uint32_t mini_table_sectors) const {
        Bytes bytes;
        bytes.narrow("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")
            .zeros(16)
            .u16(0x3E)
            .u16(sector_shift_ == 9 ? 3 : 4)
            .u16(0xFFFE);
        bytes.u16(sector_shift_).u16(6).zeros(10).u32(1).u32(1).u32(0).u32(4096);
        bytes.u32(mini_table_sector).u32(mini_table_sectors).u32(end_of_chain).u32(0).u32(0);
        while (bytes.size() < 512)
            bytes.u32(nothing);
        return bytes.pad(sector_size_);
    }

    static Bytes entry_bytes(const Entry& entry, std::uint32_t first, std::size_t size) {
        Bytes bytes;
        bytes.wide(entry.name).zeros(64 - 2 * entry.name.size());
        bytes.u16(static_cast<unsigned>(2 * entry.name.size() + 2)).u8(entry.type).u8(1);
        bytes.u32(entry.left).u32(entry.right).u32(entry.child).zeros(36);
        return bytes.u32(first).u32(static_cast<std::uint32_t>(size)).u32(0);
    }

    std::vector<Entry> entries_;
    std::size_t sector_size_;
    unsigned sector_shift_;
    std::vector<std::uint32_t> next_; // the table: of each sector the next one
};

Entry root_entry(std::uint32_t child = 1) { return {.name = u"Root Entry", .type = root, .child = child}; }

Bytes with_value(double value) { return sheet_8(number(0, 0, value)); }

// It lies in the fourth sector of the workbook.
Bytes with_far_value(double value) {
    return sheet_8(Bytes().record(0x1234, Bytes().zeros(1700)).add(number(0, 0, value)));
}

Bytes container_of(Bytes content) {
    return Container({root_entry(), {.name = u"Workbook", .content = std::move(content)}}).bytes();
}

// The place in the table of the sector that holds the start of the workbook, in the files of container_of.
constexpr std::size_t workbook_in_table = Container::first_table_place + 2 * 4;

std::string failure(const Bytes& file) {
    const auto workbook = open_xls(file.bytes());
    if (workbook) return "open";
    switch (workbook.error()) {
    case OpenFailure::password:
        return "wachtwoord";
    case OpenFailure::not_a_workbook:
        return "geen werkmap";
    case OpenFailure::damaged:
        return "beschadigd";
    default:
        return "iets anders";
    }
}

} // namespace

TEST(XlsContainer, de_werkmap_staat_in_sectoren_van_512_of_4096_bytes) {
    EXPECT_EQ(shown(container_of(with_value(1))), (Shown{"A1=1"}));
    EXPECT_EQ(shown(Container({root_entry(), {.name = u"Workbook", .content = with_value(2)}}, 12).bytes()),
              (Shown{"A1=2"}));
}

TEST(XlsContainer, een_kleine_werkmap_staat_in_de_kleine_sectoren) {
    const std::vector<Entry> entries = {root_entry(), {.name = u"Workbook", .content = with_value(3)}};
    EXPECT_EQ(shown(Container(entries).small_bytes()), (Shown{"A1=3"}));
}

TEST(XlsContainer, een_oude_werkmap_heet_book_en_een_nieuwe_gaat_voor) {
    EXPECT_EQ(shown(Container({root_entry(), {.name = u"Book", .content = with_value(5)}}).bytes()), (Shown{"A1=5"}));
    const std::vector<Entry> both = {root_entry(),
                                     {.name = u"Book", .content = with_value(5), .right = 2},
                                     {.name = u"Workbook", .content = with_value(8)}};
    EXPECT_EQ(shown(Container(both).bytes()), (Shown{"A1=8"}));
}

TEST(XlsContainer, een_bestand_dat_voor_het_einde_van_de_werkmap_ophoudt_is_beschadigd) {
    const Bytes whole = container_of(with_value(1));
    EXPECT_EQ(failure(Bytes(whole).cut(whole.size() - 512)), "beschadigd");
    EXPECT_EQ(shown(Bytes(whole).cut(whole.size() - 511)), (Shown{"A1=1"}));
}

TEST(XlsContainer, hoofdletters_in_de_naam_tellen_niet) {
    EXPECT_EQ(shown(Container({root_entry(), {.name = u"WORKBOOK", .content = with_value(4)}}).bytes()),
              (Shown{"A1=4"}));
}

TEST(XlsContainer, een_ingesloten_werkmap_is_niet_de_werkmap_zelf) {
    const std::vector<Entry> entries = {root_entry(3),
                                        {.name = u"MBD0001", .type = storage, .child = 2},
                                        {.name = u"Workbook", .content = with_value(99)},
                                        {.name = u"Workbook", .content = with_value(1), .left = 1}};
    EXPECT_EQ(shown(Container(entries).bytes()), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_oude_werkmap_gaat_voor_een_nieuwe_die_erin_ingesloten_is) {
    const std::vector<Entry> entries = {root_entry(3),
                                        {.name = u"MBD0001", .type = storage, .child = 2},
                                        {.name = u"Workbook", .content = with_value(99)},
                                        {.name = u"Book", .content = with_value(1), .left = 1}};
    EXPECT_EQ(shown(Container(entries).bytes()), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_werkmap_die_er_geen_is_maakt_plaats_voor_de_volgende) {
    const std::vector<Entry> entries = {root_entry(),
                                        {.name = u"Workbook", .content = Bytes().zeros(100), .right = 2},
                                        {.name = u"Book", .content = with_value(1)}};
    EXPECT_EQ(shown(Container(entries).bytes()), (Shown{"A1=1"}));
    EXPECT_EQ(failure(Container({root_entry(), {.name = u"Workbook", .content = Bytes().zeros(100)}}).bytes()),
              "beschadigd");
}

TEST(XlsContainer, een_verkeerde_soort_lengte_of_plaats_in_de_inhoudsopgave_is_geen_bezwaar) {
    constexpr std::size_t root_place = 1024;
    constexpr std::size_t workbook_place = root_place + 128;
    const Bytes whole = container_of(with_value(1));
    EXPECT_EQ(shown(Bytes(whole).put_u8(workbook_place + 66, 0)), (Shown{"A1=1"})); // its type
    EXPECT_EQ(shown(Bytes(whole).put_u8(root_place + 66, 0)), (Shown{"A1=1"}));
    EXPECT_EQ(shown(Bytes(whole).put_u8(workbook_place + 64, 0)), (Shown{"A1=1"}));     // the length of its name
    EXPECT_EQ(shown(Bytes(whole).put_u32(workbook_place + 120, 512)), (Shown{"A1=1"})); // small, yet in large sectors
    const std::vector<Entry> root_behind = {{.name = u"Workbook", .content = with_value(1)}, root_entry(0)};
    EXPECT_EQ(shown(Container(root_behind).bytes()), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_gebroken_boom_van_de_inhoudsopgave_is_geen_bezwaar) {
    for (const std::uint32_t child : {0U, 7U, nothing}) {
        const std::vector<Entry> entries = {root_entry(child), {.name = u"Workbook", .content = with_value(1)}};
        EXPECT_EQ(shown(Container(entries).bytes()), (Shown{"A1=1"}));
    }
    const std::vector<Entry> ring = {root_entry(1),
                                     {.name = u"A", .content = with_value(2), .left = 2, .right = 1},
                                     {.name = u"B", .content = with_value(3), .left = 1, .right = 2},
                                     {.name = u"Workbook", .content = with_value(1)}};
    EXPECT_EQ(shown(Container(ring).bytes()), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_keten_die_op_zichzelf_terugkomt_eindigt) {
    Bytes file = container_of(with_value(1));
    file.put_u32(workbook_in_table, 2); // the first sector of the workbook follows itself
    EXPECT_EQ(shown(file), (Shown{"A1=1"}));
    Bytes directory = container_of(with_value(1));
    directory.put_u32(Container::first_table_place + 4, 1);
    EXPECT_EQ(shown(directory), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_keten_die_buiten_het_bestand_wijst_eindigt) {
    Bytes file = container_of(with_value(1));
    file.put_u32(workbook_in_table, 0x00FFFFFF);
    EXPECT_EQ(shown(file), (Shown{"A1=1"}));
}

TEST(XlsContainer, een_tabel_van_tabellen_die_rondloopt_eindigt) {
    Bytes file = container_of(with_value(1));
    file.put_u32(68, 0); // its first sector is the table itself, whose last number is free
    EXPECT_EQ(shown(file), (Shown{"A1=1"}));
    file.put_u32(512 + 508, 0); // and now leads back to it
    EXPECT_EQ(shown(file), (Shown{"A1=1"}));
}

TEST(XlsContainer, zonder_werkmap_erin_is_het_geen_werkmap) {
    EXPECT_EQ(failure(Container({root_entry(), {.name = u"WordDocument", .content = with_value(1)}}).bytes()),
              "geen werkmap");
}

TEST(XlsContainer, een_versleuteld_pakket_vraagt_een_wachtwoord) {
    EXPECT_EQ(failure(Container({root_entry(), {.name = u"EncryptedPackage", .content = with_value(1)}}).bytes()),
              "wachtwoord");
}

TEST(XlsContainer, een_kop_zonder_bruikbare_getallen_is_beschadigd) {
    const Bytes whole = container_of(with_value(1));
    EXPECT_EQ(failure(Bytes(whole).cut(8)), "beschadigd");
    EXPECT_EQ(failure(Bytes(whole).cut(512)), "beschadigd");
    EXPECT_EQ(failure(Bytes(whole).put_u8(30, 63)), "beschadigd");  // sectors of 2^63 bytes
    EXPECT_EQ(failure(Bytes(whole).put_u32(48, 99)), "beschadigd"); // no directory there
}

TEST(XlsContainer, elke_byte_van_het_kenmerk_telt) {
    const Bytes whole = container_of(with_value(1));
    for (std::size_t at = 0; at < 8; ++at) {
        for (const unsigned other : {1U, 0xFFU}) {
            const unsigned value = std::to_integer<unsigned>(whole.bytes().at(at));
            EXPECT_EQ(failure(Bytes(whole).put_u8(at, (value + other) & 0xFF)), "geen werkmap") << at;
        }
    }
    EXPECT_EQ(failure(Bytes(whole).cut(7)), "geen werkmap");
}

TEST(XlsContainer, sectoren_hebben_512_tot_65536_bytes_en_kleine_niet_meer) {
    const Bytes whole = container_of(with_value(1));
    EXPECT_EQ(failure(Bytes(whole).put_u8(30, 8)), "beschadigd");
    EXPECT_EQ(failure(Bytes(whole).put_u8(30, 17)), "beschadigd");
    EXPECT_EQ(failure(Bytes(whole).put_u8(32, 10)), "beschadigd");
    EXPECT_EQ(shown(Bytes(whole).put_u8(32, 9)), (Shown{"A1=1"}));
    for (const unsigned shift : {10U, 11U, 13U, 16U})
        EXPECT_EQ(shown(Container({root_entry(), {.name = u"Workbook", .content = with_value(2)}}, shift).bytes()),
                  (Shown{"A1=2"}))
            << shift;
    EXPECT_EQ(
        shown(
            Container({root_entry(), {.name = u"Workbook", .content = with_value(3)}}, 9).small_bytes().put_u8(32, 6)),
        (Shown{"A1=3"}));
}

TEST(XlsContainer, een_stroom_onder_de_grens_ligt_in_de_kleine_sectoren) {
    constexpr std::size_t workbook_size = 1024 + 128 + 120;
    const Bytes whole = container_of(with_value(1));
    for (const std::uint32_t size : {4095U, 4096U, 4097U, 512U})
        EXPECT_EQ(shown(Bytes(whole).put_u32(workbook_size, size)), (Shown{"A1=1"})) << size;
    const auto stream = stream_named(whole.bytes(), u"workbook");
    EXPECT_EQ(stream.size(), 4096U);
    EXPECT_EQ(stream_named(Bytes(whole).put_u32(workbook_size, 4095).bytes(), u"workbook").size(), 0U);
    EXPECT_EQ(stream_named(Bytes(whole).put_u32(workbook_size, 5000).bytes(), u"workbook").size(), 4096U);
    EXPECT_EQ(stream_named(Bytes(whole).put_u32(56, 4097).bytes(), u"workbook").size(), 0U);
    EXPECT_TRUE(stream_named(whole.bytes(), u"book").empty());
    EXPECT_TRUE(stream_named(Bytes(whole).put_u8(0, 1).bytes(), u"workbook").empty());
    EXPECT_TRUE(stream_named(Bytes(whole).put_u8(30, 63).bytes(), u"workbook").empty());
}

TEST(XlsContainer, een_kleine_stroom_heeft_precies_zijn_eigen_bytes) {
    for (const std::size_t size : {1U, 63U, 64U, 65U, 200U, 1000U}) {
        Bytes content;
        for (std::size_t i = 0; i < size; ++i)
            content.u8(static_cast<unsigned>(i * 7 + 1) & 0xFF);
        const Bytes file = Container({root_entry(), {.name = u"Iets", .content = content}}).small_bytes();
        EXPECT_EQ(stream_named(file.bytes(), u"iets"), content.bytes()) << size;
    }
}

TEST(XlsContainer, van_een_naam_worden_alleen_de_letters_van_az_klein) {
    const auto named = [](std::u16string_view stored, std::u16string_view asked) {
        const Bytes file =
            Container({root_entry(), {.name = std::u16string(stored), .content = Bytes().u8(7)}}).bytes();
        return !stream_named(file.bytes(), asked).empty();
    };
    EXPECT_TRUE(named(u"AZaz", u"azaz"));
    EXPECT_FALSE(named(u"AZaz", u"AZaz"));
    EXPECT_TRUE(named(u"@[`{", u"@[`{"));
    EXPECT_TRUE(named(u"\u00C9", u"\u00C9"));
    EXPECT_TRUE(named(u"1234567890123456789012345678901", u"1234567890123456789012345678901"));
}

TEST(XlsContainer, een_map_is_geen_stroom) {
    EXPECT_EQ(
        failure(Container({root_entry(), {.name = u"Workbook", .type = storage, .content = with_value(1)}}).bytes()),
        "geen werkmap");
}

TEST(XlsContainer, een_afgebroken_laatste_sector_is_geen_bezwaar_zolang_er_een_begin_is) {
    const Bytes whole = container_of(with_value(1));
    EXPECT_EQ(shown(Bytes(whole).cut(whole.size() - 1)), (Shown{"A1=1"}));
    EXPECT_EQ(failure(Bytes(whole).cut(whole.size() - 1024)), "beschadigd");
    // What the directory says it does not need may be missing.
    constexpr std::size_t workbook_size = 1024 + 128 + 120;
    Bytes shorter = Bytes(whole).put_u32(workbook_size, 7 * 512).put_u32(56, 1024);
    EXPECT_EQ(shown(Bytes(shorter).cut(whole.size() - 512)), (Shown{"A1=1"}));
    EXPECT_EQ(failure(Bytes(shorter).put_u32(workbook_size, 7 * 512 + 1).cut(whole.size() - 512)), "beschadigd");
    EXPECT_EQ(failure(Bytes(shorter).cut(whole.size() - 1024)), "beschadigd");
}

TEST(XlsContainer, de_tabel_gaat_na_honderdnegen_delen_buiten_de_kop_verder) {
    // The header names no part of the table any more: the one sector of further parts does, at its begin or at its end.
    const Bytes whole = container_of(with_far_value(1));
    const auto further = static_cast<std::uint32_t>(whole.size() / 512 - 1);
    for (const std::size_t place : {0U, 126U}) {
        Bytes file = Bytes(whole).put_u32(76, nothing).put_u32(68, further);
        for (std::size_t i = 0; i < 127; ++i)
            file.u32(i == place ? 0 : nothing);
        EXPECT_EQ(shown(file.u32(end_of_chain)), (Shown{"A1=1"})) << place;
    }
    Bytes at_last = Bytes(whole).put_u32(76, nothing).put_u32(76 + 108 * 4, 0);
    EXPECT_EQ(shown(at_last), (Shown{"A1=1"}));
    EXPECT_EQ(failure(Bytes(whole).put_u32(76, nothing)), "beschadigd");
}

TEST(XlsContainer, de_verdere_delen_van_de_tabel_mogen_over_meer_sectoren_gaan) {
    const Bytes whole = container_of(with_far_value(1));
    const auto further = static_cast<std::uint32_t>(whole.size() / 512 - 1);
    Bytes file = Bytes(whole).put_u32(76, nothing).put_u32(68, further);
    for (std::size_t i = 0; i < 127; ++i)
        file.u32(nothing);
    file.u32(further + 1);
    for (std::size_t i = 0; i < 128; ++i)
        file.u32(i == 0 ? 0 : nothing);
    EXPECT_EQ(shown(file), (Shown{"A1=1"}));
    EXPECT_EQ(shown(Bytes(file).cut(file.size() - 4)), (Shown{"A1=1"})); // without the number of a next one
}

// The workbook has the sectors 2 to 9. After the exchange of two of them its chain goes to and fro.
Bytes with_sectors_exchanged(const Bytes& whole, std::uint32_t left, std::uint32_t right) {
    const auto now_at = [&](std::uint32_t sector) { return sector == left ? right : sector == right ? left : sector; };
    Bytes file = whole;
    for (std::uint32_t sector = 2; sector < 10; ++sector) {
        const std::size_t from = (sector + 1) * std::size_t{512};
        const std::size_t to = (now_at(sector) + 1) * std::size_t{512};
        for (std::size_t i = 0; i < 512; ++i)
            file.put_u8(to + i, byte_at(whole.bytes(), from + i));
        file.put_u32(Container::first_table_place + now_at(sector) * std::size_t{4},
                     sector == 9 ? end_of_chain : now_at(sector + 1));
    }
    return file;
}

TEST(XlsContainer, de_sectoren_van_een_werkmap_mogen_door_elkaar_liggen) {
    const Bytes content = with_far_value(1);
    const Bytes whole = container_of(content);
    std::vector<std::byte> in_order = whole.bytes();
    const auto part = workbook_stream(in_order);
    ASSERT_TRUE(part.has_value());
    EXPECT_EQ(part->data(), in_order.data() + 3 * std::size_t{512}); // no copy is made of it
    EXPECT_EQ(in_order, whole.bytes());
    EXPECT_EQ(part->size(), 4096U);
    const std::vector<std::byte> stream(part->begin(), part->end());
    EXPECT_TRUE(std::ranges::equal(part->first(content.size()), content.bytes()));

    for (const auto& [left, right] : {std::pair(3U, 4U), std::pair(3U, 5U), std::pair(8U, 9U), std::pair(5U, 9U)}) {
        const Bytes file = with_sectors_exchanged(whole, left, right);
        EXPECT_NE(file.bytes(), whole.bytes());
        EXPECT_EQ(shown(file), (Shown{"A1=1"})) << left << ' ' << right;
        std::vector<std::byte> bytes = file.bytes();
        const auto gathered = workbook_stream(bytes);
        ASSERT_TRUE(gathered.has_value());
        EXPECT_TRUE(std::ranges::equal(*gathered, stream)) << left << ' ' << right;
        EXPECT_EQ(gathered->data(), bytes.data());
    }
}

TEST(XlsContainer, een_werkmap_die_niet_begint_laat_het_bestand_zoals_het_is) {
    const Bytes whole = container_of(Bytes().zeros(100));
    std::vector<std::byte> bytes = whole.bytes();
    EXPECT_EQ(workbook_stream(bytes).error(), CompoundFailure::damaged);
    EXPECT_EQ(bytes, whole.bytes());
}

TEST(XlsContainer, een_werkmap_uit_een_stuk_heeft_precies_haar_eigen_bytes) {
    constexpr std::size_t workbook_size = 1024 + 128 + 120;
    for (const std::size_t size : {4096U, 4000U, 3585U, 3584U}) {
        Bytes file = container_of(with_far_value(1));
        file.put_u32(workbook_size, static_cast<std::uint32_t>(size)).put_u32(56, 512).zeros(2048);
        std::vector<std::byte> bytes = file.bytes();
        const auto stream = workbook_stream(bytes);
        ASSERT_TRUE(stream.has_value());
        EXPECT_EQ(stream->size(), size);
    }
    Bytes longer = container_of(with_far_value(1)); // its chain ends before the size that the directory says
    std::vector<std::byte> bytes = longer.put_u32(workbook_size, 9000).zeros(9000).bytes();
    EXPECT_EQ(workbook_stream(bytes)->size(), 4096U);
}

TEST(XlsBegin, is_dat_van_een_container_of_van_een_eerste_record) {
    const Bytes whole = container_of(with_value(1));
    EXPECT_TRUE(begins_as_xls(whole.bytes()));
    for (std::size_t at = 0; at < 8; ++at)
        EXPECT_FALSE(begins_as_xls(Bytes(whole).put_u8(at, 0x55).bytes())) << at;
    for (const unsigned type : {0x0009U, 0x0209U, 0x0409U, 0x0809U})
        for (const unsigned length : {0U, 3U, 4U, 16U, 32U, 33U, 0x104U})
            EXPECT_EQ(begins_as_xls(Bytes().u16(type).u16(length).bytes()), length >= 4 && length <= 32)
                << type << ' ' << length;
    for (const unsigned type : {0x0008U, 0x000AU, 0x0109U, 0x0609U, 0x0A09U})
        EXPECT_FALSE(begins_as_xls(Bytes().u16(type).u16(16).bytes())) << type;
    EXPECT_FALSE(begins_as_xls({}));
}

TEST(XlsContainer, geen_enkele_verminkte_byte_van_kop_tabel_en_inhoudsopgave_brengt_het_lezen_van_streek) {
    const Bytes whole = container_of(with_value(1));
    for (std::size_t at = 8; at < 3 * 512; ++at) {
        for (const unsigned value : {0x00U, 0x01U, 0x7FU, 0xFFU}) {
            const Shown cells = shown(Bytes(whole).put_u8(at, value));
            EXPECT_LE(cells.size(), 1U) << at;
        }
    }
}

} // namespace tavelo
