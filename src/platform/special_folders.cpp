#include "platform/special_folders.h"

#include "platform/qt_text.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#include <shlobj.h>
#else
#include <QStandardPaths>
#endif

namespace tavelo {

#ifdef _WIN32

std::optional<std::string> SystemFolders::path(int csidl) const {
    // The token -1 asks for the folders of the default user; the suite has always done so.
    const HANDLE default_user = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));
    std::array<wchar_t, MAX_PATH> buffer{};
    if (SHGetFolderPathW(nullptr, csidl, default_user, 0, buffer.data()) != S_OK) return {};
    return utf8(QString::fromWCharArray(buffer.data()));
}

#else

namespace {

std::optional<QStandardPaths::StandardLocation> location(int csidl) {
    switch (csidl) {
    case 16:
        return QStandardPaths::DesktopLocation;
    case 26:
        return QStandardPaths::GenericConfigLocation;
    case 28:
        return QStandardPaths::GenericDataLocation;
    case 5:
        return QStandardPaths::DocumentsLocation;
    case 39:
        return QStandardPaths::PicturesLocation;
    case 23:
        return QStandardPaths::ApplicationsLocation;
    default:
        return {};
    }
}

} // namespace

std::optional<std::string> SystemFolders::path(int csidl) const {
    switch (csidl) {
    case 35:
        return "/var/lib"; // data of all users
    case 46:
        return "/srv"; // documents of all users
    case 38:
        return "/usr"; // programs
    default:
        break;
    }
    const std::optional<QStandardPaths::StandardLocation> found = location(csidl);
    if (!found) return {};
    const QString folder = QStandardPaths::writableLocation(*found);
    if (folder.isEmpty()) return {};
    return utf8(folder);
}

#endif

} // namespace tavelo
