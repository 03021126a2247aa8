#include "workbook/xlsx/xlsx_maker.h"

#include <zip.h>

#include <algorithm>
#include <stdexcept>

namespace tavelo::test {

namespace {

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

std::string relationship(const std::string& space, const std::string& id, const std::string& type,
                         const std::string& target) {
    return "<Relationship Id=\"" + id + "\" Type=\"" + space + "/" + type + "\" Target=\"" + target + "\"/>";
}

std::string relationships(const std::string& inside) {
    return declaration + "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" +
           inside + "</Relationships>";
}

auto find_part(auto& parts, const std::string& name) {
    const auto found = std::ranges::find(parts, name, &Parts::value_type::first);
    if (found == parts.end()) throw std::logic_error("no part " + name);
    return found;
}

} // namespace

std::vector<std::byte> zip_of(const Parts& parts) {
    zip_source_t* source = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(source);
    zip_t* archive = zip_open_from_source(source, ZIP_TRUNCATE, nullptr);
    for (const auto& [name, content] : parts) {
        zip_source_t* member = zip_source_buffer(archive, content.data(), content.size(), 0);
        zip_file_add(archive, name.c_str(), member, ZIP_FL_ENC_UTF_8);
    }
    if (zip_close(archive) != 0) throw std::logic_error("zip_close");

    zip_source_open(source);
    zip_source_seek(source, 0, SEEK_END);
    std::vector<std::byte> bytes(static_cast<std::size_t>(zip_source_tell(source)));
    zip_source_seek(source, 0, SEEK_SET);
    zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    zip_source_free(source);
    return bytes;
}

Parts XlsxMaker::parts() const {
    const std::string main = " xmlns=\"" + main_namespace + "\" xmlns:r=\"" + relation_namespace + "\"";
    std::string book_relations = relationship(relation_namespace, "rId1", "worksheet", "worksheets/sheet1.xml");
    if (!shared_strings.empty())
        book_relations += relationship(relation_namespace, "rId2", "sharedStrings", "sharedStrings.xml");
    if (!styles.empty()) book_relations += relationship(relation_namespace, "rId3", "styles", "styles.xml");

    Parts parts{
        {"_rels/.rels", relationships(relationship(relation_namespace, "rId1", "officeDocument", "xl/workbook.xml"))},
        {"xl/workbook.xml", declaration + "<workbook" + main + "><workbookPr " + workbook_properties +
                                "/><sheets><sheet name=\"Blad1\" sheetId=\"1\" r:id=\"rId1\"/></sheets></workbook>"},
        {"xl/_rels/workbook.xml.rels", relationships(book_relations)},
        {"xl/worksheets/sheet1.xml", declaration + "<worksheet" + main + ">" + before_sheet_data + "<sheetData>" +
                                         sheet_data + "</sheetData>" + after_sheet_data + "</worksheet>"},
    };
    if (!shared_strings.empty())
        parts.emplace_back("xl/sharedStrings.xml", declaration + "<sst" + main + ">" + shared_strings + "</sst>");
    if (!styles.empty())
        parts.emplace_back("xl/styles.xml", declaration + "<styleSheet" + main + ">" + styles + "</styleSheet>");
    return parts;
}

void replace_part(Parts& parts, const std::string& name, const std::string& content) {
    find_part(parts, name)->second = content;
}

void rename_part(Parts& parts, const std::string& name, const std::string& new_name) {
    find_part(parts, name)->first = new_name;
}

void remove_part(Parts& parts, const std::string& name) { parts.erase(find_part(parts, name)); }

std::string part(const Parts& parts, const std::string& name) { return find_part(parts, name)->second; }

} // namespace tavelo::test
