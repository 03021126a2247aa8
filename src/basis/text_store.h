// Memory for many small pieces that go together: it is only added to, and given back all at once. The library's own
// (std::pmr::monotonic_buffer_resource) behind a small header, since nearly every rule includes the grid and its header
// is a heavy one.
#pragma once

#include <cstddef>
#include <utility>

namespace tavelo {

class TextStore {
  public:
    TextStore();
    ~TextStore();
    // What was moved from may only be assigned to or go.
    TextStore(TextStore&& other) noexcept : memory_(std::exchange(other.memory_, nullptr)) {}
    TextStore& operator=(TextStore&& other) noexcept {
        std::swap(memory_, other.memory_);
        return *this;
    }

    // `size` bytes in one piece, for objects of that alignment: a power of two. Throws std::bad_alloc, and then has
    // changed nothing.
    [[nodiscard]] void* allocate(std::size_t size, std::size_t alignment);

  private:
    struct Memory;

    Memory* memory_; // owned
};

} // namespace tavelo
