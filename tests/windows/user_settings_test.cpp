#include "platform/user_settings.h"

#include <array>
#include <string>
#include <vector>

#include <windows.h>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr std::string_view toepassing = "Tavelo in proef";
constexpr const wchar_t* gebied = L"Software\\VB and VBA Program Settings\\Tavelo in proef";

struct Register : testing::Test {
    std::unique_ptr<SettingsStore> opslag = user_settings();

    ~Register() override { RegDeleteTreeW(HKEY_CURRENT_USER, gebied); }

    static void schrijf(const wchar_t* sleutel, DWORD soort, const void* waarde, DWORD maat) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, (std::wstring(gebied) + L"\\Layout").c_str(), sleutel, soort,
                                  waarde, maat),
                  ERROR_SUCCESS);
    }
};

TEST_F(Register, elke_tekst_komt_ongeschonden_terug) {
    const std::vector<std::string> teksten = {
        "",         "Arial",        "a,b;c",     "\"aangehaald\"", "D:\\Data\\", "100 % %PATH% %s",     "Zoë's café €",
        "Łukasz 🐴", "  blanco's  ", "\teen tab", "een\r\ntwee",    "&HFFFFFF",   std::string(5000, 'x')};
    for (std::size_t i = 0; i < teksten.size(); ++i)
        opslag->save(toepassing, "Files", "sleutel" + std::to_string(i), teksten[i]);
    opslag->flush();
    for (std::size_t i = 0; i < teksten.size(); ++i)
        EXPECT_EQ(user_settings()->get(toepassing, "Files", "sleutel" + std::to_string(i)), teksten[i]) << i;
}

TEST_F(Register, zonder_toepassing_sectie_of_sleutel_is_er_niets) {
    EXPECT_EQ(opslag->get(toepassing, "Files", "lastfolder"), std::nullopt);
    opslag->save(toepassing, "Files", "lastfolder", "D:\\");
    EXPECT_EQ(opslag->get(toepassing, "Files", "anders"), std::nullopt);
    EXPECT_EQ(opslag->get(toepassing, "Layout", "lastfolder"), std::nullopt);
    EXPECT_EQ(opslag->get(toepassing, "Files", "lastfolder"), "D:\\");
}

TEST_F(Register, een_waarde_is_een_gewone_tekst_op_de_plaats_van_de_andere_programmas) {
    opslag->save(toepassing, "Layout", "fontname", "Zoë");
    DWORD soort = 0;
    std::array<wchar_t, 16> tekst{};
    DWORD maat = sizeof tekst;
    ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, (std::wstring(gebied) + L"\\Layout").c_str(), L"fontname", RRF_RT_ANY,
                           &soort, tekst.data(), &maat),
              ERROR_SUCCESS);
    EXPECT_EQ(soort, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(std::wstring(tekst.data()), L"Zoë");
    EXPECT_EQ(maat, 4 * sizeof(wchar_t));
}

TEST_F(Register, wat_een_ander_schrijft_wordt_gelezen_en_blijft_staan) {
    schrijf(L"textsize", REG_SZ, L"150", 4 * sizeof(wchar_t));
    EXPECT_EQ(opslag->get(toepassing, "Layout", "textsize"), "150");
    schrijf(L"textsize", REG_SZ, L"8", 2 * sizeof(wchar_t));
    EXPECT_EQ(opslag->get(toepassing, "Layout", "TextSize"), "8"); // the registry takes capitals for small letters
    opslag->save(toepassing, "Layout", "fontname", "Arial");
    EXPECT_EQ(opslag->get(toepassing, "Layout", "textsize"), "8");
}

TEST_F(Register, wat_geen_tekst_is_of_zonder_einde_is_stoort_niet) {
    const DWORD getal = 7;
    schrijf(L"getal", REG_DWORD, &getal, sizeof getal);
    EXPECT_EQ(opslag->get(toepassing, "Layout", "getal"), std::nullopt);
    schrijf(L"open", REG_SZ, L"abc", 3 * sizeof(wchar_t)); // without its NUL
    EXPECT_EQ(opslag->get(toepassing, "Layout", "open"), "abc");
    schrijf(L"dubbel", REG_SZ, L"ab\0cd", 6 * sizeof(wchar_t));
    EXPECT_EQ(opslag->get(toepassing, "Layout", "dubbel"), "ab");
}

} // namespace
} // namespace tavelo
