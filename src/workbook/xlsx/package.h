// The zip file that an .xlsx workbook is. Parts are unpacked as a stream and never as a whole, so that the memory
// needed does not follow from what the zip claims to hold.
#pragma once

#include "workbook/book/model.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct zip;

namespace tavelo {

// A sheet or the shared strings may unpack to this many bytes; more is refused as too large. A start list of 4,000 rows
// takes 2 MB, and the largest sheets that people keep in Excel some hundred; a zip bomb unpacks a thousandfold and is
// stopped here.
inline constexpr std::uint64_t largest_part = 256U * 1024 * 1024;
// The same for the parts that list things: sheets, styles, relationships. What they list takes more memory than its
// text.
inline constexpr std::uint64_t largest_list_part = 32U * 1024 * 1024;

class Package {
  public:
    // not_a_workbook for bytes that do not begin as a zip file, damaged for a zip without a directory (half written).
    [[nodiscard]] static std::expected<std::unique_ptr<Package>, OpenFailure> open(std::vector<std::byte> bytes);

    [[nodiscard]] bool has(std::string_view part) const;

    // Gets the next bytes of the part; answers whether it wants more.
    using Sink = std::function<bool(std::span<const char>)>;
    // Unpacks `part` into `sink`. damaged when the part is missing or cannot be unpacked, too_large beyond
    // largest_part, password for a part with zip encryption. A sink that wants no more ends the reading without a
    // failure.
    [[nodiscard]] std::expected<void, OpenFailure> read(std::string_view part, std::uint64_t limit,
                                                        const Sink& sink) const;

  private:
    struct CloseZip {
        void operator()(zip* archive) const;
    };

    Package() = default;

    std::vector<std::byte> bytes_; // outlives archive_, which reads from it
    std::unique_ptr<zip, CloseZip> archive_;
    std::unordered_map<std::string, std::uint64_t> index_by_key_;
};

} // namespace tavelo
