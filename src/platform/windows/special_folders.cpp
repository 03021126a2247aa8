#include "platform/special_folders.h"

#include "platform/qt_text.h"

#include <windows.h>

#include <array>
#include <shlobj.h>

namespace tavelo {

std::optional<std::string> SystemFolders::path(int csidl) const {
    // The wide form: the other loses the letters of a user's name that the code page does not have. The token -1 asks
    // for the folders of the default user; the suite has always done so.
    const HANDLE default_user = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));
    std::array<wchar_t, MAX_PATH> buffer{};
    if (SHGetFolderPathW(nullptr, csidl, default_user, 0, buffer.data()) != S_OK) return {};
    return utf8(QString::fromWCharArray(buffer.data()));
}

} // namespace tavelo
