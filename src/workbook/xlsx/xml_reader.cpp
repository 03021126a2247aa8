#include "workbook/xlsx/xml_reader.h"

#include "basis/text.h"
#include "workbook/xlsx/package.h"

#include <expat.h>

#include <charconv>
#include <cmath>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <type_traits>

namespace tavelo {

namespace {

constexpr unsigned deepest_level = 200;
// An unfinished tag is scanned again with every chunk, so a tag without an end would take quadratic time.
constexpr XML_Index longest_tag = 1024 * 1024;

template <class Number>
std::optional<Number> number_in(std::string_view text) {
    text = trim_xml_space(text);
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

struct FreeParser {
    void operator()(std::remove_pointer_t<XML_Parser>* parser) const { XML_ParserFree(parser); }
};

// One part on its way through expat.
class Reading {
  public:
    explicit Reading(XmlHandler& handler);

    // False when the reading has ended, for whatever reason.
    bool feed(std::span<const char> chunk);
    std::expected<void, OpenFailure> finish();

    void start(const XML_Char* name, const XML_Char** attributes);
    void end(const XML_Char* name);
    void text(std::string_view piece);
    void refuse();

  private:
    // No exception may cross expat, which is C.
    template <class Step>
    void hand_on(Step step) {
        if (out_of_memory_) return; // it may still call when it was told to stop
        try {
            step();
        } catch (const std::bad_alloc&) {
            out_of_memory_ = true;
        }
        if (out_of_memory_) refuse();
    }

    std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser> parser_;
    XmlHandler& handler_;
    XML_Index fed_ = 0;
    unsigned depth_ = 0;
    bool well_formed_ = true;
    bool out_of_memory_ = false;
};

Reading& reading_of(void* user_data) { return *static_cast<Reading*>(user_data); }

void XMLCALL on_start(void* user_data, const XML_Char* name, const XML_Char** attributes) {
    reading_of(user_data).start(name, attributes);
}

void XMLCALL on_end(void* user_data, const XML_Char* name) { reading_of(user_data).end(name); }

void XMLCALL on_text(void* user_data, const XML_Char* text, int length) {
    reading_of(user_data).text(std::string_view(text, static_cast<std::size_t>(length)));
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

Reading::Reading(XmlHandler& handler) : parser_(XML_ParserCreate(nullptr)), handler_(handler) {
    if (!parser_) return;
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), on_start, on_end);
    XML_SetCharacterDataHandler(parser_.get(), on_text);
    XML_SetUnknownEncodingHandler(parser_.get(), on_unknown_encoding, nullptr);
    XML_SetStartDoctypeDeclHandler(parser_.get(), on_doctype);
}

bool Reading::feed(std::span<const char> chunk) {
    if (!parser_ || !well_formed_) return false;
    well_formed_ = XML_Parse(parser_.get(), chunk.data(), static_cast<int>(chunk.size()), XML_FALSE) == XML_STATUS_OK;
    fed_ += static_cast<XML_Index>(chunk.size());
    if (well_formed_ && fed_ - XML_GetCurrentByteIndex(parser_.get()) > longest_tag) well_formed_ = false;
    return well_formed_;
}

std::expected<void, OpenFailure> Reading::finish() {
    if (!parser_) return std::unexpected(OpenFailure::no_memory);
    if (well_formed_) well_formed_ = XML_Parse(parser_.get(), nullptr, 0, XML_TRUE) == XML_STATUS_OK;
    if (out_of_memory_ || XML_GetErrorCode(parser_.get()) == XML_ERROR_NO_MEMORY)
        return std::unexpected(OpenFailure::no_memory);
    if (const auto why = handler_.stopped()) return std::unexpected(*why);
    if (!well_formed_) return std::unexpected(OpenFailure::damaged);
    return {};
}

void Reading::start(const XML_Char* name, const XML_Char** attributes) {
    if (++depth_ > deepest_level) return refuse();
    hand_on([&] { handler_.element_start(local_name(name), depth_, XmlAttributes(attributes)); });
    if (handler_.stopped()) refuse();
}

void Reading::end(const XML_Char* name) {
    hand_on([&] { handler_.element_end(local_name(name), depth_--); });
    if (handler_.stopped()) refuse();
}

void Reading::text(std::string_view piece) {
    hand_on([&] { handler_.text(piece); });
}

// expat then answers an error to whoever fed it.
void Reading::refuse() { XML_StopParser(parser_.get(), XML_FALSE); }

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
    Reading reading(handler);
    const auto unpacked = package.read(part, limit, [&](std::span<const char> chunk) { return reading.feed(chunk); });
    if (!unpacked) return unpacked;
    return reading.finish();
}

std::expected<void, OpenFailure> read_xml(std::string_view text, XmlHandler& handler) {
    Reading reading(handler);
    constexpr std::size_t step = 64 * 1024;
    for (std::size_t place = 0; place < text.size() && reading.feed(text.substr(place, step)); place += step) {
    }
    return reading.finish();
}

} // namespace tavelo
