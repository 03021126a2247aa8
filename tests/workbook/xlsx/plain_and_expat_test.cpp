// Plain markup is read by ourselves and unusual markup by expat; nobody may notice which.
#include "workbook/xlsx/xml_events.h"

#include "workbook/xlsx/package.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace tavelo {
namespace {

using test::heard_of;
using test::made_unusual;

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

const std::vector<std::string> well_formed = {
    "<a/>",
    "<a></a>",
    "<a ></a >",
    " \r\n\t<a/>\r\n ",
    "\xEF\xBB\xBF<a>x</a>",
    "<?xml version=\"1.0\"?><a/>",
    "<?xml version='1.0'?><a/>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<a>Zo\xC3\xAB</a>",
    "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\" ?>\n<a/>",
    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>Zo\xEB</a>",
    "<?xml version=\"1.0\" encoding=\"windows-1252\"?><a>\x80</a>",
    std::string("\xFF\xFE<\0a\0/\0>\0", 10),
    std::string("<\0a\0/\0>\0", 8),
    "<a><b/><b></b><b>x</b><c><b><b>y</b></b></c></a>",
    "<x:a xmlns:x=\"u\" x:b=\"1\" b=\"2\"><x:c.d-e_9/></x:a>",
    "<a b=\"1\" c='2'\n\td = \"3\"/>",
    "<a b=\"it's &lt;&amp;&#65;>\" c='\"'/>",
    "<a b=\"1\t2\n3\r\n4\"/>",
    "<a b=\"Zo\xC3\xAB\">\xE2\x82\xAC \xF0\x9F\x90\xB4 \xEF\xBF\xBD</a>",
    "<a> x &lt;&gt;&amp;&quot;&apos; y&amp;amp; </a>",
    "<a>&#65;&#x20AC;&#13;</a>",
    "<a>x > y ] ]> ]]</a>",
    "<a>1\r\n2\r3\n4\t5\x7F</a>",
    "<a><![CDATA[<b>&amp;]]]]></a>",
    "<a><!-- <b> --><?doe dit?>x</a>",
    "<a>x</a><!-- na --><?doe dit?>",
    "<a><b>1</b><!-- --><b>2</b></a>",
    "<a b1='' b2='' b3='' b4='' b5='' b6='' b7='' b8='' b9='' c1='' c2='' c3='' c4='' c5='' c6='' c7='' c8='' c9='' "
    "d1='' d2='' d3='' d4='' d5='' d6='' d7='' d8='' d9='' e1='' e2='' e3='' e4='' e5='' e6=''/>",
    "<\xC3\xA9t\xC3\xA9 \xC3\xA9=\"1\"><b/></\xC3\xA9t\xC3\xA9>",
    repeated("<a>", 200) + repeated("</a>", 200),
    "<a>" + std::string(200'000, 'x') + "</a>",
    "<a b=\"" + std::string(200'000, 'x') + "\"><b/></a>",
    "<a>" + repeated("<b c=\"1\">2</b>\n", 20'000) + "</a>" + std::string(100'000, ' '),
};

const std::vector<std::string> no_xml = {
    "",
    " ",
    "x",
    "\xEF\xBB\xBF",
    "<",
    "<a",
    "<a>",
    "<a/",
    "<a b",
    "<a b=",
    "<a b=\"",
    "<a b=\"1",
    "<a><b></b>",
    "<a></b>",
    "<a:b></b>",
    "<b></a:b>",
    "<a></a",
    "<a></ a>",
    "<a></>",
    "</a>",
    "<a></a></a>",
    "< a/>",
    "<1a/>",
    "<-a/>",
    "<a/ >",
    "<a b/>",
    "<a b=1/>",
    "<a b=\"1'/>",
    "<a b=\"1\"c=\"2\"/>",
    "<a b=\"1\" b=\"2\"/>",
    "<a b=\"<\"/>",
    "<a b=\"&\"/>",
    "<a b=\"&nbsp;\"/>",
    "<a b=\"\x01\"/>",
    "<a b=\"\xFF\"/>",
    "<a 1b=\"\"/>",
    "<a/><a/>",
    "<a/>x",
    "<a/>&amp;",
    "<a/>x<",
    "<a/><![CDATA[]]>",
    "x<a/>",
    "&amp;<a/>",
    "<a>]]></a>",
    "<a>&</a>",
    "<a>&nbsp;</a>",
    "<a>&ampx</a>",
    "<a>&#1;</a>",
    "<a>&amp",
    "<a>\x01</a>",
    std::string("<a>\0</a>", 8),
    "<a>\xEB</a>",
    "<a>\xC0\x80</a>",
    "<a>\xED\xA0\x80</a>",
    "<a>\xEF\xBF\xBE</a>",
    "<a>\xEF\xBF\xBF</a>",
    "<a>\xF5\x80\x80\x80</a>",
    "<a>\xC3</a>",
    "<a><![CDATA[</a>",
    "<a><!-- -- --></a>",
    "<!DOCTYPE a><a/>",
    "<a><!DOCTYPE a></a>",
    "<?xml version=\"1.0\" encoding=\"onzin\"?><a/>",
    "<?xml version=\"1.0\" standalone=\"yes\" encoding=\"UTF-8\"?><a/>",
    "<?xml version=\"1.0\"encoding=\"UTF-8\"?><a/>",
    " <?xml version=\"1.0\"?><a/>",
    repeated("<a>", 201) + repeated("</a>", 201),
    "<a b=\"" + std::string(2'000'000, 'x') + "\"/>",
    "<a>" + repeated("<b/>", 40'000) + "<b></a>",
    "<a>" + repeated("<b/>", 40'000),
};

TEST(XmlWegen, gewone_en_ongewone_opmaak_geven_hetzelfde) {
    for (const std::string& part : well_formed) {
        const std::string heard = heard_of(part);
        EXPECT_NE(heard, "damaged") << part.substr(0, 200);
        EXPECT_EQ(heard, heard_of(made_unusual(part))) << part.substr(0, 200);
    }
}

TEST(XmlWegen, wat_geen_xml_is_wordt_langs_beide_wegen_geweigerd) {
    for (const std::string& part : no_xml) {
        EXPECT_EQ(heard_of(part), "damaged") << part.substr(0, 200);
        EXPECT_EQ(heard_of(made_unusual(part)), "damaged") << part.substr(0, 200);
    }
}

TEST(XmlWegen, een_stuk_mag_overal_ophouden) {
    const std::string part = "<b c=\"1\" d='\xC3\xAB'>x&amp;y\xC3\xAB</b ><e/>&lt;<f><!-- -->&gt;</f>";
    const std::string heard = heard_of("<a>" + part + "</a>");
    ASSERT_NE(heard, "damaged");
    constexpr std::size_t step = 64 * 1024; // so much is handed on at once
    for (std::size_t cut = 0; cut <= part.size() + 3; ++cut) {
        const std::string filling(step - cut, '\n');
        std::string expected = heard;
        expected.insert(expected.find('\n', 1) + 1, filling);
        EXPECT_EQ(heard_of("<a>" + filling + part + "</a>"), expected) << cut;
    }
}

TEST(XmlWegen, een_teken_dat_ongewoon_is_mag_overal_staan) {
    const std::string part = "<a><b c=\"1\">x&amp;y</b><b/></a>\n";
    for (std::size_t at = 0; at <= part.size(); ++at)
        for (const std::string_view odd : {"<!-- -->", "&#65;", "\r", "<![CDATA[z]]>", "<?p?>", ">", "\xC3\xAB", "\xFF",
                                           "\x01", "]]>", "\"", "=", "/", "<", "&", " "}) {
            const std::string changed = std::string(part).insert(at, odd);
            EXPECT_EQ(heard_of(changed), heard_of(made_unusual(changed))) << changed;
        }
}

// The parts that Excel's own readers and writers have, and those that a program wrote that many portals use.
TEST(XmlWegen, de_onderdelen_van_echte_werkmappen_geven_langs_beide_wegen_hetzelfde) {
    std::size_t parts = 0;
    for (const char* file : {"startlijst.xlsx", "leeg.xlsx", "grafiek_eerst.xlsx"}) {
        std::ifstream stream(std::string(TAVELO_TEST_DATA "/workbook/") + file, std::ios::binary);
        const std::string content(std::istreambuf_iterator<char>(stream), {});
        const auto* begin = reinterpret_cast<const std::byte*>(content.data());
        const auto package = Package::open({begin, begin + content.size()}).value();
        for (const char* name :
             {"[Content_Types].xml", "_rels/.rels", "xl/workbook.xml", "xl/_rels/workbook.xml.rels", "xl/styles.xml",
              "xl/sharedStrings.xml", "xl/worksheets/sheet1.xml", "xl/worksheets/sheet2.xml", "xl/theme/theme1.xml"}) {
            std::string part;
            const auto add = [&](std::span<const char> chunk) {
                part.append(chunk.begin(), chunk.end());
                return true;
            };
            if (!package->has(name) || !package->read(name, largest_part, add)) continue;
            ++parts;
            EXPECT_EQ(heard_of(part), heard_of(made_unusual(part))) << file << ' ' << name;
            EXPECT_NE(heard_of(part), "damaged") << file << ' ' << name;
        }
    }
    EXPECT_GE(parts, 20U);
}

// Stops at the second cell, or has no memory for it.
struct Stopper : XmlHandler {
    explicit Stopper(bool without_memory) : no_memory(without_memory) {}
    void element_start(std::string_view name, unsigned, const XmlAttributes&) override { cells += name == "c" ? 1 : 0; }
    void element_end(std::string_view, unsigned) override {
        if (cells == 2 && no_memory) throw std::bad_alloc();
    }
    void text(std::string_view) override { ++texts; }
    [[nodiscard]] std::optional<OpenFailure> stopped() const override {
        return cells == 2 && !no_memory ? std::optional(OpenFailure::too_large) : std::nullopt;
    }
    bool no_memory;
    int cells = 0;
    int texts = 0;
};

TEST(XmlWegen, een_lezer_die_niet_verder_wil_hoort_niets_meer) {
    for (const std::string& part :
         {std::string("<a><c>1</c><c/><c>2</c></a>"), made_unusual("<a><c>1</c><c/><c>2</c></a>"),
          std::string("<a><c>1</c><c/><onzin")}) {
        Stopper stopper(false);
        const auto read = read_xml(part, stopper);
        ASSERT_FALSE(read.has_value());
        EXPECT_EQ(read.error(), OpenFailure::too_large);
        EXPECT_EQ(stopper.cells, 2);
        EXPECT_EQ(stopper.texts, 1);

        Stopper without_memory(true);
        const auto out = read_xml(part, without_memory);
        ASSERT_FALSE(out.has_value());
        EXPECT_EQ(out.error(), OpenFailure::no_memory);
        EXPECT_EQ(without_memory.cells, 2);
        EXPECT_EQ(without_memory.texts, 1);
    }
}

} // namespace
} // namespace tavelo
