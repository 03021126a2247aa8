// The compound file (a small file system of sectors) that holds the workbook as one stream.
#pragma once

#include "workbook/xls/biff_stream.h"

#include <expected>
#include <string_view>
#include <vector>

namespace tavelo {

enum class CompoundFailure : std::uint8_t { not_compound, no_workbook, encrypted_package, damaged };

// The stream "Workbook", or else "Book", of a compound file; it begins with a BOF record. Excel is lenient, so this is
// too: the stream is also found when the tree of the directory is broken, and a chain of sectors that stops too early,
// or that comes back to a sector, gives what is before that. A file that ends before the stream does is damaged: the
// rows saved so far would pass for the whole list. Never larger than the file.
// The stream is a part of `file`; when its sectors do not follow one another there, as they nearly always do, `file`
// becomes the stream. A failure leaves it as it was.
[[nodiscard]] std::expected<std::span<std::byte>, CompoundFailure> workbook_stream(std::vector<std::byte>& file);

// The stream with this name in small letters; empty when there is none or the file is no compound file.
[[nodiscard]] std::vector<std::byte> stream_named(ByteSpan file, std::u16string_view name);

} // namespace tavelo
