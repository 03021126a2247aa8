// Makes .xlsx workbooks in memory, part by part, so that a test can get every part wrong.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tavelo::test {

using Parts = std::vector<std::pair<std::string, std::string>>; // name in the zip, content

[[nodiscard]] std::vector<std::byte> zip_of(const Parts& parts);

// A workbook of one sheet; a test changes what it is about.
struct XlsxMaker {
    std::string sheet_data{};          // inside <sheetData>
    std::string before_sheet_data{};   // <sheetFormatPr>, <cols>
    std::string after_sheet_data{};    // <mergeCells>
    std::string shared_strings{};      // inside <sst>; "" leaves the part out
    std::string styles{};              // inside <styleSheet>; "" leaves the part out
    std::string workbook_properties{}; // attributes of <workbookPr>
    std::string main_namespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
    std::string relation_namespace = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

    [[nodiscard]] Parts parts() const;
    [[nodiscard]] std::vector<std::byte> bytes() const { return zip_of(parts()); }
};

// Changes the content of one part.
void replace_part(Parts& parts, const std::string& name, const std::string& content);
void rename_part(Parts& parts, const std::string& name, const std::string& new_name);
void remove_part(Parts& parts, const std::string& name);
[[nodiscard]] std::string part(const Parts& parts, const std::string& name);

} // namespace tavelo::test
