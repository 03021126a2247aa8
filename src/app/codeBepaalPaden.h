// The folders that the programs of the suite share. All paths end in a separator: "\" on Windows, "/" elsewhere.
#pragma once

#include "basis/seams.h"

#include <string>
#include <string_view>

namespace tavelo {

struct Paden {
    // Beside the running program.
    std::string app_pad;
    std::string support_pad;
    std::string bin_pad;
    std::string flags_pad;
    std::string handleidingen_pad;
    std::string help_pad;
    std::string html_pad;
    std::string sjablonen_pad;
    std::string stylesheets_pad;
    std::string lijsten_pad;
    std::string cggfiles_pad;
    std::string programfiles_pad;
    // The user's data, where the installer of the suite chose to keep it.
    std::string mijn_bestanden;
    std::string gedeeld_pad;
    std::string data_html_pad;
    std::string zipfiles_pad;
    std::string data_support_pad;
    std::string data_cggfiles_pad;
    std::string data_lijsten_pad;
};

// The path of a special folder by name ("USER_DOCUMENTS", in any case), without trailing separator; "" when the system
// gives none. An unknown name stands for the desktop.
[[nodiscard]] std::string bepaal_map(const SpecialFolders& mappen, std::string_view naam);

// The paths of all folders; nothing is made. `programma_map` is the folder of the running program.
[[nodiscard]] Paden paden_van(std::string_view programma_map, const SettingsStore& opslag,
                              const SpecialFolders& mappen);

// The same, and creates those of the user's data that must exist, one level each; what fails is passed over.
[[nodiscard]] Paden bepaal_paden(std::string_view programma_map, const SettingsStore& opslag,
                                 const SpecialFolders& mappen);

} // namespace tavelo
