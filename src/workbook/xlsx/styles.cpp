#include "workbook/xlsx/styles.h"

#include "workbook/book/column_width.h"
#include "workbook/text/number_format.h"
#include "workbook/xlsx/cell_text.h"
#include "workbook/xlsx/package.h"
#include "workbook/xlsx/xml_reader.h"

#include <optional>
#include <unordered_map>

namespace tavelo {

namespace {

struct Font {
    std::string name;
    double points = 11;
};

// Below the root stand the lists (depth 2), and in them their items (depth 3): <cellXfs><xf/><xf/></cellXfs>.
class StylesHandler : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 2) list_ = name;
        if (depth == 3) item_start(name, attributes);
        if (depth == 4 && list_ == "fonts" && !fonts_.empty()) font_property(name, attributes);
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

    Styles styles() const {
        Styles found;
        std::unordered_map<unsigned, std::uint32_t> index_of_id;
        for (const unsigned id : format_ids_) {
            const auto [known, is_new] = index_of_id.try_emplace(id, 0);
            if (is_new) known->second = index_of(code_of(id), found.formats);
            found.format_of_xf.push_back(known->second);
        }
        if (const Font* normal = normal_font()) found.digit_pixels = digit_pixels(normal->name, normal->points);
        return found;
    }

  private:
    void item_start(std::string_view name, const XmlAttributes& attributes) {
        if (list_ == "numFmts" && name == "numFmt") {
            const auto id = attributes.number("numFmtId");
            const auto code = attributes.find("formatCode");
            if (id && code && codes_.size() < most_formats) codes_.insert_or_assign(*id, without_escapes(*code));
        } else if (list_ == "fonts" && name == "font") {
            fonts_.emplace_back();
        } else if (list_ == "cellStyleXfs" && name == "xf") {
            fonts_of_named_styles_.push_back(attributes.number("fontId").value_or(0));
        } else if (list_ == "cellXfs" && name == "xf") {
            format_ids_.push_back(attributes.number("numFmtId").value_or(0));
        } else if (list_ == "cellStyles" && name == "cellStyle" && attributes.number("builtinId") == 0U) {
            if (!normal_style_) normal_style_ = attributes.number("xfId");
        }
    }

    void font_property(std::string_view name, const XmlAttributes& attributes) {
        if (name == "name") fonts_.back().name = attributes.find("val").value_or("");
        if (name == "sz") fonts_.back().points = attributes.decimal("val").value_or(fonts_.back().points);
    }

    // A code of the workbook's own goes before the built-in one of the same number.
    std::string code_of(unsigned id) const {
        const auto own = codes_.find(id);
        return own != codes_.end() ? own->second : std::string(builtin_format(id));
    }

    static std::uint32_t index_of(std::string code, std::vector<std::string>& formats) {
        if (code.empty()) return 0;
        formats.push_back(std::move(code));
        return static_cast<std::uint32_t>(formats.size() - 1);
    }

    const Font* normal_font() const {
        const std::size_t style = normal_style_.value_or(0);
        const std::size_t font = style < fonts_of_named_styles_.size() ? fonts_of_named_styles_[style] : 0;
        return font < fonts_.size() ? &fonts_[font] : nullptr;
    }

    std::string list_;
    std::unordered_map<unsigned, std::string> codes_;
    std::vector<Font> fonts_;
    std::vector<unsigned> fonts_of_named_styles_;
    std::vector<unsigned> format_ids_;
    std::optional<unsigned> normal_style_;
};

} // namespace

std::expected<Styles, OpenFailure> read_styles(const Package& package, std::string_view part) {
    StylesHandler handler;
    if (const auto read = read_xml(package, part, largest_list_part, handler); !read)
        return std::unexpected(read.error());
    return handler.styles();
}

} // namespace tavelo
