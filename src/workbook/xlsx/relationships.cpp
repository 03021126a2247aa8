#include "workbook/xlsx/relationships.h"

#include "workbook/xlsx/package.h"
#include "workbook/xlsx/part_name.h"
#include "workbook/xlsx/xml_reader.h"

#include <algorithm>

namespace tavelo {

namespace {

class RelationshipsHandler : public XmlHandler {
  public:
    RelationshipsHandler(std::string_view source, std::vector<Relationship>& all) : source_(source), all_(all) {}

    void element_start(std::string_view name, unsigned, const XmlAttributes& attributes) override {
        if (name != "Relationship") return;
        const auto id = attributes.find("Id");
        const auto type = attributes.find("Type");
        const auto target = attributes.find("Target");
        if (!id || !type || !target) return;
        const bool outside = attributes.find("TargetMode") == "External";
        all_.push_back({std::string(*id), std::string(type->substr(type->rfind('/') + 1)),
                        outside ? std::string() : resolve_target(source_, *target).value_or("")});
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

  private:
    std::string_view source_;
    std::vector<Relationship>& all_;
};

} // namespace

std::expected<Relationships, OpenFailure> Relationships::of(const Package& package, std::string_view part) {
    Relationships found;
    const std::string rels = relationships_of(part);
    if (!package.has(rels)) return found;
    RelationshipsHandler handler(part, found.all_);
    if (const auto read = read_xml(package, rels, largest_list_part, handler); !read)
        return std::unexpected(read.error());
    for (std::size_t i = 0; i < found.all_.size(); ++i)
        found.index_by_id_.try_emplace(found.all_[i].id, i);
    return found;
}

const Relationship* Relationships::with_id(std::string_view id) const {
    const auto found = index_by_id_.find(std::string(id));
    return found == index_by_id_.end() ? nullptr : &all_[found->second];
}

const Relationship* Relationships::with_type(std::string_view type) const {
    const auto found = std::ranges::find(all_, type, &Relationship::type);
    return found == all_.end() ? nullptr : &*found;
}

} // namespace tavelo
