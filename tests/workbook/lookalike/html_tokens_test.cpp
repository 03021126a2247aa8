#include "workbook/lookalike/html_tokens.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

struct Row {
    std::string_view given;
    std::string_view expected;
};

// "{name|attributes}" of a start tag, "{/name|...}" of an end tag, "(text)".
std::string tokens(std::string_view page) {
    std::string all;
    HtmlTokens reader(page);
    for (HtmlToken token; reader.next(token);) {
        const std::string content(token.content);
        if (token.kind == HtmlToken::Kind::text)
            all += "(" + content + ")";
        else
            all += std::string(token.kind == HtmlToken::Kind::end_tag ? "{/" : "{") + token.name + "|" + content + "}";
    }
    return all;
}

std::string resolved(std::string_view text) {
    std::string out = "=";
    append_resolved(out, text);
    return out.substr(1);
}

TEST(HtmlMerken, beginnen_met_een_letter_een_streep_een_uitroepteken_of_een_vraagteken) {
    const std::array<Row, 22> table = {{
        {"<a>", "{a|}"},
        {"<z>", "{z|}"},
        {"<A>", "{a|}"},
        {"<Z>", "{z|}"},
        {"<`>", "(<`>)"},
        {"<{>", "(<{>)"},
        {"<@>", "(<@>)"},
        {"<[>", "(<[>)"},
        {"<1>", "(<1>)"},
        {"< a>", "(< a>)"},
        {"</a>", "{/a|}"},
        {"</ a>", "{/| a}"},
        {"<!doctype html>x", "(x)"},
        {"<?php a ?>x", "(x)"},
        {"<!--a>b-->x", "(x)"},
        {"<", "(<)"},
        {"<<a>", "(<){a|}"},
        {"a<b", "(a){b|}"},
        {"a<", "(a<)"},
        {"a<1<b>", "(a<1){b|}"},
        {"a<<<b>", "(a<<){b|}"},
        {"", ""},
    }};
    for (const Row& row : table)
        EXPECT_EQ(tokens(row.given), row.expected) << row.given;
}

TEST(HtmlMerken, hebben_een_naam_in_kleine_letters_tot_een_spatie_of_streep) {
    const std::array<Row, 10> table = {{
        {"<TaBle x>", "{table| x}"},
        {"<td\tx>", "{td|\tx}"},
        {"<td\rx>", "{td|\rx}"},
        {"<td\nx>", "{td|\nx}"},
        {"<td\fx>", "{td|\fx}"},
        {"<td/>", "{td|/}"},
        {"<h1>", "{h1|}"},
        {"<td", "{td|}"},
        {"<td x", "{td| x}"},
        {"</", "{/|}"},
    }};
    for (const Row& row : table)
        EXPECT_EQ(tokens(row.given), row.expected) << row.given;
}

TEST(HtmlMerken, eindigen_niet_binnen_de_aanhalingstekens_van_een_waarde) {
    const std::array<Row, 18> table = {{
        {"<a b=\"x>y\">z", "{a| b=\"x>y\"}(z)"},
        {"<a b='x>y'>z", "{a| b='x>y'}(z)"},
        {"<a b= \t\r\n\f\"x>y\">z", "{a| b= \t\r\n\f\"x>y\"}(z)"},
        {"<a b=x>y", "{a| b=x}(y)"},
        {"<a \"x>y\">z", "{a| \"x}(y\">z)"}, // no value
        {"<a b=\"x'>'\">z", "{a| b=\"x'>'\"}(z)"},
        {"<a b='x\">\"'>z", "{a| b='x\">\"'}(z)"},
        {"<a b=\"x>y", "{a| b=\"x}(y)"},
        {"<a b='x>y", "{a| b='x}(y)"},
        {"<a b='x\">y<c d='>'>z", "{a| b='x\">y<c d='}('>z)"},
        {"<a b=\"1><a b='>'>z", "{a| b=\"1}{a| b='>'}(z)"},
        {"<a b=\"1>x<a b=\"2>z", "{a| b=\"1>x<a b=\"2}(z)"},
        {"<a b='1><a b='2' c='3>y'>z", "{a| b='1><a b='2' c='3>y'}(z)"},
        {"<a b=>z", "{a| b=}(z)"},
        {"<a b= >z", "{a| b= }(z)"},
        {"<a b=", "{a| b=}"},
        {"<a b= ", "{a| b= }"},
        {"<a b=\"x\"c='y>'>z", "{a| b=\"x\"c='y>'}(z)"},
    }};
    for (const Row& row : table)
        EXPECT_EQ(tokens(row.given), row.expected) << row.given;
}

TEST(HtmlMerken, van_opmerkingen_scripts_en_stijlen_tellen_niet) {
    const std::array<Row, 20> table = {{
        {"<!-->x-->y", "(x-->y)"},
        {"<!--->x-->y", "(y)"},
        {"<!---->x", "(x)"},
        {"<!-- a", ""},
        {"a<!-- b -->c", "(a)(c)"},
        {"<! a", ""},
        {"<?a", ""},
        {"<script>a<b></script>c", "{script|}{/script|}(c)"},
        {"<SCRIPT x>a</SCRIPT>c", "{script| x}{/script|}(c)"},
        {"<style>a</b></style>c", "{style|}{/style|}(c)"},
        {"<style>a</script></STYLE >c", "{style|}{/style| }(c)"},
        {"<script>a</scrip></script>c", "{script|}{/script|}(c)"},
        {"<script></script>c", "{script|}{/script|}(c)"},
        {"<script>a", "{script|}"},
        {"<script>a</", "{script|}"},
        {"</script>a", "{/script|}(a)"},
        {"<scripts>a<b>", "{scripts|}(a){b|}"},
        {"<script>a</</script>c", "{script|}{/script|}(c)"},
        {"<textarea><a>", "{textarea|}{a|}"},
        {"a<!b>c", "(a)(c)"},
    }};
    for (const Row& row : table)
        EXPECT_EQ(tokens(row.given), row.expected) << row.given;
}

TEST(HtmlMerken, hebben_getallen_in_hun_waarden) {
    struct Number {
        std::string_view attributes;
        unsigned number;
    };
    constexpr std::array<Number, 34> table = {{
        {"", 1},
        {" colspan", 1},
        {" colspan=3", 3},
        {" colspan=\"3\"", 3},
        {" colspan='3'", 3},
        {" colspan='3' x", 3},
        {" COLspan = 3 ", 3},
        {"\tcolspan\t=\t3\t", 3},
        {"\rcolspan\r=\r3\r", 3},
        {"\ncolspan\n=\n3\n", 3},
        {"\fcolspan\f=\f3\f", 3},
        {"/colspan=3", 3},
        {" x/colspan=3", 3},
        {" colspan=' \t\r\n\f3'", 3},
        {" colspan=' 3 '", 3},
        {" colspan=3px", 3},
        {" colspan=0", 1},
        {" colspan=1", 1},
        {" colspan=2", 2},
        {" colspan=-3", 1},
        {" colspan=x", 1},
        {" colspan=99999999999", 1},
        {" colspan=3 colspan=4", 3},
        {" colspans=4", 1},
        {" colspa=4", 1},
        {" x=4 colspan=3", 3},
        {" x='4 colspan=5' colspan=3", 3},
        {" x=\"4 colspan=5\" colspan=3", 3},
        {" x='4\" colspan=5' colspan=3", 3},
        {" x colspan=3", 3},
        {" =4 colspan=3", 3},
        {" ==4 colspan=3", 3},
        {" x= colspan=3", 1}, // the value of x
        {" x='colspan=3", 1},
    }};
    for (const auto& [attributes, number] : table) {
        HtmlToken token;
        token.kind = HtmlToken::Kind::start_tag;
        token.content = attributes;
        EXPECT_EQ(token.number("colspan"), number) << attributes;
    }
}

TEST(HtmlTekens, mogen_met_een_nummer_geschreven_zijn) {
    const std::array<Row, 34> table = {{
        {"&#65;", "A"},
        {"&#65", "A"},
        {"&#65 ", "A "},
        {"&#65;;", "A;"},
        {"&#65x", "Ax"},
        {"&#x41;", "A"},
        {"&#X41;", "A"},
        {"&#x41", "A"},
        {"&#x41g", "Ag"},
        {"&#x4A;", "J"},
        {"&#x4a;", "J"},
        {"&#0065;", "A"},
        {"&#127;", "\x7F"},
        {"&#128;", "€"},
        {"&#133;", "…"},
        {"&#159;", "Ÿ"},
        {"&#160;", "\u00A0"},
        {"&#0;", "\uFFFD"},
        {"&#1;", "\x01"},
        {"&#xD7FF;", "\uD7FF"},
        {"&#xD800;", "\uFFFD"},
        {"&#xDFFF;", "\uFFFD"},
        {"&#xE000;", "\uE000"},
        {"&#x10FFFF;", "\U0010FFFF"},
        {"&#x110000;", "\uFFFD"},
        {"&#4294967296;", "\uFFFD"},
        {"&#99999999999;", "\uFFFD"},
        {"&#;", "&#;"},
        {"&#", "&#"},
        {"&#x;", "&#x;"},
        {"&#x", "&#x"},
        {"&#xg", "&#xg"},
        {"&#-65;", "&#-65;"},
        {"&# 65;", "&# 65;"},
    }};
    for (const Row& row : table)
        EXPECT_EQ(resolved(row.given), row.expected) << row.given;
}

TEST(HtmlTekens, houden_op_waar_de_tekst_ophoudt) {
    constexpr std::string_view whole = "&#x41;&amp;";
    EXPECT_EQ(resolved(whole.substr(0, 2)), "&#");
    EXPECT_EQ(resolved(whole.substr(0, 3)), "&#x");
    EXPECT_EQ(resolved(whole.substr(0, 4)), "\x04");
    EXPECT_EQ(resolved(whole.substr(0, 5)), "A");
    EXPECT_EQ(resolved(whole.substr(0, 8)), "A&a");
}

TEST(HtmlTekens, mogen_met_een_naam_geschreven_zijn) {
    const std::array<Row, 22> table = {{
        {"&amp;", "&"},           {"&amp", "&"},      {"&amp;;", "&;"},
        {"&amp ", "& "},          {"&amp-", "&-"},    {"&amp/", "&/"},
        {"&amp:", "&:"},          {"&amp@", "&@"},    {"&amp[", "&["},
        {"&amp`", "&`"},          {"&amp{", "&{"},    {"&ampa", "&ampa"},
        {"&ampz", "&ampz"},       {"&ampA", "&ampA"}, {"&ampZ", "&ampZ"},
        {"&amp0", "&amp0"},       {"&amp9", "&amp9"}, {"&frac12;&sup2", "½²"},
        {"&&amp;&", "&&&"},       {"a & b", "a & b"}, {"&", "&"},
        {"a&lt;b&gt;c", "a<b>c"},
    }};
    for (const Row& row : table)
        EXPECT_EQ(resolved(row.given), row.expected) << row.given;
}

} // namespace
} // namespace tavelo
