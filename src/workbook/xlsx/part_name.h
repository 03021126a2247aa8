// Names of the parts inside a package: how a name in the zip is compared, and where the target of a relationship leads.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// The form in which two part names are the same: "/" between the folders, none in front, ASCII letters in lower case.
// Some writers put backslashes, a leading slash or other capitals in the zip, and Excel reads them all the same.
[[nodiscard]] std::string part_key(std::string_view zip_name);

// The key of the part that `target` leads to from the part `source` ("" is the package itself). Empty for a target that
// is no part of this package: one that climbs above the root, or that names a drive or a protocol.
[[nodiscard]] std::optional<std::string> resolve_target(std::string_view source, std::string_view target);

// The key of the part that holds the relationships of `part`: "xl/_rels/workbook.xml.rels" for "xl/workbook.xml".
[[nodiscard]] std::string relationships_of(std::string_view part);

} // namespace tavelo
