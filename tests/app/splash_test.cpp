#include "app/splash.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavelo {
namespace {

TEST(Vervaging, loopt_in_52_stappen_van_4_naar_255_en_is_nooit_0) {
    Vervaging vervaging;
    std::vector<int> niveaus;
    while (!vervaging.klaar())
        niveaus.push_back(vervaging.volgende());
    ASSERT_EQ(niveaus.size(), 52U);
    for (std::size_t i = 0; i + 1 < niveaus.size(); ++i)
        EXPECT_EQ(niveaus[i], 4 + 5 * static_cast<int>(i));
    EXPECT_EQ(niveaus.back(), 255);
}

TEST(Vervaging, blijft_op_255) {
    Vervaging vervaging;
    for (int i = 0; i < 60; ++i)
        static_cast<void>(vervaging.volgende());
    EXPECT_EQ(vervaging.volgende(), 255);
    EXPECT_TRUE(vervaging.klaar());
}

TEST(VersieTekst, noemt_de_drie_getallen) {
    EXPECT_EQ(versie_tekst(3, 14, 159), "versie 3.14.159");
    EXPECT_EQ(versie_tekst(10, 0, 0), "versie 10.0.0");
}

} // namespace
} // namespace tavelo
