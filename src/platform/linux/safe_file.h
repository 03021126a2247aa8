// A small file that must survive everything: read whole or not at all, replaced whole or not at all. Paths and contents
// are bytes.
//
// What happens to a write, in order. The first step that fails ends it: the new file is taken away and the old one
// stands as it was.
//   1. Links are followed: the file at their end is replaced, they stay. There must be a plain file that may be
//   written,
//      or nothing at all; a pipe, a device, a folder or a link to nothing is left alone.
//   2. A new file is made beside it, ".NAME.<16 hexadecimal digits>.nieuw", with the permissions of the old one, and
//      locked for as long as it is open.
//   3. Every byte is written; the file is synchronised with the disk and closed. Disks and shares tell only then that
//      they are full: each result counts.
//   4. It is renamed over the old one. Whoever reads sees the old text before, the new text after, never a mixture.
//   5. The folder is synchronised, so that a power cut does not undo the renaming. When this fails the new text stands,
//      but the write is reported as failed.
// A process that is killed before step 4 leaves its new file behind: `remove_leftovers` takes it away.
#pragma once

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

struct FileFault {
    std::string_view step; // what was being done, in English, for the log
    int error = 0;         // errno
};

// Nothing when there is no file. A fault when it cannot be read to its end, is no plain file (nor a link to one) or is
// larger than `most` bytes; of such a file nothing is read that is not a plain file's, so that no pipe keeps us
// waiting.
[[nodiscard]] std::expected<std::optional<std::string>, FileFault> read_small_file(const std::string& path,
                                                                                   std::size_t most);

// Replaces the file, or makes it in a folder that exists.
[[nodiscard]] std::expected<void, FileFault> replace_file(const std::string& path, std::string_view bytes);

// Removes what killed writes of this file left behind, but not what another process is writing now.
void remove_leftovers(const std::string& path);

} // namespace tavelo
