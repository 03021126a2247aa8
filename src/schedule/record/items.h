// Records are tab-separated lists of "key:value" items.
#pragma once

#include "basis/byte_mask.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavelo {

// The text before the first ":", trimmed and in lower case; "" when there is no ":".
[[nodiscard]] std::string sleutel_van(std::string_view item);
// The text after the first ":", trimmed; "" when there is no ":".
[[nodiscard]] std::string_view waarde_van(std::string_view item);

// Whether an item is of exactly that key, as it is written.
[[nodiscard]] inline bool is_item_van(std::string_view item, std::string_view sleutel) {
    return item.size() > sleutel.size() && item[sleutel.size()] == ':' && item.starts_with(sleutel);
}

// The value of the first item whose key is exactly `sleutel`, up to the next tab, not trimmed; "" when there is none.
[[nodiscard]] std::string_view zoek_waarde(std::string_view sleutel, std::string_view record);

// A list of keys, at most some hundreds, ready to find all of them in one pass over a record. A key that is empty,
// longer than seven bytes, or holds a ":" or a tab, is never found.
class Sleutels {
  public:
    explicit Sleutels(std::span<const std::string_view> sleutels);

    // For every key, in the order of the list, what `zoek_waarde` answers for it. The values are views on the record.
    void zoek(std::string_view record, std::span<std::string_view> waarden) const;

    // Gives every item of the record: to `bekend` the number of its key in the list and its value when that key is
    // exactly one of the list, to `onbekend` the whole item otherwise.
    template <class Bekend, class Onbekend>
    void doorloop(std::string_view record, Bekend bekend, Onbekend onbekend) const;

  private:
    // A key and its ":" are compared at once with the first eight bytes of an item; two letters say where to look.
    struct Vak {
        std::uint64_t masker = 0; // of the bytes to compare; 0 is a free place
        std::uint64_t begin = 0;  // what they are
        std::uint32_t nummer = 0;
        std::uint32_t lengte = 0;
    };
    static constexpr unsigned bits_van_vak = 9; // many more places than keys: most other items meet a free one
    static constexpr std::size_t aantal_vakken = std::size_t{1} << bits_van_vak;
    [[nodiscard]] static std::uint64_t eerste_acht(const char* van, const char* tot); // zeros behind the end
    [[nodiscard]] static std::size_t eerste_vak(std::uint64_t begin);
    [[nodiscard]] static std::size_t volgend_vak(std::size_t vak) { return (vak + 1) % aantal_vakken; }

    std::vector<Vak> vakken_ = std::vector<Vak>(aantal_vakken);
};

// The record with the value of every item of that key replaced, or the items dropped when `waarde` is blank. Without
// such an item a value that is not empty is added at the end. Items come out trimmed, joined by single tabs; one
// leading and one trailing tab of the result is taken off.
[[nodiscard]] std::string zet_waarde(std::string_view sleutel, std::string_view record, std::string_view waarde);

// Whether that record would be the same as it is.
[[nodiscard]] bool heeft_waarde_al(std::string_view sleutel, std::string_view record, std::string_view waarde);

// A star-separated list for display: "*L*M*" becomes "L, M".
[[nodiscard]] std::string klasse_tekst(std::string_view tekst);

// The code of a ring type ("rcom"): "D" dressage, "S" show jumping, "MD" driving dressage, "MV" driving skills,
// "AD" team dressage, "" none.
[[nodiscard]] std::string_view discipline_code(std::int16_t ringtype);

// The four groups of disciplines that a combination has keys for; team dressage counts as dressage everywhere.
enum class Discipline : std::uint8_t { geen, dressuur, springen, mennen_dressuur, mennen_vaardigheid };
[[nodiscard]] Discipline discipline_van(std::int16_t ringtype);

inline std::uint64_t Sleutels::eerste_acht(const char* van, const char* tot) {
    static_assert(std::endian::native == std::endian::little, "the first letter is the lowest byte");
    std::uint64_t bytes = 0;
    if (tot - van >= 8) [[likely]]
        std::memcpy(&bytes, van, sizeof bytes);
    else
        for (int i = 0; i < tot - van; ++i)
            bytes |= std::uint64_t{static_cast<unsigned char>(van[i])} << 8 * i;
    return bytes;
}

inline std::size_t Sleutels::eerste_vak(std::uint64_t begin) {
    constexpr std::uint64_t menger = 0x9E3779B97F4A7C15; // spreads two letters over the highest bits
    return static_cast<std::size_t>(((begin & 0xFFFF) * menger) >> (64 - bits_van_vak));
}

template <class Bekend, class Onbekend>
void Sleutels::doorloop(std::string_view record, Bekend bekend, Onbekend onbekend) const {
    const Vak* const vakken = vakken_.data();
    const char* const einde = record.data() + record.size();
    const char* van = record.data();
    const auto neem_tot = [&](const char* tot) __attribute__((always_inline)) {
        const std::uint64_t begin = eerste_acht(van, einde);
        const std::string_view item(std::exchange(van, tot + 1), tot);
        for (std::size_t vak = eerste_vak(begin); vakken[vak].masker != 0; vak = volgend_vak(vak)) {
            const Vak& hier = vakken[vak];
            if ((begin & hier.masker) != hier.begin) continue;
            return bekend(hier.nummer, item.substr(hier.lengte + 1));
        }
        onbekend(item);
    };
    for_each_place(record, EqualTo{'\t'}, [&](std::size_t tab) { neem_tot(record.data() + tab); });
    neem_tot(einde);
}

} // namespace tavelo
