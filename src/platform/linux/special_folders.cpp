#include "platform/special_folders.h"

#include "platform/qt_text.h"

#include <QStandardPaths>

namespace tavelo {

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

} // namespace tavelo
