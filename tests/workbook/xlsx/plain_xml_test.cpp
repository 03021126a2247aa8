#include "workbook/xlsx/plain_xml.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavelo {
namespace {

using enum XmlToken::Kind;

// Every token as "<name attribute=value", "<name/", ">name" or its text, up to what is "partial" or "unusual", and
// behind that what is left of the bytes.
std::vector<std::string> tokens(std::string_view bytes) {
    PlainXml xml(bytes);
    std::vector<std::string> all;
    for (;;) {
        const XmlToken token = xml.next();
        std::string shown(token.text);
        if (token.kind == start_tag || token.kind == empty_tag) {
            shown.insert(0, 1, '<');
            for (const XmlAttribute& attribute : xml.attributes())
                shown.append(" ").append(attribute.name).append("=").append(attribute.value);
            if (token.kind == empty_tag) shown += '/';
        }
        if (token.kind == end_tag) shown.insert(0, 1, '>');
        if (token.kind == partial || token.kind == unusual) {
            all.emplace_back(token.kind == partial ? "partial" : "unusual");
            all.emplace_back(bytes.substr(xml.place()));
            return all;
        }
        all.push_back(shown);
    }
}

using Tokens = std::vector<std::string>;

TEST(PlainXml, knipt_in_tags_en_teksten) {
    EXPECT_EQ(tokens("<c r=\"A1\" t='s'><v>12</v></c>"),
              (Tokens{"<c r=A1 t=s", "<v", "12", ">v", ">c", "partial", ""}));
    EXPECT_EQ(tokens("<x:c-1.2_\n\tx:a=\"\"\r/></x:c >"), (Tokens{"<x:c-1.2_ x:a=/", ">x:c", "partial", ""}));
    EXPECT_EQ(tokens("a&amp;&lt;&gt;&quot;&apos;b\t\n <"),
              (Tokens{"a", "&", "<", ">", "\"", "'", "b\t\n ", "partial", "<"}));
    EXPECT_EQ(tokens("<a b=\">\xC3\xAB\">\xC3\xAB \xF0\x9F\x90\xB4<"),
              (Tokens{"<a b=>\xC3\xAB", "\xC3\xAB \xF0\x9F\x90\xB4", "partial", "<"}));
}

TEST(PlainXml, wacht_op_de_rest_van_wat_niet_heel_is) {
    for (const std::string whole : {"<cel r=\"A1\" tt='s'/>", "</cel >", "&quot;"})
        for (std::size_t size = 0; size < whole.size(); ++size)
            EXPECT_EQ(tokens(whole.substr(0, size)), (Tokens{"partial", whole.substr(0, size)}));
    EXPECT_EQ(tokens("tekst \xC3"), (Tokens{"partial", "tekst \xC3"}));
}

TEST(PlainXml, laat_staan_wat_ongewoon_is) {
    for (const char* odd : {"<!-- -->",
                            "<![CDATA[x]]>",
                            "<?p?>",
                            "<!DOCTYPE a>",
                            "&#8364;",
                            "&nbsp;",
                            "&amp ;",
                            "\r<",
                            "\x01<",
                            "x><",
                            "]]><",
                            "\x7F<",
                            "\xFF<",
                            "\xC0\x80<",
                            "\xEF\xBF\xBE<",
                            "\xEF\xBF\xBF<",
                            "<\xC3\xAB>",
                            "<1>",
                            "< a>",
                            "</ a>",
                            "</a b>",
                            "</1>",
                            "<a b>",
                            "<a b=c>",
                            "<a b =\"\">",
                            "<a b= \"\">",
                            "<a b=\"\"c=\"\">",
                            "<a b=\"\" b=\"\">",
                            "<a b=\"&amp;\">",
                            "<a b=\"<\">",
                            "<a b=\"'\">",
                            "<a b='\"'>",
                            "<a b=\"\t\">",
                            "<a b=\"\n\">",
                            "<a b=\"\xFF\">",
                            "<a 1=\"\">",
                            "<a/ >",
                            "<a//>"}) {
        const std::string bytes = std::string("<v>x&amp;") + odd;
        EXPECT_EQ(tokens(bytes), (Tokens{"<v", "x", "&", "unusual", odd}));
    }
}

TEST(PlainXml, dertig_attributen_zijn_nog_gewoon) {
    std::string tag = "<a";
    for (int i = 0; i < 30; ++i)
        tag += " a" + std::to_string(i) + "=\"\"";
    EXPECT_EQ(PlainXml(tag + ">").next().kind, start_tag);
    EXPECT_EQ(PlainXml(tag + " b=\"\">").next().kind, unusual);
}

TEST(PlainXml, een_tag_heeft_alleen_zijn_eigen_attributen) {
    EXPECT_EQ(tokens("<a b=\"1\"/><c/>"), (Tokens{"<a b=1/", "<c/", "partial", ""}));
}

TEST(PlainXml, kent_de_gewone_aanhef) {
    for (const std::string prolog : {"", "\n", " \r\n\t", "\xEF\xBB\xBF", "\xEF\xBB\xBF ", "<?xml version=\"1.0\"?>",
                                     "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n",
                                     "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\" ?>"})
        EXPECT_EQ(plain_prolog(prolog + "<a>"), prolog.size());
    for (const char* other :
         {"", " ", "a", "<?xml version=\"1.1\"?><a>", "<?xml version=\"1.0\" encoding=\"latin1\"?><a>",
          "<?xml version=\"1.0\" standalone=\"yes\" encoding=\"UTF-8\"?><a>", "\xFF\xFE<", "<?xm",
          " <?xml version=\"1.0\"?><a>"})
        EXPECT_EQ(plain_prolog(other), std::nullopt) << other;
    EXPECT_EQ(plain_prolog(std::string_view("<\0a\0/\0>\0", 8)), std::nullopt); // UTF-16 without a byte order mark
}

} // namespace
} // namespace tavelo
