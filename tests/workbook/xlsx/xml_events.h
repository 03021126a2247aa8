// What a handler hears of a part, as one text, so that two ways of reading can be compared.
#pragma once

#include "workbook/xlsx/plain_xml.h"
#include "workbook/xlsx/xml_reader.h"

#include <string>
#include <string_view>

namespace tavelo::test {

class XmlRecorder : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        heard += "\n" + std::to_string(depth) + "<" + std::string(name);
        attributes.each([&](std::string_view attribute, std::string_view value) {
            heard.append(" ").append(attribute).append("=[").append(value).append("]");
        });
        heard += "\n";
    }
    void element_end(std::string_view name, unsigned depth) override {
        heard += "\n" + std::to_string(depth) + ">" + std::string(name) + "\n";
    }
    // The pieces joined: where a text is cut is nobody's business.
    void text(std::string_view piece) override { heard += piece; }

    std::string heard;
};

// "damaged" when the part is refused.
[[nodiscard]] inline std::string heard_of(std::string_view part) {
    XmlRecorder recorder;
    return read_xml(part, recorder) ? recorder.heard : "damaged";
}

// The same part with a comment in front of its root, which makes it unusual from there on: expat reads it all. A part
// that is unusual from its first byte on stays as it is.
[[nodiscard]] inline std::string made_unusual(std::string_view part) {
    std::string changed(part);
    if (const auto prolog = plain_prolog(part)) changed.insert(*prolog, "<!---->");
    return changed;
}

} // namespace tavelo::test
