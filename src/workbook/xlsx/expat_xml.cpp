#include "workbook/xlsx/expat_xml.h"

#include "basis/text.h"

#include <expat.h>

#include <new>
#include <string>

namespace tavelo {

namespace {

constexpr unsigned deepest_level = 200;
// An unfinished tag is scanned again with every chunk, so a tag without an end would take quadratic time.
constexpr XML_Index longest_tag = 1024 * 1024;

ExpatXml& reading_of(void* user_data) { return *static_cast<ExpatXml*>(user_data); }

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

} // namespace

bool XmlDelivery::start(std::string_view name, std::span<const XmlAttribute> attributes) {
    if (++depth_ > deepest_level) return false;
    handler_.element_start(local_name(name), depth_, XmlAttributes(attributes));
    return !handler_.stopped();
}

bool XmlDelivery::end(std::string_view name) {
    handler_.element_end(local_name(name), depth_--);
    return !handler_.stopped();
}

void ExpatXml::FreeParser::operator()(XML_ParserStruct* parser) const { XML_ParserFree(parser); }

ExpatXml::ExpatXml(XmlDelivery& delivery, std::string_view opened)
    : parser_(XML_ParserCreate(nullptr)), delivery_(delivery) {
    if (!parser_ || !parse(opened, XML_FALSE)) throw std::bad_alloc();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), on_start, on_end);
    XML_SetCharacterDataHandler(parser_.get(), on_text);
    XML_SetUnknownEncodingHandler(parser_.get(), on_unknown_encoding, nullptr);
    XML_SetStartDoctypeDeclHandler(parser_.get(), on_doctype);
}

ExpatXml::~ExpatXml() = default;

bool ExpatXml::feed(std::string_view bytes) {
    return parse(bytes, XML_FALSE) && fed_ - XML_GetCurrentByteIndex(parser_.get()) <= longest_tag;
}

bool ExpatXml::finish() { return parse({}, XML_TRUE); }

bool ExpatXml::parse(std::string_view bytes, int is_last) {
    const bool done = XML_Parse(parser_.get(), bytes.data(), static_cast<int>(bytes.size()), is_last) == XML_STATUS_OK;
    fed_ += static_cast<std::int64_t>(bytes.size());
    if (out_of_memory_ || XML_GetErrorCode(parser_.get()) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    return done;
}

void ExpatXml::start(const char* name, const char** attributes) {
    hand_on([&] {
        attributes_.clear();
        for (const char** pair = attributes; *pair != nullptr; pair += 2)
            attributes_.push_back({pair[0], pair[1]});
        if (!delivery_.start(name, attributes_)) refuse();
    });
}

void ExpatXml::end(const char* name) {
    hand_on([&] {
        if (!delivery_.end(name)) refuse();
    });
}

void ExpatXml::text(std::string_view piece) {
    hand_on([&] { delivery_.text(piece); });
}

// No exception may cross expat, which is C.
template <class Step>
void ExpatXml::hand_on(Step step) {
    if (out_of_memory_) return; // it may still call when it was told to stop
    try {
        step();
    } catch (const std::bad_alloc&) {
        out_of_memory_ = true;
        refuse();
    }
}

// expat then answers an error to whoever fed it.
void ExpatXml::refuse() { XML_StopParser(parser_.get(), XML_FALSE); }

} // namespace tavelo
