#include "fakes/heap.h"

#ifdef __SANITIZE_ADDRESS__

// The sanitizer has its own `new` and counts for itself; not every compiler comes with the header of this.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t tavelo::test::heap_bytes() { return __sanitizer_get_current_allocated_bytes(); }

#else

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> held = 0;

// The size stands before the block; the block stays aligned as `new` promises.
constexpr std::size_t before = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
static_assert(before >= sizeof(std::size_t));

} // namespace

void* operator new(std::size_t size) {
    void* const block = std::malloc(before + size);
    if (!block) throw std::bad_alloc();
    *static_cast<std::size_t*>(block) = size;
    held += size;
    return static_cast<std::byte*>(block) + before;
}

void operator delete(void* memory) noexcept {
    if (!memory) return;
    void* const block = static_cast<std::byte*>(memory) - before;
    held -= *static_cast<std::size_t*>(block);
    std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept { ::operator delete(memory); }

std::size_t tavelo::test::heap_bytes() { return held; }

#endif
