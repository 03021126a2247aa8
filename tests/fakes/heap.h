// How much memory the tests' program holds, and memory that runs out.
#pragma once

#include <cstddef>

// clang tells in another way than g++ that it builds for the address sanitizer.
#ifdef __has_feature
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif

namespace tavelo::test {

// Bytes that the program asked for and has not given back yet.
[[nodiscard]] std::size_t heap_bytes();

// The n-th `new` from now on fails once, with std::bad_alloc; 0 for none. Not under the address sanitizer, which has
// its own `new`.
void fail_allocation(std::size_t n);
// It has failed.
[[nodiscard]] bool allocation_has_failed();

} // namespace tavelo::test
