// The colour dialog of Windows itself; the toolkit would show one of its own.
#include "platform/dialogs.h"

#include <QWidget>

#include <array>

#include <windows.h>

#include <commdlg.h>

namespace tavelo {

namespace {

constexpr COLORREF all_colours = 0xFFFFFF; // white, and the bits that a colour has

} // namespace

std::optional<std::int32_t> QtColourDialog::ask(std::int32_t preselected) {
    // What the user puts together himself, for as long as the program runs.
    static std::array<COLORREF, 16> own_colours = [] {
        std::array<COLORREF, 16> white{};
        white.fill(all_colours);
        return white;
    }();

    const QWidget* parent = parent_window(owner_);
    CHOOSECOLORW question{};
    question.lStructSize = sizeof question;
    question.hwndOwner = parent ? reinterpret_cast<HWND>(parent->window()->winId()) : nullptr;
    question.rgbResult = static_cast<COLORREF>(preselected) & all_colours; // 0xBBGGRR there as well
    question.lpCustColors = own_colours.data();
    question.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    if (!ChooseColorW(&question)) return {};
    return static_cast<std::int32_t>(question.rgbResult);
}

} // namespace tavelo
