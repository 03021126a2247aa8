// The user's manual: a page that the browser shows.
#pragma once

#include "basis/browser.h"
#include "ui/main/bediening.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// The page, sought from the folder of the running program: where a package puts it, beside the program as on Windows,
// or in the folder where all was built. Nothing when it is in none of them.
[[nodiscard]] std::optional<std::string> vind_handleiding(std::string_view programma_map);

// Has the page shown, and notes in `bediening.handleiding` how it went. `veranderd` is called whenever that note
// changes: at once, and once more when it turns out that no browser could show it. A browser that ends when the note is
// gone is one that the user has closed.
void toon_handleiding(Bediening& bediening, std::string_view programma_map, Browser& browser,
                      std::function<void()> veranderd);

} // namespace tavelo
