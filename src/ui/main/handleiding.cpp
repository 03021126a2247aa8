#include "ui/main/handleiding.h"

#include "basis/codeBestand.h"

#include <array>
#include <utility>

namespace tavelo {

std::optional<std::string> vind_handleiding(std::string_view programma_map) {
    constexpr std::array<std::string_view, 3> plaatsen = {
        "/../share/doc/tavelo/html/handleiding.html", // /usr/bin and what stands beside it
        "/handleiding/handleiding.html",
        "/../packaging/html/handleiding.html",
    };
    for (const std::string_view plaats : plaatsen)
        if (const std::string pad = std::string(programma_map).append(plaats); bestandbestaat(pad)) return pad;
    return std::nullopt;
}

void toon_handleiding(Bediening& b, std::string_view programma_map, Browser& browser, std::function<void()> veranderd) {
    const std::optional<std::string> pad = vind_handleiding(programma_map);
    b.handleiding = pad ? Handleiding::gaat_open : Handleiding::ontbreekt;
    veranderd();
    if (!pad) return;
    browser.open(*pad, [&b, veranderd = std::move(veranderd)] {
        if (b.handleiding != Handleiding::gaat_open) return;
        b.handleiding = Handleiding::geen_browser;
        veranderd();
    });
}

} // namespace tavelo
