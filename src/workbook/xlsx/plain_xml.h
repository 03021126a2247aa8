// Cuts XML into tags and texts: as much of XML as the programs use that write workbooks, and therefore several times
// quicker than a parser that knows all of it. What is plain:
//
//     UTF-8; tags and attributes with names of ASCII letters; texts, with the five entities of XML in them.
//
// All the rest is unusual, and every mistake with it: comments, CDATA, processing instructions, document types,
// numbered characters, entities in attributes, carriage returns and ">" in texts, blanks around "=", more than thirty
// attributes. Which elements are open is not known here.
#pragma once

#include "workbook/xlsx/xml_reader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tavelo {

struct XmlToken {
    // partial: the bytes end in the middle of it. empty_tag: "<c/>".
    enum class Kind : std::uint8_t { start_tag, empty_tag, end_tag, text, partial, unusual };
    Kind kind = Kind::partial;
    std::string_view text{}; // the name of a tag, or a piece of a text as it is meant
};

class PlainXml {
  public:
    // `bytes` begin at a tag or a text. Everything that is given is a view on them.
    explicit PlainXml(std::string_view bytes) : bytes_(bytes) {}

    // In front of what is partial or unusual this stays.
    [[nodiscard]] XmlToken next();
    // Of the start tag or empty tag given last.
    [[nodiscard]] std::span<const XmlAttribute> attributes() const { return attributes_; }
    // Of the bytes, behind the token given last.
    [[nodiscard]] std::size_t place() const { return token_begin_; }

  private:
    [[nodiscard]] XmlToken token();
    [[nodiscard]] XmlToken start_tag();
    [[nodiscard]] XmlToken end_tag();
    [[nodiscard]] XmlToken text();
    [[nodiscard]] XmlToken entity();
    [[nodiscard]] bool read_attribute();
    [[nodiscard]] XmlToken not_met() const;
    [[nodiscard]] bool take(char expected);
    [[nodiscard]] std::string_view take_all(unsigned bytes_of_class);
    [[nodiscard]] std::string_view take_name();

    std::string_view bytes_;
    std::size_t token_begin_ = 0;
    std::size_t at_ = 0;
    bool has_high_bytes_ = false; // among those taken last
    std::vector<XmlAttribute> attributes_;
};

// How many bytes stand in front of the root's tag: a byte order mark, an XML declaration in the usual words, white
// space. Nothing when it is something else, in another encoding for instance.
[[nodiscard]] std::optional<std::size_t> plain_prolog(std::string_view bytes);

} // namespace tavelo
