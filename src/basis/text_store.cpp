#include "basis/text_store.h"

#include <algorithm>
#include <new>
#include <utility>

namespace tavelo {

struct alignas(std::max_align_t) TextStore::Block {
    Block* before = nullptr;
};

TextStore::~TextStore() {
    while (last_)
        ::operator delete(std::exchange(last_, last_->before));
}

TextStore::TextStore(TextStore&& other) noexcept
    : last_(std::exchange(other.last_, nullptr)),
      free_(std::exchange(other.free_, nullptr)),
      left_(std::exchange(other.left_, 0)),
      next_size_(other.next_size_) {}

TextStore& TextStore::operator=(TextStore&& other) noexcept {
    std::swap(last_, other.last_);
    std::swap(free_, other.free_);
    std::swap(left_, other.left_);
    std::swap(next_size_, other.next_size_);
    return *this;
}

void* TextStore::allocate(std::size_t size, std::size_t alignment) {
    // `left_` counts down to the end of a block, which is aligned for everything.
    std::size_t skipped = left_ % alignment;
    if (skipped + size > left_) {
        add_block(size);
        skipped = 0;
    }
    char* const piece = free_ + skipped;
    free_ = piece + size;
    left_ -= skipped + size;
    return piece;
}

void TextStore::add_block(std::size_t size) {
    constexpr std::size_t rounding = alignof(std::max_align_t);
    const std::size_t room = (std::max(size, next_size_) + rounding - 1) / rounding * rounding;
    void* const memory = ::operator new(sizeof(Block) + room);
    last_ = new (memory) Block{last_};
    free_ = static_cast<char*>(memory) + sizeof(Block);
    left_ = room;
    next_size_ += next_size_ / 2;
}

} // namespace tavelo
