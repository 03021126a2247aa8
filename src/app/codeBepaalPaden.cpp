#include "app/codeBepaalPaden.h"

#include "basis/native_path.h"
#include "basis/number.h"
#include "basis/text.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace tavelo {

namespace {

constexpr char scheiding = static_cast<char>(std::filesystem::path::preferred_separator);

// Shell folder identifiers (CSIDL).
struct BenoemdeMap {
    std::string_view naam;
    int csidl;
};
constexpr int csidl_desktop = 16;
constexpr std::array<BenoemdeMap, 11> benoemde_mappen = {{
    {"USER_DESKTOP", csidl_desktop},
    {"USER_APPDATA", 26},
    {"USER_LOCAL_APPDATA", 28},
    {"USER_DOCUMENTS", 5},
    {"USER_PICTURES", 39},
    {"COMMON_PROGRAMS", 23},
    {"COMMON_APPDATA", 35},
    {"COMMON_DOCUMENTS", 46},
    {"PROGRAM_FILES", 38},
    {"NETWORK", 18},
    {"NETHOOD", 19},
}};

bool eindigt_op_scheiding(std::string_view pad) {
    return !pad.empty() && (pad.back() == scheiding || pad.back() == '\\');
}

std::string als_map(std::string pad) {
    if (!eindigt_op_scheiding(pad)) pad.push_back(scheiding);
    return pad;
}

std::string onder(const std::string& map, std::string_view naam) { return map + std::string(naam) + scheiding; }

// 0 the user's documents, 1 the documents of all users, 2 a folder of the user's choice.
std::string kies_mijn_bestanden(const SettingsStore& opslag, const SpecialFolders& mappen) {
    const auto lees = [&](std::string_view sleutel, std::string_view standaard) {
        return opslag.get("Vendalo 3.5", "Database", sleutel).value_or(std::string(standaard));
    };
    const int index = int16_of(lees("InstallPathIndex", "0")).value_or(0);
    // The chosen folder is taken as it is; with none this is the root of the drive, and meant so.
    if (index == 2) return als_map(lees("InstallPath", ""));
    return onder(als_map(bepaal_map(mappen, index == 1 ? "COMMON_DOCUMENTS" : "USER_DOCUMENTS")),
                 "Mijn Vendalo 3.5 bestanden");
}

void maak_map(const std::string& pad) {
    std::error_code genegeerd; // a folder that exists or cannot be made is passed over
    std::filesystem::create_directory(native_path(pad), genegeerd);
}

} // namespace

std::string bepaal_map(const SpecialFolders& mappen, std::string_view naam) {
    const auto* gevonden = std::ranges::find(benoemde_mappen, upper_case(naam), &BenoemdeMap::naam);
    return mappen.path(gevonden == benoemde_mappen.end() ? csidl_desktop : gevonden->csidl).value_or("");
}

Paden paden_van(std::string_view programma_map, const SettingsStore& opslag, const SpecialFolders& mappen) {
    Paden p;
    p.app_pad = als_map(std::string(programma_map));
    p.support_pad = onder(p.app_pad, "SUPPORT");
    p.bin_pad = onder(p.support_pad, "BIN");
    p.flags_pad = onder(p.support_pad, "FLAGS");
    p.handleidingen_pad = onder(p.support_pad, "HANDLEIDINGEN");
    p.help_pad = onder(p.support_pad, "HELP");
    p.html_pad = onder(p.support_pad, "HTML");
    p.sjablonen_pad = onder(p.html_pad, "SJABLONEN");
    p.stylesheets_pad = onder(p.html_pad, "STYLESHEETS");
    p.lijsten_pad = onder(p.support_pad, "LIJSTEN");
    p.cggfiles_pad = onder(p.support_pad, "CGGFILES");
    p.programfiles_pad = als_map(bepaal_map(mappen, "PROGRAM_FILES"));

    p.mijn_bestanden = kies_mijn_bestanden(opslag, mappen);
    p.gedeeld_pad = onder(p.mijn_bestanden, "GEDEELD");
    p.data_html_pad = onder(p.mijn_bestanden, "HTML");
    p.zipfiles_pad = onder(p.mijn_bestanden, "ZIPFILES");
    p.data_support_pad = onder(p.mijn_bestanden, "SUPPORT");
    p.data_cggfiles_pad = onder(p.data_support_pad, "CGGFILES");
    p.data_lijsten_pad = onder(p.data_support_pad, "LIJSTEN");
    return p;
}

Paden bepaal_paden(std::string_view programma_map, const SettingsStore& opslag, const SpecialFolders& mappen) {
    Paden p = paden_van(programma_map, opslag, mappen);
    for (const std::string* map :
         {&p.mijn_bestanden, &p.zipfiles_pad, &p.data_support_pad, &p.data_cggfiles_pad, &p.data_lijsten_pad})
        maak_map(*map);
    return p;
}

} // namespace tavelo
