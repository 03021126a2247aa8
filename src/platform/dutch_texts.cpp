#include "platform/dutch_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tavelo {

namespace {

struct Text {
    std::string_view source;
    const char* dutch;
};

// By source text alone: the same English word means the same in every dialog that the program shows.
constexpr std::array texts = std::to_array<Text>({
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Annuleren"},
    {"&Cancel", "&Annuleren"},
    {"Close", "Sluiten"},
    {"&Close", "&Sluiten"},
    {"&Yes", "&Ja"},
    {"&No", "&Nee"},
    {"Open", "Openen"},
    {"&Open", "&Openen"},
    {"&Choose", "&Kiezen"},
    // Open dialog
    {"Look in:", "Zoeken in:"},
    {"File &name:", "Bestands&naam:"},
    {"Files of type:", "Bestandstypen:"},
    {"Back", "Terug"},
    {"Go back", "Terug"},
    {"Forward", "Verder"},
    {"Go forward", "Verder"},
    {"Parent Directory", "Bovenliggende map"},
    {"Go to the parent directory", "Naar de bovenliggende map"},
    {"Create New Folder", "Nieuwe map"},
    {"Create a New Folder", "Nieuwe map maken"},
    {"&New Folder", "&Nieuwe map"},
    {"New Folder", "Nieuwe map"},
    {"List View", "Lijst"},
    {"Change to list view mode", "Toon als lijst"},
    {"Detail View", "Details"},
    {"Change to detail view mode", "Toon met details"},
    {"Sidebar", "Zijbalk"},
    {"List of places and bookmarks", "Plaatsen en bladwijzers"},
    {"Files", "Bestanden"},
    {"&Rename", "&Hernoemen"},
    {"&Delete", "&Verwijderen"},
    {"Show &hidden files", "Toon &verborgen bestanden"},
    {"Remove", "Verwijderen"},
    {"Recent Places", "Recente plaatsen"},
    {"My Computer", "Deze computer"},
    {"Computer", "Deze computer"},
    {"Name", "Naam"},
    {"Size", "Grootte"},
    {"Type", "Type"},
    {"Kind", "Type"},
    {"Date Modified", "Gewijzigd op"},
    {"All Files (*)", "Alle bestanden (*)"},
    {"%1 File", "%1-bestand"},
    {"File", "Bestand"},
    {"Folder", "Map"},
    {"File Folder", "Map"},
    {"Drive", "Station"},
    {"%1 bytes", "%1 bytes"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nDit bestand is er niet.\nControleer of de naam klopt."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDeze map is er niet.\nControleer of de naam klopt."},
    // Colour dialog
    {"&Basic colors", "&Basiskleuren"},
    {"&Custom colors", "&Eigen kleuren"},
    {"&Add to Custom Colors", "&Bij de eigen kleuren zetten"},
    {"&Pick Screen Color", "Kleur van het &scherm nemen"},
    {"Cursor at %1, %2\nPress ESC to cancel", "Aanwijzer op %1, %2\nEsc breekt af"},
    {"Hu&e:", "&Tint:"},
    {"&Sat:", "&Verzadiging:"},
    {"&Val:", "&Helderheid:"},
    {"&Red:", "&Rood:"},
    {"&Green:", "&Groen:"},
    {"Bl&ue:", "Bla&uw:"},
    {"A&lpha channel:", "&Doorzichtigheid:"},
    {"&HTML:", "HT&ML:"},
    {"Select Color", "Kleur kiezen"},
    // Context menu of an input box
    {"&Undo", "&Ongedaan maken"},
    {"&Redo", "Op&nieuw"},
    {"Cu&t", "K&nippen"},
    {"&Copy", "&Kopiëren"},
    {"&Paste", "&Plakken"},
    {"Delete", "Verwijderen"},
    {"Select All", "Alles selecteren"},
    // Context menu of a scroll bar
    {"Scroll here", "Hierheen schuiven"},
    {"Top", "Begin"},
    {"Bottom", "Einde"},
    {"Left edge", "Linkerkant"},
    {"Right edge", "Rechterkant"},
    {"Page up", "Bladzijde omhoog"},
    {"Page down", "Bladzijde omlaag"},
    {"Page left", "Bladzijde naar links"},
    {"Page right", "Bladzijde naar rechts"},
    {"Scroll up", "Omhoog schuiven"},
    {"Scroll down", "Omlaag schuiven"},
    {"Scroll Left", "Naar links schuiven"}, // of tabs
    {"Scroll Right", "Naar rechts schuiven"},
    {"Scroll left", "Naar links schuiven"},
    {"Scroll right", "Naar rechts schuiven"},
});

} // namespace

QString DutchTexts::translate(const char* /*context*/, const char* source, const char* /*disambiguation*/,
                              int /*n*/) const {
    const auto* found = std::ranges::find(texts, std::string_view(source ? source : ""), &Text::source);
    return found == texts.end() ? QString() : QString::fromUtf8(found->dutch);
}

} // namespace tavelo
