// The text of an INI file of which only the values that are set change: comments, unknown sections and lines that make
// no sense stay as they stand. UTF-8; names are compared exactly.
//
// A plain value stands as it is, with the backslashes and quotes inside it. One that begins with a quote, begins or
// ends with a blank or holds a control character is written between quotes, with \" \\ \n \r \t and \xHH inside.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tavelo {

class IniText {
  public:
    explicit IniText(std::string text) : text_(std::move(text)) {}

    // Nothing when section or key is absent. Of a key that stands more than once the last counts.
    [[nodiscard]] std::optional<std::string> get(std::string_view section, std::string_view key) const;
    // A value that changes nothing leaves every byte as it is.
    void set(std::string_view section, std::string_view key, std::string_view value);

    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::string text_; // read through at every question: no more memory than the file has bytes
};

} // namespace tavelo
