// The texts of a workbook, one behind the other in one piece of memory: a text of two letters takes six bytes, so that
// a workbook of millions of them takes no more memory than its file made plausible.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// Excel's own limit of a cell, in UTF-16 units. What a file stores beyond it is neither kept nor shown.
inline constexpr std::size_t longest_text = 32767;
// A text of more bytes in UTF-8 is longer than that.
inline constexpr std::size_t longest_text_bytes = 3 * longest_text;

// The first longest_text units of a UTF-8 text; no character is cut in two.
[[nodiscard]] std::string_view cut_long_text(std::string_view text);
[[nodiscard]] inline std::string_view cut_to_longest(std::string_view text) {
    return text.size() <= longest_text ? text : cut_long_text(text); // nearly every text is short, whatever its letters
}

// A workbook with more texts than this, or more bytes of them, is refused as too large.
inline constexpr std::size_t most_texts = std::size_t{1} << 23;
inline constexpr std::size_t most_text_bytes = std::size_t{256} * 1024 * 1024;

class TextTable {
  public:
    [[nodiscard]] std::size_t size() const { return ends_.size(); }
    // UTF-8, "" beyond the last. Holds until the next text is added.
    [[nodiscard]] std::string_view operator[](std::size_t index) const {
        if (index >= ends_.size()) return {};
        const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
        return std::string_view(bytes_).substr(begin, ends_[index] - begin);
    }
    // Adds the text, cut to the longest, and gives its index; nothing when the table is full.
    [[nodiscard]] std::optional<std::uint32_t> add(std::string_view text);
    void clear();

  private:
    std::string bytes_;
    std::vector<std::uint32_t> ends_; // of each text in bytes_
};

} // namespace tavelo
