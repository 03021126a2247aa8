#include "workbook/xls/digest.h"

#include <bit>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace tavelo {

namespace {

constexpr std::size_t block_size = 64;

// The message, a one bit, zeros, and its length in bits: whole blocks.
std::vector<std::byte> padded(ByteSpan message, std::endian length_order) {
    std::vector<std::byte> bytes(message.begin(), message.end());
    bytes.push_back(std::byte{0x80});
    while (bytes.size() % block_size != block_size - 8)
        bytes.push_back(std::byte{0});
    const std::uint64_t bits = std::uint64_t{message.size()} * 8;
    for (unsigned i = 0; i < 8; ++i) {
        const unsigned shift = 8 * (length_order == std::endian::little ? i : 7 - i);
        bytes.push_back(static_cast<std::byte>(bits >> shift & 0xFF));
    }
    return bytes;
}

template <std::size_t Words>
std::array<std::byte, Words * 4> bytes_of(const std::array<std::uint32_t, Words>& state, std::endian order) {
    std::array<std::byte, Words * 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t in_word = order == std::endian::little ? i % 4 : 3 - i % 4;
        bytes[i] = static_cast<std::byte>(state[i / 4] >> 8 * in_word & 0xFF);
    }
    return bytes;
}

void md5_block(std::array<std::uint32_t, 4>& state, ByteSpan block) {
    constexpr std::array<std::array<int, 4>, 4> turns = {
        {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}}};
    auto [a, b, c, d] = state;
    for (unsigned i = 0; i < 64; ++i) {
        std::uint32_t mixed = 0;
        unsigned word = 0;
        switch (i / 16) {
        case 0:
            mixed = (b & c) | (~b & d);
            word = i;
            break;
        case 1:
            mixed = (d & b) | (~d & c);
            word = 5 * i + 1;
            break;
        case 2:
            mixed = b ^ c ^ d;
            word = 3 * i + 5;
            break;
        default:
            mixed = c ^ (b | ~d);
            word = 7 * i;
        }
        const auto sine = static_cast<std::uint32_t>(std::floor(std::abs(std::sin(i + 1.0)) * 4294967296.0));
        const std::uint32_t sum = a + mixed + sine + long_at(block, word % 16 * 4);
        a = std::exchange(d, std::exchange(c, std::exchange(b, b + std::rotl(sum, turns[i / 16][i % 4]))));
    }
    state = {state[0] + a, state[1] + b, state[2] + c, state[3] + d};
}

void sha1_block(std::array<std::uint32_t, 5>& state, ByteSpan block) {
    std::array<std::uint32_t, 80> words{};
    for (unsigned i = 0; i < words.size(); ++i) {
        if (i < 16) {
            const std::uint32_t word = long_at(block, i * 4);
            words[i] = word << 24 | (word << 8 & 0xFF0000) | (word >> 8 & 0xFF00) | word >> 24;
        } else {
            words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
        }
    }
    auto [a, b, c, d, e] = state;
    for (unsigned i = 0; i < words.size(); ++i) {
        std::uint32_t mixed = 0;
        switch (i / 20) {
        case 0:
            mixed = ((b & c) | (~b & d)) + 0x5A827999;
            break;
        case 1:
            mixed = (b ^ c ^ d) + 0x6ED9EBA1;
            break;
        case 2:
            mixed = ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDC;
            break;
        default:
            mixed = (b ^ c ^ d) + 0xCA62C1D6;
        }
        const std::uint32_t sum = std::rotl(a, 5) + mixed + e + words[i];
        e = std::exchange(d, std::exchange(c, std::rotl(std::exchange(b, std::exchange(a, sum)), 30)));
    }
    state = {state[0] + a, state[1] + b, state[2] + c, state[3] + d, state[4] + e};
}

} // namespace

std::array<std::byte, 16> md5(ByteSpan message) {
    std::array<std::uint32_t, 4> state = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    const std::vector<std::byte> bytes = padded(message, std::endian::little);
    for (std::size_t place = 0; place < bytes.size(); place += block_size)
        md5_block(state, part_of(bytes, place, block_size));
    return bytes_of(state, std::endian::little);
}

std::array<std::byte, 20> sha1(ByteSpan message) {
    std::array<std::uint32_t, 5> state = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    const std::vector<std::byte> bytes = padded(message, std::endian::big);
    for (std::size_t place = 0; place < bytes.size(); place += block_size)
        sha1_block(state, part_of(bytes, place, block_size));
    return bytes_of(state, std::endian::big);
}

Rc4::Rc4(ByteSpan key) {
    std::iota(state_.begin(), state_.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state_.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state_[i] + byte_at(key, i % key.size()));
        std::swap(state_[i], state_[j]);
    }
}

std::byte Rc4::next() {
    ++i_;
    j_ = static_cast<std::uint8_t>(j_ + state_[i_]);
    std::swap(state_[i_], state_[j_]);
    return std::byte{state_[static_cast<std::uint8_t>(state_[i_] + state_[j_])]};
}

} // namespace tavelo
