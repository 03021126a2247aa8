#include "workbook/lookalike/lookalike.h"

#include "basis/text.h"
#include "workbook/lookalike/decoded_text.h"
#include "workbook/lookalike/delimited_text.h"
#include "workbook/lookalike/html_table.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tavelo {

namespace {

constexpr std::string_view space = " \t\r\n";
constexpr std::size_t head_size = 64 * 1024;

using SheetReader = std::expected<Sheet, OpenFailure> (*)(std::string_view text, TextTable& texts);

// A text that is one sheet.
class TextWorkbook : public Workbook {
  public:
    TextWorkbook(std::string text, SheetReader read) : text_(std::move(text)), read_(read) {}

    std::span<const SheetInfo> sheets() const override { return sheets_; }
    std::span<const std::string> formats() const override { return formats_; }
    const TextTable& texts() const override { return texts_; }
    bool dates_from_1904() const override { return false; }

  private:
    std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) override {
        if (index >= sheets_.size()) return std::unexpected(OpenFailure::unreadable);
        return read_(text_, texts_);
    }

    std::string text_; // UTF-8
    SheetReader read_;
    std::array<SheetInfo, 1> sheets_{{{.name = "Blad1"}}};
    std::array<std::string, 1> formats_; // General
    TextTable texts_;
};

// Texts that are something else than a list, though a separator may stand in them.
bool begins_as_something_else(std::string_view text) {
    constexpr std::array<std::string_view, 5> begins{"%PDF", "{\\rtf", "ID;P", "MIME-Version:", "{\""};
    return std::ranges::any_of(begins, [text](std::string_view begin) { return text.starts_with(begin); });
}

} // namespace

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_text_lookalike(std::vector<std::byte> bytes) {
    auto text = decoded_text(bytes);
    if (!text) return std::unexpected(OpenFailure::not_a_workbook);
    const auto begin = text->find_first_not_of(space);
    if (begin == std::string::npos) return std::unexpected(OpenFailure::empty);

    const bool is_markup = (*text)[begin] == '<';
    const std::string head = lower_case(std::string_view(*text).substr(begin, head_size));
    if (is_markup && head.contains("urn:schemas-microsoft-com:office:spreadsheet") && !head.contains("<html"))
        return open_xml_spreadsheet(std::move(bytes));
    bytes = {};
    if (is_markup || head.contains("<table")) {
        if (!has_html_table(*text)) return std::unexpected(OpenFailure::not_a_workbook);
        return std::make_unique<TextWorkbook>(*std::move(text), read_html_table);
    }
    if (begins_as_something_else(std::string_view(*text).substr(begin)) || !separator_of(*text))
        return std::unexpected(OpenFailure::not_a_workbook);
    return std::make_unique<TextWorkbook>(*std::move(text), read_delimited_text);
}

} // namespace tavelo
