// The text of an INI file of which only the values that are set change: comments, unknown sections and lines that make
// no sense stay as they stand. UTF-8; names are compared exactly.
//
// A plain value stands as it is, with the backslashes and quotes inside it. One that begins with a quote, begins or
// ends with a blank or holds a control character is written between quotes, with \" \\ \n \r \t and \xHH inside.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

class IniText {
  public:
    explicit IniText(std::string_view text);

    // Nothing when section or key is absent. Of a key that stands more than once the last counts.
    [[nodiscard]] std::optional<std::string> get(std::string_view section, std::string_view key) const;
    void set(std::string_view section, std::string_view key, std::string_view value);

    [[nodiscard]] std::string text() const;

  private:
    struct Line {
        std::string raw; // without its line end
        bool carriage_return = false;
        bool is_value = false;
        std::string section; // in which it stands
        bool has_section = false;
        std::string key;
        std::string value;
    };

    void append_parsed(std::string_view raw);
    [[nodiscard]] const Line* find(std::string_view section, std::string_view key) const;

    std::vector<Line> lines_;
};

} // namespace tavelo
