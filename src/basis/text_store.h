// Memory for many small pieces that go together: it is only added to, and given back all at once.
#pragma once

#include <cstddef>

namespace tavelo {

class TextStore {
  public:
    TextStore() = default;
    ~TextStore();
    TextStore(TextStore&& other) noexcept;
    TextStore& operator=(TextStore&& other) noexcept;

    // `size` bytes in one piece, for objects of that alignment: a power of two, at most that of any plain type. Throws
    // std::bad_alloc, and then has changed nothing.
    [[nodiscard]] void* allocate(std::size_t size, std::size_t alignment);

  private:
    struct Block;

    void add_block(std::size_t size);

    Block* last_ = nullptr; // each block knows the one before it
    char* free_ = nullptr;  // what is left of the last one
    std::size_t left_ = 0;
    std::size_t next_size_ = 1024;
};

} // namespace tavelo
