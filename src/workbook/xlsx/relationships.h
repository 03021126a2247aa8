// The relationships of a part: by name where the other parts are that it uses.
#pragma once

#include "workbook/book/model.h"

#include <expected>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tavelo {

class Package;

struct Relationship {
    std::string id;
    std::string
        type; // the last step of the type's address, the same in the strict and the transitional form: "worksheet"
    std::string target; // key of the part; "" for a target outside the package
};

class Relationships {
  public:
    // Those of `part`, "" for the package itself. A part without a part of relationships has none.
    [[nodiscard]] static std::expected<Relationships, OpenFailure> of(const Package& package, std::string_view part);

    // Null when there is none.
    [[nodiscard]] const Relationship* with_id(std::string_view id) const;
    [[nodiscard]] const Relationship* with_type(std::string_view type) const;

  private:
    std::vector<Relationship> all_;
    std::unordered_map<std::string, std::size_t> index_by_id_;
};

} // namespace tavelo
