#include "workbook/book/text_table.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

std::string times(std::size_t count, std::string_view text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(LangsteTekst, een_tekst_telt_zoals_excel_hem_telt) {
    const std::string full = times(longest_text, "x");
    EXPECT_EQ(cut_to_longest(full), full);
    EXPECT_EQ(cut_to_longest(full + "y"), full);
    const std::string accents = times(longest_text, "é");
    EXPECT_EQ(cut_to_longest(accents), accents);
    EXPECT_EQ(cut_to_longest(accents + "é"), accents);
    EXPECT_EQ(cut_to_longest("x" + accents), "x" + times(longest_text - 1, "é"));
}

TEST(LangsteTekst, een_teken_buiten_het_eerste_vlak_telt_dubbel_en_blijft_heel) {
    const std::string horses = times(longest_text / 2, "🐎"); // one unit is left
    EXPECT_EQ(cut_to_longest(horses + "🐎"), horses);
    EXPECT_EQ(cut_to_longest(horses + "é🐎"), horses + "é");
    EXPECT_EQ(cut_to_longest(times(longest_text - 1, "x") + "🐎"), times(longest_text - 1, "x"));
}

TEST(TekstTabel, elke_tekst_houdt_zijn_nummer) {
    TextTable texts;
    EXPECT_EQ(texts[0], "");
    EXPECT_EQ(texts.add("Amber"), 0U);
    EXPECT_EQ(texts.add(""), 1U);
    EXPECT_EQ(texts.add("Zoë"), 2U);
    EXPECT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0], "Amber");
    EXPECT_EQ(texts[1], "");
    EXPECT_EQ(texts[2], "Zoë");
    EXPECT_EQ(texts[3], "");
    texts.clear();
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(texts[0], "");
}

TEST(TekstTabel, een_te_lange_tekst_wordt_afgekapt_bewaard) {
    TextTable texts;
    texts.add(std::string(1024 * 1024, 'x')).value();
    EXPECT_EQ(texts[0].size(), longest_text);
}

TEST(TekstTabel, een_volle_tabel_neemt_niets_meer) {
    TextTable texts;
    for (std::size_t i = 0; i < most_texts; ++i)
        ASSERT_TRUE(texts.add(""));
    EXPECT_EQ(texts.add(""), std::nullopt);
    EXPECT_EQ(texts.size(), most_texts);

    texts.clear();
    const std::string longest(longest_text, 'x');
    std::size_t added = 0;
    while (texts.add(longest))
        ++added;
    EXPECT_EQ(added, most_text_bytes / longest_text);
    EXPECT_TRUE(texts.add("kort"));
}

} // namespace
} // namespace tavelo
