#include "workbook/xlsx/xml_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tavelo {
namespace {

// "<name 1 a=b>" of a start, "</name 1>" of an end, and the text between them.
struct Told : XmlHandler {
    std::string all;
    std::size_t stop_after = 1'000'000;

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        all += "<" + std::string(name) + " " + std::to_string(depth);
        attributes.each([this](std::string_view key, std::string_view value) {
            all += " " + std::string(key) + "=" + std::string(value);
        });
        all += ">";
    }
    void element_end(std::string_view name, unsigned depth) override {
        all += "</" + std::string(name) + " " + std::to_string(depth) + ">";
    }
    void text(std::string_view piece) override { all += piece; }
    std::optional<OpenFailure> stopped() const override {
        return all.size() > stop_after ? std::optional(OpenFailure::too_large) : std::nullopt;
    }
};

std::string told(std::string_view xml) {
    Told handler;
    const auto read = read_xml(xml, handler);
    return read ? handler.all : "fout " + std::to_string(static_cast<int>(read.error()));
}

const std::string damaged = "fout " + std::to_string(static_cast<int>(OpenFailure::damaged));

TEST(Xml, geeft_elementen_met_hun_diepte_en_zonder_voorvoegsel) {
    EXPECT_EQ(told("<a><x:b y:c='1' d=\"2\">t</x:b><b/>&lt;</a>"), "<a 1><b 2 c=1 d=2>t</b 2><b 2></b 2><</a 1>");
    EXPECT_EQ(told("<a/>"), "<a 1></a 1>");
}

TEST(Xml, weigert_wat_niet_klopt) {
    for (const auto* xml :
         {"", "a", "<a>", "<a></b>", "<a/><b/>", "<!DOCTYPE a><a/>", "<a b=1/>", "<a>&x;</a>", "<a\x01/>"})
        EXPECT_EQ(told(xml), damaged) << xml;
}

TEST(Xml, gaat_tweehonderd_lagen_diep) {
    const auto nested = [](std::size_t levels) {
        std::string xml;
        for (std::size_t i = 0; i < levels; ++i)
            xml += "<a>";
        for (std::size_t i = 0; i < levels; ++i)
            xml += "</a>";
        return xml;
    };
    EXPECT_TRUE(told(nested(200)).starts_with("<a 1><a 2>"));
    EXPECT_TRUE(told(nested(200)).contains("<a 200></a 200>"));
    EXPECT_EQ(told(nested(201)), damaged);
    EXPECT_EQ(told("<b>" + nested(199) + nested(199) + "</b>").substr(0, 5), "<b 1>");
}

TEST(Xml, kent_de_tekenset_van_windows) {
    const std::string head = "<?xml version='1.0' encoding='";
    EXPECT_EQ(told(head + "windows-1252'?><a>\x80\xEB\x41</a>"), "<a 1>€ëA</a 1>");
    EXPECT_EQ(told(head + "CP1252'?><a>\x9F\xFF</a>"), "<a 1>Ÿÿ</a 1>");
    EXPECT_EQ(told(head + "Windows-1252'?><a>\x9F</a>"), "<a 1>Ÿ</a 1>");
    EXPECT_EQ(told(head + "iso-8859-1'?><a>\xEB</a>"), "<a 1>ë</a 1>");
    EXPECT_EQ(told(head + "utf-8'?><a>ë</a>"), "<a 1>ë</a 1>");
    EXPECT_EQ(told(head + "windows-1250'?><a>\xEB</a>"), damaged);
    EXPECT_EQ(told(head + "utf-8'?><a>\xEB</a>"), damaged);
}

TEST(Xml, leest_een_lange_tekst_in_stukken) {
    for (const std::size_t size : {65530U, 65535U, 65536U, 65537U, 200000U}) {
        const std::string text(size, 'x');
        EXPECT_EQ(told("<a>" + text + "<b/></a>"), "<a 1>" + text + "<b 2></b 2></a 1>") << size;
    }
}

TEST(Xml, een_merk_zonder_eind_wordt_niet_eindeloos_gelezen) {
    EXPECT_EQ(told("<a b='" + std::string(900'000, 'x') + "'/>").size(),
              900'000U + std::string("<a 1 b=></a 1>").size());
    EXPECT_EQ(told("<a b='" + std::string(1'300'000, 'x') + "'/>"), damaged);
}

// The text is fed in pieces of 64 KiB, so the place of the tag decides how much of it is there when it is looked at. An
// expat with Debian's later patches looks at an unfinished tag again only when twice as much of it is there: what ends
// in the sixteenth piece it has seen in time, what ends in the next one it has not.
TEST(Xml, een_merk_mag_een_mebibyte_lang_zijn) {
    const auto of = [](std::size_t place, std::size_t length) {
        return told("<b>" + std::string(place - 3, 'x') + "<a b='" + std::string(length - 10, 'y') + "'/></b>");
    };
    EXPECT_EQ(of(65536 - 500, 1'050'000), damaged); // 500 more than a mebibyte have come, and no end
    EXPECT_NE(of(576, 1'047'000), damaged);         // all of it, and not yet a mebibyte
}

TEST(Xml, houdt_op_wanneer_de_lezer_genoeg_heeft) {
    Told handler;
    handler.stop_after = 3;
    EXPECT_EQ(read_xml("<a><b/></a>", handler).error(), OpenFailure::too_large);
    EXPECT_EQ(handler.all, "<a 1>");
    Told at_end;
    at_end.stop_after = 5;
    EXPECT_EQ(read_xml("<a></a><", at_end).error(), OpenFailure::too_large);
}

TEST(XmlAttributen, worden_gevonden_op_hun_naam) {
    const auto all = std::to_array<XmlAttribute>(
        {{"r:id", "1"}, {"xid", "2"}, {"id", "3"}, {"n", " 7 "}, {"d", "1.5"}, {"t", "true"}, {"o", "1"}});
    const XmlAttributes attributes(all);
    EXPECT_EQ(attributes.find("id"), "1");
    EXPECT_EQ(attributes.find("xid"), "2");
    EXPECT_EQ(attributes.find("r:id"), "1");
    EXPECT_EQ(attributes.find("d"), "1.5");
    EXPECT_EQ(attributes.find("x"), std::nullopt);
    EXPECT_EQ(attributes.find("ID"), std::nullopt);
    EXPECT_EQ(attributes.number("n"), 7U);
    EXPECT_EQ(attributes.number("d"), std::nullopt);
    EXPECT_EQ(attributes.number("t"), std::nullopt);
    EXPECT_EQ(attributes.number("weg"), std::nullopt);
    EXPECT_EQ(attributes.decimal("d"), 1.5);
    EXPECT_EQ(attributes.decimal("n"), 7.0);
    EXPECT_EQ(attributes.decimal("t"), std::nullopt);
    EXPECT_EQ(attributes.decimal("weg"), std::nullopt);
    EXPECT_TRUE(attributes.is_true("t"));
    EXPECT_TRUE(attributes.is_true("o"));
    EXPECT_FALSE(attributes.is_true("n"));
    EXPECT_FALSE(attributes.is_true("weg"));
}

TEST(XmlAttributen, zijn_alleen_getallen_als_ze_het_helemaal_zijn) {
    for (const auto* text : {"", "x", "1x", "-1", "1.5", "4294967296", "+1", "1 2"}) {
        const std::array one{XmlAttribute{"n", text}};
        EXPECT_EQ(XmlAttributes(one).number("n"), std::nullopt) << text;
    }
    for (const auto* text : {"", "x", "1x", "inf", "nan", "1e999", "+1"}) {
        const std::array one{XmlAttribute{"n", text}};
        EXPECT_EQ(XmlAttributes(one).decimal("n"), std::nullopt) << text;
    }
    const std::array largest{XmlAttribute{"n", "4294967295"}};
    EXPECT_EQ(XmlAttributes(largest).number("n"), 4294967295U);
    EXPECT_EQ(XmlAttributes(largest).decimal("n"), 4294967295.0);
}

TEST(XmlWitruimte, valt_aan_de_einden_weg) {
    EXPECT_EQ(trim_xml_space(" \t\r\na b \n\r\t "), "a b");
    EXPECT_EQ(trim_xml_space(" \t"), "");
    EXPECT_EQ(trim_xml_space(""), "");
    EXPECT_EQ(trim_xml_space("a"), "a");
    EXPECT_EQ(trim_xml_space("\va\f"), "\va\f");
}

} // namespace
} // namespace tavelo
