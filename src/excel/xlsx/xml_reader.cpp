#include "excel/xlsx/xml_reader.h"

#include "basis/text.h"
#include "excel/xlsx/package.h"

#include <expat.h>

#include <charconv>
#include <cmath>
#include <memory>
#include <span>
#include <string>
#include <type_traits>

namespace tavelo {

namespace {

constexpr unsigned deepest_level = 200;
// An unfinished tag is scanned again with every chunk, so a tag without an end would take quadratic time.
constexpr XML_Index longest_tag = 1024 * 1024;

std::string_view local_name(std::string_view name) {
    const auto colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

template <class Number>
std::optional<Number> number_in(std::string_view text) {
    text = trim_xml_space(text);
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

struct Reading {
    XML_Parser parser;
    XmlHandler& handler;
    unsigned depth = 0;
    bool refused = false;

    void refuse() {
        refused = true;
        XML_StopParser(parser, XML_FALSE);
    }
};

Reading& reading_of(void* user_data) { return *static_cast<Reading*>(user_data); }

void XMLCALL on_start(void* user_data, const XML_Char* name, const XML_Char** attributes) {
    Reading& reading = reading_of(user_data);
    if (++reading.depth > deepest_level) return reading.refuse();
    reading.handler.element_start(local_name(name), reading.depth, XmlAttributes(attributes));
    if (reading.handler.stopped()) XML_StopParser(reading.parser, XML_FALSE);
}

void XMLCALL on_end(void* user_data, const XML_Char* name) {
    Reading& reading = reading_of(user_data);
    reading.handler.element_end(local_name(name), reading.depth);
    --reading.depth;
    if (reading.handler.stopped()) XML_StopParser(reading.parser, XML_FALSE);
}

void XMLCALL on_text(void* user_data, const XML_Char* text, int length) {
    reading_of(user_data).handler.text(std::string_view(text, static_cast<std::size_t>(length)));
}

void XMLCALL on_doctype(void* user_data, const XML_Char*, const XML_Char*, const XML_Char*, int) {
    reading_of(user_data).refuse();
}

// Encodings that expat does not have of its own. UTF-8, UTF-16 and Latin 1 it has.
int XMLCALL on_unknown_encoding(void*, const XML_Char* name, XML_Encoding* encoding) {
    const std::string lower = lower_case(name);
    if (lower != "windows-1252" && lower != "cp1252") return XML_STATUS_ERROR;
    for (int byte = 0; byte < 256; ++byte) {
        const char one = static_cast<char>(static_cast<unsigned char>(byte));
        encoding->map[byte] = static_cast<int>(code_points(from_windows_1252({&one, 1})).front());
    }
    encoding->data = nullptr;
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}

struct FreeParser {
    void operator()(std::remove_pointer_t<XML_Parser>* parser) const { XML_ParserFree(parser); }
};

} // namespace

std::string_view trim_xml_space(std::string_view text) {
    constexpr std::string_view space = " \t\r\n";
    const auto first = text.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

std::optional<std::string_view> XmlAttributes::find(std::string_view name) const {
    for (const char* const* pair = pairs_; *pair != nullptr; pair += 2) {
        const std::string_view full = pair[0];
        if (!full.ends_with(name)) continue;
        if (full.size() == name.size() || full[full.size() - name.size() - 1] == ':') return pair[1];
    }
    return std::nullopt;
}

std::optional<unsigned> XmlAttributes::number(std::string_view name) const {
    const auto text = find(name);
    return text ? number_in<unsigned>(*text) : std::nullopt;
}

std::optional<double> XmlAttributes::decimal(std::string_view name) const {
    const auto text = find(name);
    const auto value = text ? number_in<double>(*text) : std::nullopt;
    return value && std::isfinite(*value) ? value : std::nullopt;
}

bool XmlAttributes::is_true(std::string_view name) const {
    const auto text = find(name);
    return text && (*text == "1" || *text == "true");
}

std::expected<void, OpenFailure> read_xml(const Package& package, std::string_view part, std::uint64_t limit,
                                          XmlHandler& handler) {
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser> parser(XML_ParserCreate(nullptr));
    if (!parser) return std::unexpected(OpenFailure::unreadable);
    Reading reading{parser.get(), handler};
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), on_start, on_end);
    XML_SetCharacterDataHandler(parser.get(), on_text);
    XML_SetUnknownEncodingHandler(parser.get(), on_unknown_encoding, nullptr);
    XML_SetStartDoctypeDeclHandler(parser.get(), on_doctype);

    XML_Index fed = 0;
    bool well_formed = true;
    const auto unpacked = package.read(part, limit, [&](std::span<const char> chunk) {
        well_formed = XML_Parse(parser.get(), chunk.data(), static_cast<int>(chunk.size()), XML_FALSE) == XML_STATUS_OK;
        fed += static_cast<XML_Index>(chunk.size());
        if (well_formed && fed - XML_GetCurrentByteIndex(parser.get()) > longest_tag) well_formed = false;
        return well_formed;
    });
    if (const auto why = handler.stopped()) return std::unexpected(*why);
    if (!unpacked) return unpacked;
    if (well_formed) well_formed = XML_Parse(parser.get(), nullptr, 0, XML_TRUE) == XML_STATUS_OK;
    if (const auto why = handler.stopped()) return std::unexpected(*why);
    if (!well_formed || reading.refused) return std::unexpected(OpenFailure::damaged);
    return {};
}

} // namespace tavelo
