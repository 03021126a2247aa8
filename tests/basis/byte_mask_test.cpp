#include "basis/byte_mask.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavelo {
namespace {

// Byte by byte.
template <class Test>
std::vector<std::size_t> plaatsen_byte_voor_byte(std::string_view tekst, Test test) {
    std::vector<std::size_t> plaatsen;
    for (std::size_t i = 0; i < tekst.size(); ++i)
        if (test(tekst[i])) plaatsen.push_back(i);
    return plaatsen;
}

template <class Test>
void vergelijk(std::string_view tekst, Test test) {
    const std::vector<std::size_t> verwacht = plaatsen_byte_voor_byte(tekst, test);
    std::vector<std::size_t> gevonden;
    for_each_place(tekst, test, [&](std::size_t plaats) { gevonden.push_back(plaats); });
    EXPECT_EQ(gevonden, verwacht) << tekst.size();

    gevonden.clear();
    Places een_voor_een(tekst, test);
    for (std::size_t plaats = een_voor_een.next(); plaats != tekst.size(); plaats = een_voor_een.next())
        gevonden.push_back(plaats);
    EXPECT_EQ(gevonden, verwacht) << tekst.size();
    EXPECT_EQ(een_voor_een.next(), tekst.size()); // the end stays the end
}

TEST(ByteMask, elke_byte_wordt_gevonden_op_elke_plaats_in_een_tekst_van_elke_lengte) {
    for (std::size_t lengte = 0; lengte <= 200; ++lengte) {
        for (std::size_t plaats = 0; plaats < lengte; ++plaats) {
            std::string tekst(lengte, 'x');
            tekst[plaats] = '\t';
            vergelijk(tekst, EqualTo{'\t'});
        }
        vergelijk(std::string(lengte, '\t'), EqualTo{'\t'});
        vergelijk(std::string(lengte, 'x'), EqualTo{'\t'});
    }
}

TEST(ByteMask, alle_256_bytes_worden_goed_ingedeeld) {
    std::string alle;
    for (int byte = 0; byte < 256; ++byte)
        alle.push_back(static_cast<char>(byte));
    vergelijk(alle, LineEnd());
    vergelijk(alle, HighByte());
    for (const char gezocht : alle)
        vergelijk(alle, EqualTo{gezocht});
    EXPECT_EQ(plaatsen_byte_voor_byte(alle, LineEnd()), (std::vector<std::size_t>{10, 13}));
    EXPECT_EQ(plaatsen_byte_voor_byte(alle, HighByte()).size(), 128U);
    EXPECT_EQ(plaatsen_byte_voor_byte(alle, HighByte()).front(), 128U);
}

TEST(ByteMask, achter_het_einde_van_een_tekst_wordt_niet_gezocht) {
    const std::string tabs(300, '\t');
    for (std::size_t lengte = 0; lengte <= 130; ++lengte)
        for (const std::size_t begin : {0U, 1U, 7U, 63U, 64U})
            vergelijk(std::string_view(tabs).substr(begin, lengte), EqualTo{'\t'});
}

} // namespace
} // namespace tavelo
