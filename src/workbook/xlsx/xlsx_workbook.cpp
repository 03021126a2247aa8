// The .xlsx workbook: finds its parts by their relationships and reads them when they are asked for.
#include "workbook/book/containers.h"

#include "workbook/lookalike/lookalike.h"
#include "workbook/text/number_format.h"
#include "workbook/xlsx/cell_text.h"
#include "workbook/xlsx/package.h"
#include "workbook/xlsx/relationships.h"
#include "workbook/xlsx/sheet_part.h"
#include "workbook/xlsx/styles.h"
#include "workbook/xlsx/xml_reader.h"

#include <optional>
#include <utility>

namespace tavelo {

namespace {

struct SheetEntry {
    std::string name;
    std::string relationship;
};

class WorkbookPartHandler : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 1) is_workbook_ = name == "workbook";
        if (depth == 2) inside_sheets_ = name == "sheets";
        if (depth == 2 && name == "workbookPr") from_1904_ = attributes.is_true("date1904");
        if (depth == 3 && inside_sheets_ && name == "sheet" && sheets_.size() < most_sheets) {
            sheets_.push_back({without_escapes(attributes.find("name").value_or("")),
                               std::string(attributes.find("id").value_or(""))});
        }
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

    bool is_workbook() const { return is_workbook_; }
    bool from_1904() const { return from_1904_; }
    const std::vector<SheetEntry>& sheets() const { return sheets_; }

  private:
    std::vector<SheetEntry> sheets_;
    bool is_workbook_ = false;
    bool inside_sheets_ = false;
    bool from_1904_ = false;
};

class SharedStringsHandler : public XmlHandler {
  public:
    explicit SharedStringsHandler(TextTable& texts) : texts_(texts) {}

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth > 2) rich_text_.element_start(name, attributes);
    }
    void element_end(std::string_view name, unsigned depth) override {
        if (depth > 2) rich_text_.element_end(name);
        if (depth != 2 || name != "si") return;
        if (!texts_.add(rich_text_.take())) stopped_ = OpenFailure::too_large;
    }
    void text(std::string_view piece) override { rich_text_.text(piece); }
    std::optional<OpenFailure> stopped() const override { return stopped_; }

  private:
    TextTable& texts_;
    RichText rich_text_;
    std::optional<OpenFailure> stopped_;
};

SheetKind kind_of(std::string_view relationship_type) {
    if (relationship_type == "chartsheet") return SheetKind::chart;
    if (relationship_type == "dialogsheet") return SheetKind::dialog;
    if (relationship_type == "xlMacrosheet" || relationship_type == "xlIntlMacrosheet") return SheetKind::macro;
    return SheetKind::worksheet;
}

class XlsxWorkbook : public Workbook {
  public:
    explicit XlsxWorkbook(std::unique_ptr<Package> package) : package_(std::move(package)) {}

    std::expected<void, OpenFailure> open() {
        const auto top = Relationships::of(*package_, "");
        if (!top) return std::unexpected(top.error());
        const Relationship* const main = top->with_type("officeDocument");
        if (main == nullptr) return std::unexpected(OpenFailure::not_a_workbook);
        // Packed alike and written in another language.
        if (main->target.ends_with(".bin")) return std::unexpected(OpenFailure::binary_workbook);

        WorkbookPartHandler book;
        const auto read = read_xml(*package_, main->target, largest_list_part, book);
        if (!book.is_workbook() && read) return std::unexpected(OpenFailure::not_a_workbook);
        if (!read) return read;
        if (book.sheets().empty()) return std::unexpected(OpenFailure::damaged);
        from_1904_ = book.from_1904();

        const auto parts = Relationships::of(*package_, main->target);
        if (!parts) return std::unexpected(parts.error());
        for (const SheetEntry& sheet : book.sheets()) {
            const Relationship* const found = parts->with_id(sheet.relationship);
            sheets_.push_back({sheet.name, found == nullptr ? SheetKind::worksheet : kind_of(found->type)});
            sheet_parts_.push_back(found == nullptr ? "" : found->target);
        }
        strings_part_ = part_of_type(*parts, "sharedStrings");
        const std::string styles_part = part_of_type(*parts, "styles");
        if (!styles_part.empty()) {
            auto styles = read_styles(*package_, styles_part);
            if (!styles) return std::unexpected(styles.error());
            styles_ = std::move(*styles);
        }
        return {};
    }

    std::span<const SheetInfo> sheets() const override { return sheets_; }
    std::span<const std::string> formats() const override { return styles_.formats; }
    const TextTable& texts() const override { return texts_; }
    bool dates_from_1904() const override { return from_1904_; }

  private:
    std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) override {
        if (index >= sheets_.size()) return std::unexpected(OpenFailure::damaged);
        const SheetKind kind = sheets_[index].kind;
        if (kind == SheetKind::chart || kind == SheetKind::dialog) return Sheet{};
        read_strings();
        const DateSystem dates = from_1904_ ? DateSystem::from_1904 : DateSystem::from_1900;
        return read_sheet_part(*package_, sheet_parts_[index],
                               {styles_, dates, shared_strings_, strings_failure_, texts_});
    }

    // "" for none, also when the relationship leads to a part that the package does not hold: Excel goes on without it.
    std::string part_of_type(const Relationships& parts, std::string_view type) const {
        const Relationship* const found = parts.with_type(type);
        return found != nullptr && package_->has(found->target) ? found->target : std::string();
    }

    // Once, before the first sheet adds strings of its own.
    void read_strings() {
        if (strings_part_.empty()) return;
        SharedStringsHandler handler(texts_);
        if (const auto read = read_xml(*package_, strings_part_, largest_part, handler); !read) {
            strings_failure_ = read.error();
            texts_.clear();
        }
        shared_strings_ = texts_.size();
        strings_part_.clear();
    }

    std::unique_ptr<Package> package_;
    std::vector<SheetInfo> sheets_;
    std::vector<std::string> sheet_parts_;
    std::string strings_part_; // "" when there is none or it has been read
    std::size_t shared_strings_ = 0;
    std::optional<OpenFailure> strings_failure_;
    TextTable texts_;
    Styles styles_;
    bool from_1904_ = false;
};

} // namespace

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xlsx(std::vector<std::byte> bytes) {
    auto package = Package::open(std::move(bytes));
    if (!package) return std::unexpected(package.error());
    if (is_open_document(**package)) return open_open_document(std::move(*package));
    auto book = std::make_unique<XlsxWorkbook>(std::move(*package));
    if (const auto opened = book->open(); !opened) return std::unexpected(opened.error());
    return book;
}

} // namespace tavelo
