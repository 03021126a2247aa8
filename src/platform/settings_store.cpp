#include "platform/settings_store.h"

#include "platform/qt_text.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#ifdef _WIN32
#include <QSettings>
#endif

namespace tavelo {

UserSettingsStore::UserSettingsStore()
    : UserSettingsStore(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) {}

UserSettingsStore::UserSettingsStore(QString folder) : folder_(std::move(folder)) {}

QString UserSettingsStore::file_name(std::string_view application) const {
    // Encoded: a separator in the name would lead out of the folder.
    const QByteArray name = QUrl::toPercentEncoding(qt_text(application), " ()");
    return QDir(folder_).filePath(QString::fromLatin1(name) + QStringLiteral(".ini"));
}

#ifdef _WIN32

namespace {

QString registry_area(std::string_view application, std::string_view section) {
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\%1\\%2")
        .arg(qt_text(application), qt_text(section));
}

} // namespace

std::optional<std::string> UserSettingsStore::get(std::string_view application, std::string_view section,
                                                  std::string_view key) const {
    const QSettings area(registry_area(application, section), QSettings::NativeFormat);
    if (!area.contains(qt_text(key))) return {};
    return utf8(area.value(qt_text(key)).toString());
}

void UserSettingsStore::save(std::string_view application, std::string_view section, std::string_view key,
                             std::string_view value) {
    QSettings(registry_area(application, section), QSettings::NativeFormat).setValue(qt_text(key), qt_text(value));
}

void UserSettingsStore::flush() {}

#else

namespace {

// Empty without a file; nothing when there is one that cannot be read.
std::optional<std::string> file_text(const QString& name) {
    QFile file(name);
    if (!file.exists()) return std::string();
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) return {};
    return bytes.toStdString();
}

} // namespace

std::optional<std::string> UserSettingsStore::get(std::string_view application, std::string_view section,
                                                  std::string_view key) const {
    if (const auto saved = saved_.find(application); saved != saved_.end()) {
        for (auto it = saved->second.rbegin(); it != saved->second.rend(); ++it)
            if (it->section == section && it->key == key) return it->value;
    }
    auto read = read_.find(application);
    if (read == read_.end())
        read = read_.emplace(std::string(application), IniText(file_text(file_name(application)).value_or(""))).first;
    return read->second.get(section, key);
}

void UserSettingsStore::save(std::string_view application, std::string_view section, std::string_view key,
                             std::string_view value) {
    saved_[std::string(application)].push_back({std::string(section), std::string(key), std::string(value)});
}

void UserSettingsStore::flush() {
    for (const auto& [application, saved] : saved_)
        write_file(application, saved);
    saved_.clear();
}

void UserSettingsStore::write_file(const std::string& application, const std::vector<Saved>& saved) {
    const QString name = file_name(application);
    const std::optional<std::string> present = file_text(name);
    if (!present) return;
    IniText ini(*present);
    for (const Saved& one : saved)
        ini.set(one.section, one.key, one.value);

    const std::string text = ini.text();
    read_.insert_or_assign(application, std::move(ini));
    if (text == *present) return;
    QDir().mkpath(folder_);
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(text.data(), static_cast<qint64>(text.size()));
    file.commit(); // a failure leaves the old file
}

#endif

} // namespace tavelo
