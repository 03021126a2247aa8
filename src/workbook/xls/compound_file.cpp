#include "workbook/xls/compound_file.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tavelo {

namespace {

constexpr std::uint32_t no_sector =
    0xFFFFFFFA; // from here on the numbers have a meaning of their own (end of chain, free, table)
constexpr std::size_t entry_size = 128;
constexpr std::uint32_t no_entry = 0xFFFFFFFF;

enum class EntryType : std::uint8_t { unused = 0, storage = 1, stream = 2, root = 5 };

struct Entry {
    std::u16string name; // in small letters, as far as ASCII goes
    EntryType type = EntryType::unused;
    std::uint32_t left = no_entry;
    std::uint32_t right = no_entry;
    std::uint32_t child = no_entry;
    std::uint32_t first_sector = no_sector;
    std::uint32_t size = 0; // a workbook of 4 GiB does not exist, so the upper half is not read
};

// The sectors of a chain, in order. Ends where the chain leaves the table or comes back to itself.
std::vector<std::uint32_t> chain_of(std::uint32_t first, const std::vector<std::uint32_t>& table) {
    std::vector<std::uint32_t> chain;
    std::vector<bool> seen(table.size());
    for (std::uint32_t sector = first; sector < table.size() && !seen[sector]; sector = table[sector]) {
        seen[sector] = true;
        chain.push_back(sector);
    }
    return chain;
}

void append(std::vector<std::byte>& target, ByteSpan bytes) { target.insert(target.end(), bytes.begin(), bytes.end()); }

void append_numbers(std::vector<std::uint32_t>& table, ByteSpan bytes) {
    for (std::size_t place = 0; place + 4 <= bytes.size(); place += 4)
        table.push_back(long_at(bytes, place));
}

class CompoundFile {
  public:
    explicit CompoundFile(ByteSpan file) : file_(file) {}

    [[nodiscard]] bool open() {
        const unsigned sector_shift = word_at(file_, 30);
        const unsigned mini_shift = word_at(file_, 32);
        if (sector_shift < 9 || sector_shift > 16 || mini_shift > sector_shift) return false;
        sector_size_ = std::size_t{1} << sector_shift;
        mini_size_ = std::size_t{1} << mini_shift;
        mini_cutoff_ = long_at(file_, 56);
        read_sector_table();
        read_directory();
        return !entries_.empty();
    }

    // Streams with these names, most likely first: those of the root before any other, because a workbook can have
    // workbooks embedded in it, and in each place by the order of the names. A damaged directory may hold them outside
    // the tree, or with a wrong type.
    [[nodiscard]] std::vector<const Entry*> named(std::initializer_list<std::u16string_view> names) const {
        constexpr std::size_t most = 16; // a directory full of the same name must not take all day
        std::vector<const Entry*> found;
        const auto add = [&](const Entry& entry, std::u16string_view name) {
            if (found.size() < most && entry.name == name && entry.type != EntryType::storage &&
                std::ranges::find(found, &entry) == found.end())
                found.push_back(&entry);
        };
        const std::vector<const Entry*> of_root = entries_of_root();
        for (const std::u16string_view name : names) {
            for (const Entry* entry : of_root)
                add(*entry, name);
        }
        for (const std::u16string_view name : names) {
            for (const Entry& entry : entries_)
                add(entry, name);
        }
        return found;
    }

    enum class Sectors { large, small };

    // Where a stream of this size lies.
    [[nodiscard]] Sectors sectors_of(const Entry& entry) const {
        return entry.size < mini_cutoff_ ? Sectors::small : Sectors::large;
    }

    // The part of the file that the stream is; nothing when its sectors do not follow one another.
    [[nodiscard]] std::optional<ByteSpan> in_one_piece(const Entry& entry, Sectors sectors) const {
        if (sectors == Sectors::small) return std::nullopt;
        const auto chain = chain_of(entry.first_sector, sector_table_);
        const auto is_gap = [](std::uint32_t sector, std::uint32_t next) { return next != sector + 1; };
        if (chain.empty() || std::ranges::adjacent_find(chain, is_gap) != chain.end()) return std::nullopt;
        const std::size_t size = std::min<std::size_t>(chain.size() * sector_size_, entry.size);
        return part_of(file_, place_of(chain.front()), size);
    }

    [[nodiscard]] std::vector<std::byte> read(const Entry& entry, Sectors sectors) const {
        std::vector<std::byte> bytes =
            sectors == Sectors::small ? read_mini_chain(entry) : read_chain(entry.first_sector);
        if (bytes.size() > entry.size) bytes.resize(entry.size);
        return bytes;
    }

    // The table knows where the stream goes on, but the file ends before it: it is being saved. That the last sector is
    // not filled up is no reason to doubt.
    [[nodiscard]] bool is_cut_off(const Entry& entry, Sectors sectors) const {
        if (sectors == Sectors::small) return false;
        const auto chain = chain_of(entry.first_sector, sector_table_);
        const std::size_t needed = std::min(chain.size(), (entry.size + sector_size_ - 1) / sector_size_);
        return std::any_of(chain.begin(), chain.begin() + static_cast<std::ptrdiff_t>(needed),
                           [this](std::uint32_t number) { return sector(number).empty(); });
    }

  private:
    [[nodiscard]] std::size_t sector_count() const { return file_.size() / sector_size_ + 1; }

    // The header takes the place of the sector before sector 0.
    [[nodiscard]] std::size_t place_of(std::uint32_t sector) const { return (std::size_t{sector} + 1) * sector_size_; }
    [[nodiscard]] ByteSpan sector(std::uint32_t number) const { return part_of(file_, place_of(number), sector_size_); }

    void read_sector_table() {
        constexpr std::size_t in_header = 109;
        std::vector<std::uint32_t> parts;
        append_numbers(parts, part_of(file_, 76, in_header * 4));

        std::vector<bool> seen(sector_count());
        std::uint32_t more = long_at(file_, 68);
        while (more < seen.size() && !seen[more]) {
            seen[more] = true;
            const ByteSpan bytes = sector(more);
            const std::size_t next = sector_size_ - 4;
            append_numbers(parts, part_of(bytes, 0, next));
            more = bytes.size() == sector_size_ ? long_at(bytes, next) : no_sector;
        }

        // A table never describes more sectors than the file has, so a part that is listed twice cannot make it grow.
        for (const std::uint32_t part : parts) {
            if (sector_table_.size() >= sector_count()) break;
            if (part < no_sector) append_numbers(sector_table_, sector(part));
        }
    }

    void read_directory() {
        const std::vector<std::byte> bytes = read_chain(long_at(file_, 48));
        for (std::size_t place = 0; place + entry_size <= bytes.size(); place += entry_size)
            entries_.push_back(entry_of(part_of(bytes, place, entry_size)));
        if (entries_.empty()) return;
        for (const std::uint32_t number : chain_of(long_at(file_, 60), sector_table_))
            append_numbers(mini_table_, sector(number));
        mini_stream_ = read_chain(root().first_sector);
    }

    static Entry entry_of(ByteSpan bytes) {
        Entry entry;
        constexpr std::size_t name_size = 64; // the length of the name is stored as well, but not reliably
        for (std::size_t place = 0; place < name_size; place += 2) {
            const char16_t unit = word_at(bytes, place);
            if (unit == 0) break;
            entry.name.push_back(unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit);
        }
        entry.type = static_cast<EntryType>(byte_at(bytes, 66));
        entry.left = long_at(bytes, 68);
        entry.right = long_at(bytes, 72);
        entry.child = long_at(bytes, 76);
        entry.first_sector = long_at(bytes, 116);
        entry.size = long_at(bytes, 120);
        return entry;
    }

    [[nodiscard]] const Entry& root() const {
        const auto found = std::ranges::find(entries_, EntryType::root, &Entry::type);
        return found == entries_.end() ? entries_.front() : *found;
    }

    [[nodiscard]] std::vector<const Entry*> entries_of_root() const {
        std::vector<const Entry*> found;
        std::vector<bool> seen(entries_.size());
        std::vector<std::uint32_t> open = {root().child};
        while (!open.empty()) {
            const std::uint32_t number = open.back();
            open.pop_back();
            if (number >= entries_.size() || seen[number]) continue;
            seen[number] = true;
            found.push_back(&entries_[number]);
            open.push_back(entries_[number].left);
            open.push_back(entries_[number].right);
        }
        return found;
    }

    [[nodiscard]] std::vector<std::byte> read_chain(std::uint32_t first) const {
        const std::vector<std::uint32_t> chain = chain_of(first, sector_table_);
        std::vector<std::byte> bytes;
        bytes.reserve(std::min(chain.size() * sector_size_, file_.size()));
        for (const std::uint32_t number : chain)
            append(bytes, sector(number));
        return bytes;
    }

    [[nodiscard]] std::vector<std::byte> read_mini_chain(const Entry& entry) const {
        std::vector<std::byte> bytes;
        for (const std::uint32_t number : chain_of(entry.first_sector, mini_table_))
            append(bytes, part_of(mini_stream_, number * mini_size_, mini_size_));
        return bytes;
    }

    ByteSpan file_;
    std::size_t sector_size_ = 0;
    std::size_t mini_size_ = 0;
    std::size_t mini_cutoff_ = 0;             // streams smaller than this lie in the mini stream
    std::vector<std::uint32_t> sector_table_; // the sector that follows each sector
    std::vector<std::uint32_t> mini_table_;
    std::vector<std::byte> mini_stream_;
    std::vector<Entry> entries_; // the root should be the first
};

bool has_signature(ByteSpan file) {
    constexpr std::array<std::uint8_t, 8> signature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
    return file.size() >= signature.size() &&
           std::ranges::equal(signature, file.first(signature.size()), {}, {}, std::to_integer<std::uint8_t>);
}

} // namespace

std::expected<std::span<std::byte>, CompoundFailure> workbook_stream(std::vector<std::byte>& file) {
    if (!has_signature(file)) return std::unexpected(CompoundFailure::not_compound);
    CompoundFile compound(file);
    if (!compound.open()) return std::unexpected(CompoundFailure::damaged);
    const std::vector<const Entry*> candidates = compound.named({u"workbook", u"book"});
    for (const Entry* entry : candidates) {
        const auto usual = compound.sectors_of(*entry);
        const auto other =
            usual == CompoundFile::Sectors::small ? CompoundFile::Sectors::large : CompoundFile::Sectors::small;
        for (const auto sectors : {usual, other}) {
            const auto piece = compound.in_one_piece(*entry, sectors);
            std::vector<std::byte> gathered = piece ? std::vector<std::byte>() : compound.read(*entry, sectors);
            if (!is_bof(word_at(piece ? *piece : gathered, 0))) continue;
            if (compound.is_cut_off(*entry, sectors)) return std::unexpected(CompoundFailure::damaged);
            if (piece)
                return std::span(file).subspan(static_cast<std::size_t>(piece->data() - file.data()), piece->size());
            file = std::move(gathered);
            return file;
        }
    }
    if (!candidates.empty()) return std::unexpected(CompoundFailure::damaged);
    if (!compound.named({u"encryptedpackage"}).empty()) return std::unexpected(CompoundFailure::encrypted_package);
    return std::unexpected(CompoundFailure::no_workbook);
}

std::vector<std::byte> stream_named(ByteSpan file, std::u16string_view name) {
    if (!has_signature(file)) return {};
    CompoundFile compound(file);
    if (!compound.open()) return {};
    const std::vector<const Entry*> candidates = compound.named({name});
    if (candidates.empty()) return {};
    return compound.read(*candidates.front(), compound.sectors_of(*candidates.front()));
}

} // namespace tavelo
