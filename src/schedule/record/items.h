// Records are tab-separated lists of "key:value" items.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

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

// A record cut into its items once, to look several keys up; `waarde` answers as `zoek_waarde` does for a key without
// ":" or tab. Views on the record, which must outlive it.
class RecordItems {
  public:
    RecordItems(std::string_view record); // implicit: a record's text stands for its items
    [[nodiscard]] std::string_view waarde(std::string_view sleutel) const;
    [[nodiscard]] bool staat_aan(std::string_view sleutel) const { return waarde(sleutel) == "1"; }

  private:
    static constexpr std::size_t meeste_items =
        64; // more than the suite writes; what follows is searched where it stands
    static constexpr std::size_t aantal_vakken = 128; // twice as many, so that most keys are found at once
    // Where the search for an item with that key starts; the first four letters decide.
    [[nodiscard]] static std::size_t eerste_vak(std::string_view item);

    std::array<std::string_view, meeste_items> items_;
    std::size_t aantal_ = 0;
    std::array<std::uint8_t, aantal_vakken> vakken_{}; // number of an item from 1; 0 is free
    std::string_view rest_;
};

// The record with the value of every item of that key replaced, or the items dropped when `waarde` is blank. Without
// such an item a value that is not empty is added at the end. Items come out trimmed, joined by single tabs; one
// leading and one trailing tab of the result is taken off.
[[nodiscard]] std::string zet_waarde(std::string_view sleutel, std::string_view record, std::string_view waarde);

// A star-separated list for display: "*L*M*" becomes "L, M".
[[nodiscard]] std::string klasse_tekst(std::string_view tekst);

// The code of a ring type ("rcom"): "D" dressage, "S" show jumping, "MD" driving dressage, "MV" driving skills,
// "AD" team dressage, "" none.
[[nodiscard]] std::string_view discipline_code(std::int16_t ringtype);

// The four groups of disciplines that a combination has keys for; team dressage counts as dressage everywhere.
enum class Discipline : std::uint8_t { geen, dressuur, springen, mennen_dressuur, mennen_vaardigheid };
[[nodiscard]] Discipline discipline_van(std::int16_t ringtype);

} // namespace tavelo
