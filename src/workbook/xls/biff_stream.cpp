#include "workbook/xls/biff_stream.h"

#include "basis/text.h"
#include "workbook/xls/code_page.h"

#include <algorithm>

namespace tavelo {

namespace {

// Bits of the flags in front of the characters of a BIFF8 string.
constexpr unsigned wide_flag = 0x01;
constexpr unsigned phonetic_flag = 0x04;
constexpr unsigned rich_flag = 0x08;
constexpr std::size_t formatting_run_size = 4;

} // namespace

std::uint64_t number_of_last(ByteSpan bytes, std::size_t place) {
    std::uint64_t number = 0;
    for (std::size_t at = bytes.size(); at-- > place;)
        number = number << 8U | std::to_integer<std::uint8_t>(bytes[at]);
    return number;
}

Biff version_of_bof(const BiffRecord& bof) {
    constexpr unsigned biff8_number = 0x0600;
    switch (bof.type) {
    case biff::bof_2:
        return Biff::biff2;
    case biff::bof_3:
        return Biff::biff3;
    case biff::bof_4:
        return Biff::biff4;
    default:
        return word_at(bof.data, 0) == biff8_number ? Biff::biff8 : Biff::biff5;
    }
}

SubstreamKind kind_of_bof(const BiffRecord& bof) { return static_cast<SubstreamKind>(word_at(bof.data, 2)); }

std::optional<BiffRecord> BiffCursor::next_if(std::uint16_t type) {
    const std::size_t before = place_;
    const auto record = next();
    if (record && record->type == type) return record;
    place_ = before;
    return std::nullopt;
}

bool BiffText::next_record() {
    while (data_.empty()) {
        const auto more = cursor_.next_if(biff::continued);
        if (!more) return false;
        data_ = more->data;
    }
    return true;
}

void BiffText::skip(std::size_t count) {
    while (count > 0 && next_part()) {
        const std::size_t here = std::min(count, data_.size());
        data_ = data_.subspan(here);
        count -= here;
    }
}

std::string_view BiffText::string(std::size_t length, TextEncoding encoding) {
    return encoding.version == Biff::biff8 ? unicode_string(length) : byte_string(length, encoding.code_page);
}

std::string_view BiffText::unicode_string(std::size_t length) {
    const unsigned flags = byte();
    const std::size_t runs = (flags & rich_flag) != 0 ? word() : 0;
    const std::size_t phonetic = (flags & phonetic_flag) != 0 ? long_word() : 0;

    const bool is_narrow = (flags & wide_flag) == 0;
    const std::string_view text =
        is_narrow && length <= data_.size() ? narrow_string(length) : characters(length, flags);
    skip(runs * formatting_run_size);
    skip(phonetic);
    return text;
}

// What nearly every string is: in one record, of one byte for each character.
std::string_view BiffText::narrow_string(std::size_t length) {
    const std::string_view bytes(reinterpret_cast<const char*>(data_.data()), length);
    data_ = data_.subspan(length);
    return view_of_windows_1252(bytes, made_); // see character_of_byte
}

std::string_view BiffText::characters(std::size_t length, unsigned flags) {
    std::u16string text;
    while (length > 0) {
        if (data_.empty()) {
            if (!next_part()) break;
            flags = byte(); // characters that go on in a CONTINUE record repeat the flags: the width may change there
            continue;
        }
        const std::size_t unit_size = (flags & wide_flag) != 0 ? 2 : 1;
        const std::size_t here = std::min(length, (data_.size() + unit_size - 1) / unit_size);
        for (std::size_t i = 0; i < here; ++i)
            text.push_back(unit_size == 2 ? word_at(data_, 2 * i) : character_of_byte(byte_at(data_, i)));
        data_ = part_of(data_, here * unit_size);
        length -= here;
    }
    return made_ = utf8_of(text);
}

std::string_view BiffText::byte_string(std::size_t length, unsigned code_page) {
    std::string text;
    while (length > 0 && next_part()) {
        const ByteSpan here = part_of(data_, 0, length);
        for (const std::byte value : here)
            text.push_back(static_cast<char>(value));
        data_ = data_.subspan(here.size());
        length -= here.size();
    }
    return made_ = utf8_of(text, code_page);
}

} // namespace tavelo
