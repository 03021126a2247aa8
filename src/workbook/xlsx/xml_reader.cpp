#include "workbook/xlsx/xml_reader.h"

#include "workbook/xlsx/expat_xml.h"
#include "workbook/xlsx/package.h"
#include "workbook/xlsx/plain_xml.h"

#include <charconv>
#include <cmath>
#include <new>
#include <string>
#include <utility>

namespace tavelo {

namespace {

template <class Number>
std::optional<Number> number_in(std::string_view text) {
    text = trim_xml_space(text);
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool is_blank(std::string_view text) { return trim_xml_space(text).empty(); }

// One part on its way to its handler.
class Reading {
  public:
    explicit Reading(XmlHandler& handler) : delivery_(handler) {}

    // False when the reading has ended, for whatever reason.
    bool feed(std::string_view bytes) {
        return attempt([&] { return expat_ ? expat_->feed(bytes) : read(bytes); });
    }
    std::expected<void, OpenFailure> finish() {
        attempt([&] { return expat_ ? expat_->finish() : root_is_met_ && open_.empty() && is_blank(rest_); });
        if (out_of_memory_) return std::unexpected(OpenFailure::no_memory);
        if (const auto why = delivery_.stopped()) return std::unexpected(*why);
        if (!goes_well_) return std::unexpected(OpenFailure::damaged);
        return {};
    }

  private:
    template <class Step>
    bool attempt(Step step) {
        if (!goes_well_) return false;
        try {
            goes_well_ = step();
        } catch (const std::bad_alloc&) {
            out_of_memory_ = true;
            goes_well_ = false;
        }
        return goes_well_;
    }

    bool read(std::string_view bytes);
    bool go_on_with_expat();
    bool deliver(const XmlToken& token, std::span<const XmlAttribute> attributes);
    void open(std::string_view name);
    bool close(std::string_view name);

    XmlDelivery delivery_;
    std::optional<ExpatXml> expat_; // once something unusual was met
    std::string rest_;              // what is not delivered yet
    std::string open_;              // the elements that are open, as tags: "<worksheet><sheetData>"
    bool root_is_met_ = false;
    bool goes_well_ = true;
    bool out_of_memory_ = false;
};

bool Reading::read(std::string_view bytes) {
    // What does not fit in there is not plain: it must not be looked through again with every chunk.
    constexpr std::size_t most_kept = 64 * 1024;
    rest_ += bytes;
    const auto begin = root_is_met_ ? 0 : plain_prolog(rest_);
    if (!begin) return go_on_with_expat();
    PlainXml xml(std::string_view(rest_).substr(*begin));
    XmlToken token = xml.next();
    for (; token.kind < XmlToken::Kind::partial; token = xml.next())
        if (!deliver(token, xml.attributes())) return false;
    if (root_is_met_) rest_.erase(0, *begin + xml.place());
    const bool is_plain = root_is_met_ && token.kind == XmlToken::Kind::partial && rest_.size() <= most_kept;
    return is_plain || go_on_with_expat();
}

// Whatever stands behind a closed root, it is expat that knows whether it may.
bool Reading::go_on_with_expat() {
    expat_.emplace(delivery_, root_is_met_ && open_.empty() ? "<root/>" : open_);
    return expat_->feed(std::exchange(rest_, {}));
}

bool Reading::deliver(const XmlToken& token, std::span<const XmlAttribute> attributes) {
    if (open_.empty() && root_is_met_) return token.kind == XmlToken::Kind::text && is_blank(token.text);
    switch (token.kind) {
    case XmlToken::Kind::start_tag:
        root_is_met_ = true;
        open(token.text);
        return delivery_.start(token.text, attributes);
    case XmlToken::Kind::empty_tag:
        root_is_met_ = true;
        return delivery_.start(token.text, attributes) && delivery_.end(token.text);
    case XmlToken::Kind::end_tag:
        return close(token.text) && delivery_.end(token.text);
    default:
        delivery_.text(token.text);
        return true;
    }
}

void Reading::open(std::string_view name) {
    open_ += '<';
    open_ += name;
    open_ += '>';
}

// False when it is not the last one opened.
bool Reading::close(std::string_view name) {
    const std::size_t size = name.size() + 2;
    if (open_.size() < size) return false;
    const std::size_t begin = open_.size() - size;
    if (open_[begin] != '<' || std::string_view(open_).substr(begin + 1, name.size()) != name) return false;
    open_.resize(begin);
    return true;
}

} // namespace

std::string_view trim_xml_space(std::string_view text) {
    const auto is_space = [](char byte) { return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n'; };
    while (!text.empty() && is_space(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_space(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<std::string_view> XmlAttributes::find(std::string_view name) const {
    for (const XmlAttribute& attribute : all_) {
        const std::string_view full = attribute.name;
        if (!full.ends_with(name)) continue;
        if (full.size() == name.size() || full[full.size() - name.size() - 1] == ':') return attribute.value;
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
    const auto unpacked = package.read(part, limit, [&](std::span<const char> chunk) {
        return reading.feed({chunk.data(), chunk.size()});
    });
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
