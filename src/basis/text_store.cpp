#include "basis/text_store.h"

#include <memory_resource>

namespace tavelo {

struct TextStore::Memory {
    std::pmr::monotonic_buffer_resource resource;
};

TextStore::TextStore() : memory_(new Memory) {}

TextStore::~TextStore() { delete memory_; }

void* TextStore::allocate(std::size_t size, std::size_t alignment) {
    return memory_->resource.allocate(size, alignment);
}

} // namespace tavelo
