// The words of column headers in the language of the headers.
#pragma once

#include <string>
#include <string_view>

namespace tavelo {

// The word that `taal` uses for a Dutch header word: "EN" English, "KWPN" the headers of a studbook's start lists, in
// any case; any other language is Dutch and leaves the word as it is, like a word that is not in the tables. A first
// letter in upper case stays so. Nothing in this program chooses another language than Dutch.
[[nodiscard]] std::string vertaal(std::string_view woord, std::string_view taal = "");

} // namespace tavelo
