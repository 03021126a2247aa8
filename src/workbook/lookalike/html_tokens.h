// Cuts a page into its tags and the text between them, as forgiving as a browser is: nothing is an error.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

struct HtmlToken {
    enum class Kind : std::uint8_t { text, start_tag, end_tag };
    Kind kind = Kind::text;
    std::string name;         // of a tag, in small letters
    std::string_view content; // text: as it stands there; start tag: its attributes
    // The number in this attribute of a start tag; 1 without one.
    [[nodiscard]] unsigned number(std::string_view attribute) const;
};

// Comments, declarations and processing instructions are passed over, and so is what stands in <script> and <style>.
// `page` is UTF-8 and outlives this. Linear in the page, whatever it holds.
class HtmlTokens {
  public:
    explicit HtmlTokens(std::string_view page) : rest_(page) {}
    // False at the end of the page; the token is only valid until the next one is read.
    [[nodiscard]] bool next(HtmlToken& token);

  private:
    void read_tag(HtmlToken& token);
    void skip_comment();
    void skip_behind(std::string_view end);
    void skip_raw_text(std::string_view element);
    [[nodiscard]] std::size_t end_of_attributes();

    std::string_view rest_;
    bool no_double_quote_left_ = false;
    bool no_single_quote_left_ = false;
};

// Adds `text` with its character references resolved: &amp; &eacute; &#8364; &#x20AC;, with or without the semicolon.
// What is no reference stays as it is. The numbers 128 to 159 mean the characters of Windows-1252.
void append_resolved(std::string& out, std::string_view text);

} // namespace tavelo
