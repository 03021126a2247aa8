#include "fakes/heap.h"

#ifdef __SANITIZE_ADDRESS__

// The sanitizer has its own `new` and counts for itself; not every compiler comes with the header of this.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t tavelo::test::heap_bytes() { return __sanitizer_get_current_allocated_bytes(); }
void tavelo::test::fail_allocation(std::size_t) {}
bool tavelo::test::allocation_has_failed() { return false; }

#else

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> held = 0;
std::atomic<std::size_t> left_to_failure = 0; // 0: none is to fail
std::atomic<bool> has_failed = false;

// The size stands before the block; the block stays aligned as `new` promises.
constexpr std::size_t before = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
static_assert(before >= sizeof(std::size_t));

} // namespace

void* operator new(std::size_t size) {
    if (left_to_failure > 0 && --left_to_failure == 0) {
        has_failed = true;
        throw std::bad_alloc();
    }
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

void tavelo::test::fail_allocation(std::size_t n) {
    has_failed = false;
    left_to_failure = n;
}

bool tavelo::test::allocation_has_failed() { return has_failed; }

#endif
