// How much memory the tests' program holds.
#pragma once

#include <cstddef>

namespace tavelo::test {

// Bytes asked for with `new` and not given back yet, by the whole program.
[[nodiscard]] std::size_t heap_bytes();

} // namespace tavelo::test
