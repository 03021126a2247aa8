// Finds bytes in a text 64 at a time: bit i of a mask says whether byte i of a block is one of them. Schedule records
// hold a separator every ten bytes or so, and a search for each of them would cost more than the rest of the reading.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64) // every x86-64 processor has it
#define TAVELO_SSE2
#include <emmintrin.h>
#endif

namespace tavelo {

inline constexpr std::size_t mask_width = 64; // bytes in a block, bits in a mask

// What bytes are looked for. Each answers for one byte, and for sixteen at once where the processor can.
struct EqualTo {
    char wanted;
    [[nodiscard]] bool operator()(char byte) const { return byte == wanted; }
#ifdef TAVELO_SSE2
    [[nodiscard]] __m128i operator()(__m128i bytes) const { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted)); }
#endif
};
struct LineEnd {
    [[nodiscard]] bool operator()(char byte) const { return byte == '\r' || byte == '\n'; }
#ifdef TAVELO_SSE2
    [[nodiscard]] __m128i operator()(__m128i bytes) const {
        return _mm_or_si128(EqualTo{'\r'}(bytes), EqualTo{'\n'}(bytes));
    }
#endif
};
// 80 and above: no plain letter.
struct HighByte {
    [[nodiscard]] bool operator()(char byte) const { return static_cast<unsigned char>(byte) >= 0x80; }
#ifdef TAVELO_SSE2
    [[nodiscard]] __m128i operator()(__m128i bytes) const { return bytes; } // its high bits are the answer
#endif
};

// Of the 64 bytes at `block`.
template <class Test>
[[nodiscard, gnu::always_inline]] inline std::uint64_t mask_of_block(const char* block, Test test) {
#ifdef TAVELO_SSE2
    const auto sixteen = [&](unsigned at) {
        __m128i bytes;
        std::memcpy(&bytes, block + at, sizeof bytes);
        return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(test(bytes)))} << at;
    };
    return sixteen(0) | sixteen(16) | sixteen(32) | sixteen(48);
#else
    std::uint64_t mask = 0;
    for (unsigned at = 0; at < mask_width; ++at)
        mask |= std::uint64_t{test(block[at])} << at;
    return mask;
#endif
}

// Of what a text has left from `begin` on, less than a block; the bits behind its end are 0.
template <class Test>
[[nodiscard, gnu::noinline]] std::uint64_t mask_of_tail(std::string_view text, std::size_t begin, Test test) {
    const std::size_t left = text.size() - begin;
    if (text.size() >= mask_width) // the last whole block holds it
        return mask_of_block(text.data() + text.size() - mask_width, test) >> (mask_width - left);
    std::uint64_t mask = 0; // one by one: copied into a block they would have to be waited for
    for (std::size_t at = 0; at < left; ++at)
        mask |= std::uint64_t{test(text[begin + at])} << at;
    return mask;
}

// Of the block of a text that begins at `begin`, inside it.
template <class Test>
[[nodiscard, gnu::always_inline]] inline std::uint64_t mask_of(std::string_view text, std::size_t begin, Test test) {
    return text.size() - begin >= mask_width ? mask_of_block(text.data() + begin, test)
                                             : mask_of_tail(text, begin, test);
}

// Calls `take` with every place in a text where the test holds.
template <class Test, class Take>
[[gnu::always_inline]] inline void for_each_place(std::string_view text, Test test, Take take) {
    for (std::size_t block = 0; block < text.size(); block += mask_width)
        for (std::uint64_t found = mask_of(text, block, test); found != 0; found &= found - 1)
            take(block + static_cast<std::size_t>(std::countr_zero(found)));
}

// The same places one by one, on demand.
template <class Test>
class Places {
  public:
    Places(std::string_view text, Test test)
        : text_(text), test_(test), found_(text.empty() ? 0 : mask_of(text, 0, test)) {}

    // The next place; the size of the text behind the last one.
    std::size_t next() {
        while (found_ == 0) {
            if (text_.size() - block_ <= mask_width) return text_.size();
            block_ += mask_width;
            found_ = mask_of(text_, block_, test_);
        }
        const std::size_t place = block_ + static_cast<std::size_t>(std::countr_zero(found_));
        found_ &= found_ - 1;
        return place;
    }

  private:
    std::string_view text_;
    [[no_unique_address]] Test test_;
    std::size_t block_ = 0; // where the block begins
    std::uint64_t found_;   // in the block, and still to be given
};

} // namespace tavelo
