// What a workbook that is something else shows, in short.
#pragma once

#include "workbook/workbook.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavelo::test {

inline std::vector<std::byte> bytes_of(std::string_view text) {
    const auto* const begin = reinterpret_cast<const std::byte*>(text.data());
    return {begin, begin + text.size()};
}

// The sheet as CSV with LF, or the sentence of the failure.
inline std::string csv_of(std::vector<std::byte> bytes, std::size_t sheet = 1, std::string_view land = "nl-NL") {
    auto book = open_workbook(std::move(bytes));
    if (!book) return std::string(sentence_of(book.error()));
    auto csv = blad_als_csv(**book, sheet, locale_named(land));
    if (!csv) return std::string(sentence_of(csv.error()));
    std::erase(*csv, '\r');
    return *csv;
}

inline std::string csv_of(std::string_view text, std::size_t sheet = 1, std::string_view land = "nl-NL") {
    return csv_of(bytes_of(text), sheet, land);
}

inline const std::string no_workbook{sentence_of(OpenFailure::not_a_workbook)};
inline const std::string damaged{sentence_of(OpenFailure::damaged)};

} // namespace tavelo::test
