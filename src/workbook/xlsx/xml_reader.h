// Reads one XML part of a package as a stream of events. Names are local names: the prefix in front of ":" is dropped,
// because writers choose their own and because the strict and the transitional form differ in nothing but their
// namespaces.
//
// Plain markup (xlsx/plain_xml.h) is read by ourselves. From the first thing that is not plain up to the end of the
// part it is expat that reads, so that what is XML and what is not is for expat to say. A handler cannot tell which of
// the two it hears.
#pragma once

#include "workbook/book/model.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string_view>

namespace tavelo {

class Package;

// Without the prefix.
[[nodiscard]] inline std::string_view local_name(std::string_view name) {
    const auto colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

struct XmlAttribute {
    std::string_view name; // with its prefix
    std::string_view value;
};

// Those of one tag, in its order.
class XmlAttributes {
  public:
    explicit XmlAttributes(std::span<const XmlAttribute> all) : all_(all) {}
    // Calls `use` with the local name and the value of each.
    template <class Use>
    void each(Use use) const {
        for (const XmlAttribute& attribute : all_)
            use(local_name(attribute.name), attribute.value);
    }
    // The value of the attribute with this local name.
    [[nodiscard]] std::optional<std::string_view> find(std::string_view name) const;
    // Without the attribute, or when it is no whole number that fits: nothing.
    [[nodiscard]] std::optional<unsigned> number(std::string_view name) const;
    [[nodiscard]] std::optional<double> decimal(std::string_view name) const;
    // "1" and "true"; an absent attribute is false.
    [[nodiscard]] bool is_true(std::string_view name) const;

  private:
    std::span<const XmlAttribute> all_;
};

class XmlHandler {
  public:
    virtual ~XmlHandler() = default;
    // `depth` is 1 for the root.
    virtual void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) = 0;
    virtual void element_end(std::string_view name, unsigned depth) = 0;
    // One text may come in several pieces.
    virtual void text(std::string_view piece) = 0;
    // The handler met something that ends the reading.
    [[nodiscard]] virtual std::optional<OpenFailure> stopped() const { return std::nullopt; }
};

// damaged for what is not well-formed XML, and for a document type declaration: Excel never writes one, and it is the
// way to make a small part expand without end. Also for nesting beyond 200 levels and for one tag of more than a
// megabyte.
// too_large for a part that unpacks to more than `limit` bytes.
[[nodiscard]] std::expected<void, OpenFailure> read_xml(const Package& package, std::string_view part,
                                                        std::uint64_t limit, XmlHandler& handler);

// The same for a part that is in memory already.
[[nodiscard]] std::expected<void, OpenFailure> read_xml(std::string_view text, XmlHandler& handler);

// White space as XML knows it taken off both ends: space, tab, line end.
[[nodiscard]] std::string_view trim_xml_space(std::string_view text);

} // namespace tavelo
