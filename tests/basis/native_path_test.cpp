#include "basis/native_path.h"

#include "basis/codeBestand.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

const std::string lang(300, 'x');

TEST(LangPad, op_een_schijf_en_op_een_share_krijgt_de_vorm_zonder_grens) {
    EXPECT_EQ(without_limit("C:\\" + lang), "\\\\?\\C:\\" + lang);
    EXPECT_EQ(without_limit("C:/shows/" + lang), "\\\\?\\C:\\shows\\" + lang);
    EXPECT_EQ(without_limit("\\\\server\\map\\" + lang), "\\\\?\\UNC\\server\\map\\" + lang);
    EXPECT_EQ(without_limit("//server/map/" + lang), "\\\\?\\UNC\\server\\map\\" + lang);
}

TEST(LangPad, ieder_ander_pad_blijft_zoals_het_is) {
    for (const std::string& pad :
         {std::string(), std::string("C:\\shows\\finale.rst"), std::string("//server/map/finale.rst"), lang,
          "/shows/" + lang, "C:" + lang, "\\\\?\\C:\\" + lang})
        EXPECT_EQ(without_limit(pad), pad);
}

#ifndef _WIN32
TEST(LangPad, heeft_alleen_op_windows_een_grens) {
    for (const std::string& pad : {"//server/map/" + lang, "C:/shows/" + lang, "/shows/" + lang})
        EXPECT_EQ(native_path(pad).string(), pad);
}
#endif

TEST(LangPad, een_bestand_diep_in_mappen_wordt_gelezen) {
    const test::TempFolder map;
    std::string pad = map.file("");
    for (int diepte = 0; diepte < 5; ++diepte) {
        pad += std::string(90, 'm') + "/";
        std::filesystem::create_directory(native_path(pad));
    }
    pad += "finale Zoë.rst";
    ASSERT_GT(pad.size(), 260U);
    std::ofstream(native_path(pad)) << "inhoud";
    EXPECT_TRUE(bestandbestaat(pad));
}

} // namespace
} // namespace tavelo
