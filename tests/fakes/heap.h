// How much memory the tests' program holds.
#pragma once

#include <cstddef>

namespace tavelo::test {

// Bytes that the program asked for and has not given back yet.
[[nodiscard]] std::size_t heap_bytes();

} // namespace tavelo::test
