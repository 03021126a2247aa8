// A plain file, opened for reading. Paths are UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tavelo {

// Tells one state of a file from another.
struct Bestandskenmerk {
    std::uint64_t grootte = 0;  // bytes
    std::int64_t gewijzigd = 0; // nanoseconds since 1970 began in UTC, as fine as the file system keeps it
    bool operator==(const Bestandskenmerk&) const = default;
};

// Of any file, without opening it; nothing when it cannot be asked.
[[nodiscard]] std::optional<Bestandskenmerk> kenmerk_van(std::string_view pad);

// Open for as long as it lives. On Windows it is shared in every way: opened as usual, a writer could not replace or
// delete the file meanwhile.
class PlainFile {
  public:
    // A folder, a pipe or a device opens on some systems; here it does not.
    explicit PlainFile(std::string_view pad);
    ~PlainFile();
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    [[nodiscard]] bool is_open() const;
    // Of an open file, as it is now.
    [[nodiscard]] std::optional<Bestandskenmerk> kenmerk() const;
    // Reads on, at most `most` bytes; 0 at the end of the file only. Nothing when the read failed; one that a signal
    // interrupted is begun again.
    [[nodiscard]] std::optional<std::size_t> read(char* to, std::size_t most);

  private:
#ifdef _WIN32
    void* handle_;
#else
    int descriptor_ = -1;
#endif
};

} // namespace tavelo
