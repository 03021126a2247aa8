// XML read by expat: all of it, from the front or from the middle of a part.
#pragma once

#include "workbook/xlsx/xml_reader.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

struct XML_ParserStruct;

namespace tavelo {

// What is read goes through here to the handler. Each answers whether the reading goes on.
class XmlDelivery {
  public:
    explicit XmlDelivery(XmlHandler& handler) : handler_(handler) {}
    [[nodiscard]] bool start(std::string_view name, std::span<const XmlAttribute> attributes);
    [[nodiscard]] bool end(std::string_view name);
    void text(std::string_view piece) { handler_.text(piece); }
    [[nodiscard]] std::optional<OpenFailure> stopped() const { return handler_.stopped(); }

  private:
    XmlHandler& handler_;
    unsigned depth_ = 0;
};

class ExpatXml {
  public:
    // `opened`: what stands in front and was delivered already, "<worksheet><sheetData>" for instance. May throw
    // std::bad_alloc.
    ExpatXml(XmlDelivery& delivery, std::string_view opened);
    ~ExpatXml();
    ExpatXml(const ExpatXml&) = delete;
    ExpatXml& operator=(const ExpatXml&) = delete;

    // False when the reading has ended: by what is no XML or by the handler. Throws std::bad_alloc when memory ran out,
    // in a handler too.
    [[nodiscard]] bool feed(std::string_view bytes);
    // The bytes are at their end; the same answer.
    [[nodiscard]] bool finish();

    // Called by expat.
    void start(const char* name, const char** attributes);
    void end(const char* name);
    void text(std::string_view piece);
    void refuse();

  private:
    template <class Step>
    void hand_on(Step step);
    [[nodiscard]] bool parse(std::string_view bytes, int is_last);

    struct FreeParser {
        void operator()(XML_ParserStruct* parser) const;
    };

    std::unique_ptr<XML_ParserStruct, FreeParser> parser_;
    XmlDelivery& delivery_;
    std::vector<XmlAttribute> attributes_;
    std::int64_t fed_ = 0;
    bool out_of_memory_ = false;
};

} // namespace tavelo
