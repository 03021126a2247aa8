#include "fakes/heap.h"

#ifdef __SANITIZE_ADDRESS__

// The sanitizer has its own `new` and counts for itself; not every compiler comes with the header of this.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t tavelo::test::heap_bytes() { return __sanitizer_get_current_allocated_bytes(); }
void tavelo::test::fail_allocation(std::size_t) {}
bool tavelo::test::allocation_has_failed() { return false; }

#else

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>

namespace {

std::atomic<std::size_t> held = 0;
std::atomic<std::size_t> left_to_failure = 0; // 0: none is to fail
std::atomic<bool> has_failed = false;

constexpr std::size_t usual = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

// Stands before what `new` gives.
struct Head {
    void* block;
    std::size_t size;
};

void* taken(std::size_t size, std::size_t alignment) {
    if (left_to_failure > 0 && --left_to_failure == 0) {
        has_failed = true;
        throw std::bad_alloc();
    }
    std::size_t room = size + alignment;
    void* const block = std::malloc(sizeof(Head) + room);
    if (!block) throw std::bad_alloc();
    void* memory = static_cast<std::byte*>(block) + sizeof(Head);
    std::align(alignment, size, memory, room);
    static_cast<Head*>(memory)[-1] = {block, size};
    held += size;
    return memory;
}

void given_back(void* memory) {
    if (!memory) return;
    const Head head = static_cast<Head*>(memory)[-1];
    held -= head.size;
    std::free(head.block);
}

} // namespace

void* operator new(std::size_t size) { return taken(size, usual); }
// The memory resources of the library ask in this way.
void* operator new(std::size_t size, std::align_val_t alignment) {
    return taken(size, std::max(usual, static_cast<std::size_t>(alignment)));
}

void operator delete(void* memory) noexcept { given_back(memory); }
void operator delete(void* memory, std::size_t) noexcept { given_back(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { given_back(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { given_back(memory); }

std::size_t tavelo::test::heap_bytes() { return held; }

void tavelo::test::fail_allocation(std::size_t n) {
    has_failed = false;
    left_to_failure = n;
}

bool tavelo::test::allocation_has_failed() { return has_failed; }

#endif
