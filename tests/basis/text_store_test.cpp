#include "basis/text_store.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace tavelo {
namespace {

TEST(TextStore, geeft_stukken_die_elkaar_niet_raken_en_op_hun_plaats_blijven) {
    TextStore store;
    std::vector<std::pair<char*, std::string>> stukken;
    for (std::size_t n = 0; n < 600; ++n) {
        const std::string tekst(n % 7 == 0 ? 5000 : n % 50, static_cast<char>('a' + n % 26));
        auto* plaats = static_cast<char*>(store.allocate(tekst.size(), 1));
        if (!tekst.empty()) std::memcpy(plaats, tekst.data(), tekst.size());
        stukken.emplace_back(plaats, tekst);
    }
    TextStore elders = std::move(store);
    TextStore eerder;
    std::memset(eerder.allocate(100, 1), 0, 100);
    eerder = std::move(elders);
    std::memset(eerder.allocate(3000, 1), 0, 3000);
    for (const auto& [plaats, tekst] : stukken)
        EXPECT_EQ(std::string(plaats, tekst.size()), tekst);
}

TEST(TextStore, elk_stuk_begint_waar_zijn_soort_mag_staan) {
    TextStore store;
    for (std::size_t n = 0; n < 2000; ++n) {
        const std::size_t grens = std::size_t{1} << n % 5;
        const auto plaats = reinterpret_cast<std::uintptr_t>(store.allocate(1 + n % 37, grens));
        EXPECT_EQ(plaats % grens, 0U) << n;
    }
}

} // namespace
} // namespace tavelo
