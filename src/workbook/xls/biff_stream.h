// The bytes of an .xls workbook as records: a 16-bit type, a 16-bit length, the data. All numbers are little-endian.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tavelo {

using ByteSpan = std::span<const std::byte>;

// At most `count` bytes from `place`, fewer at the end.
[[nodiscard]] inline ByteSpan part_of(ByteSpan bytes, std::size_t place, std::size_t count = std::dynamic_extent) {
    const ByteSpan rest = bytes.subspan(std::min(place, bytes.size()));
    return rest.first(std::min(count, rest.size()));
}

// The number of the bytes from `place` to the end, eight at most.
[[nodiscard]] std::uint64_t number_of_last(ByteSpan bytes, std::size_t place);

// The number at a place in the bytes; what lies beyond the end counts as zero.
template <class Unsigned>
[[nodiscard]] Unsigned number_at(ByteSpan bytes, std::size_t place) {
    static_assert(std::endian::native == std::endian::little);
    if (place >= bytes.size() || bytes.size() - place < sizeof(Unsigned))
        return static_cast<Unsigned>(number_of_last(bytes, place));
    Unsigned number = 0;
    std::memcpy(&number, bytes.data() + place, sizeof number);
    return number;
}
[[nodiscard]] inline std::uint8_t byte_at(ByteSpan bytes, std::size_t place) {
    return number_at<std::uint8_t>(bytes, place);
}
[[nodiscard]] inline std::uint16_t word_at(ByteSpan bytes, std::size_t place) {
    return number_at<std::uint16_t>(bytes, place);
}
[[nodiscard]] inline std::uint32_t long_at(ByteSpan bytes, std::size_t place) {
    return number_at<std::uint32_t>(bytes, place);
}
[[nodiscard]] inline double double_at(ByteSpan bytes, std::size_t place) {
    return std::bit_cast<double>(number_at<std::uint64_t>(bytes, place));
}

enum class Biff : std::uint8_t { biff2, biff3, biff4, biff5, biff8 }; // BIFF5 also stands for BIFF7

// How a workbook stores its texts: BIFF8 in Unicode, older versions in a code page.
struct TextEncoding {
    Biff version = Biff::biff8;
    unsigned code_page = 1252;
};

// Record types. Where versions before BIFF5 use another number for the same record, that number has the version in its
// name.
namespace biff {
constexpr std::uint16_t blank_2 = 0x0001, integer_2 = 0x0002, number_2 = 0x0003, label_2 = 0x0004, boolerr_2 = 0x0005;
constexpr std::uint16_t formula = 0x0006, string_2 = 0x0007, bof_2 = 0x0009, eof = 0x000A;
constexpr std::uint16_t format_2 = 0x001E, datemode = 0x0022, colwidth_2 = 0x0024, filepass = 0x002F, font = 0x0031;
constexpr std::uint16_t continued = 0x003C, codepage = 0x0042, xf_2 = 0x0043, defcolwidth = 0x0055, colinfo = 0x007D;
constexpr std::uint16_t wsbool = 0x0081, boundsheet = 0x0085, bundleheader = 0x008F, standardwidth = 0x0099;
constexpr std::uint16_t mulrk = 0x00BD, mulblank = 0x00BE, rstring = 0x00D6, xf = 0x00E0, sst = 0x00FC,
                        labelsst = 0x00FD;
constexpr std::uint16_t dimensions = 0x0200, blank = 0x0201, number = 0x0203, label = 0x0204, boolerr = 0x0205;
constexpr std::uint16_t formula_3 = 0x0206, string = 0x0207, row = 0x0208, bof_3 = 0x0209, font_3 = 0x0231,
                        xf_3 = 0x0243;
constexpr std::uint16_t rk = 0x027E, style = 0x0293, formula_4 = 0x0406, bof_4 = 0x0409, format = 0x041E, xf_4 = 0x0443;
constexpr std::uint16_t bof = 0x0809;
} // namespace biff

[[nodiscard]] constexpr bool is_bof(std::uint16_t type) {
    return type == biff::bof_2 || type == biff::bof_3 || type == biff::bof_4 || type == biff::bof;
}

// What a substream (the globals, a sheet) holds; the numbers are those of its BOF record.
enum class SubstreamKind : std::uint16_t {
    globals = 0x05,
    modules = 0x06,
    sheet = 0x10,
    chart = 0x20,
    macro = 0x40,
    book_4 = 0x100
};

struct BiffRecord {
    std::uint16_t type = 0;
    ByteSpan data;
};

[[nodiscard]] Biff version_of_bof(const BiffRecord& bof);
[[nodiscard]] SubstreamKind kind_of_bof(const BiffRecord& bof);

// Walks over the records. A last record that is cut off gives the bytes that are there.
class BiffCursor {
  public:
    explicit BiffCursor(ByteSpan stream, std::size_t place = 0) : stream_(stream), place_(place) {}
    [[nodiscard]] std::optional<BiffRecord> next() {
        constexpr std::size_t header_size = 4;
        if (bytes_left() < header_size) return std::nullopt;
        const std::uint32_t header = long_at(stream_, place_);
        place_ += header_size;
        const BiffRecord record{.type = static_cast<std::uint16_t>(header),
                                .data = stream_.subspan(place_, std::min<std::size_t>(header >> 16, bytes_left()))};
        place_ += record.data.size();
        return record;
    }
    // The next record when it has this type; otherwise nothing, and the cursor stays.
    [[nodiscard]] std::optional<BiffRecord> next_if(std::uint16_t type);
    // Where the next record begins.
    [[nodiscard]] std::size_t place() const { return place_; }
    // Up to the end of the stream.
    [[nodiscard]] std::size_t bytes_left() const { return stream_.size() - std::min(place_, stream_.size()); }

  private:
    ByteSpan stream_;
    std::size_t place_;
};

// The data of one record and of the CONTINUE records behind it, read as one run. Beyond the end everything is zero.
class BiffText {
  public:
    // `cursor` stands behind the record; it moves over each CONTINUE record that is read.
    BiffText(BiffCursor& cursor, ByteSpan data) : cursor_(cursor), data_(data) {}

    [[nodiscard]] bool at_end() { return !next_part(); }
    [[nodiscard]] std::uint8_t byte() { return number<std::uint8_t>(); }
    [[nodiscard]] std::uint16_t word() { return number<std::uint16_t>(); }
    [[nodiscard]] std::uint32_t long_word() { return number<std::uint32_t>(); }
    void skip(std::size_t count);

    // A string behind its length, in UTF-8. Formatting runs and the phonetic block of BIFF8 are skipped; a string that
    // is cut off gives the characters that are there. The view holds until the next string.
    [[nodiscard]] std::string_view string(std::size_t length, TextEncoding encoding);

  private:
    [[nodiscard]] bool next_part() { return !data_.empty() || next_record(); }
    [[nodiscard]] bool next_record();
    template <class Unsigned>
    [[nodiscard]] Unsigned number();
    [[nodiscard]] std::string_view unicode_string(std::size_t length);
    [[nodiscard]] std::string_view narrow_string(std::size_t length);
    [[nodiscard]] std::string_view characters(std::size_t length, unsigned flags);
    [[nodiscard]] std::string_view byte_string(std::size_t length, unsigned code_page);

    BiffCursor& cursor_;
    ByteSpan data_;    // what is left of the current record
    std::string made_; // the string, where it does not stand in the record as it is
};

template <class Unsigned>
Unsigned BiffText::number() {
    Unsigned value = 0;
    if (data_.size() >= sizeof value) {
        value = number_at<Unsigned>(data_, 0);
        data_ = data_.subspan(sizeof value);
        return value;
    }
    for (std::size_t i = 0; i < sizeof value && next_part(); ++i) {
        value = static_cast<Unsigned>(value | static_cast<std::uint32_t>(byte_at(data_, 0)) << 8 * i);
        data_ = data_.subspan(1);
    }
    return value;
}

} // namespace tavelo
