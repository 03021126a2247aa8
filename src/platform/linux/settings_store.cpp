#include "platform/linux/settings_store.h"

#include "platform/linux/safe_file.h"
#include "platform/qt_text.h"
#include "platform/user_settings.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QUrl>

namespace tavelo {

UserSettingsStore::UserSettingsStore()
    : UserSettingsStore(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) {}

UserSettingsStore::UserSettingsStore(QString folder) : folder_(std::move(folder)) {}

std::string UserSettingsStore::path_of(std::string_view application) const {
    return QFile::encodeName(file_name(application)).toStdString();
}

QString UserSettingsStore::file_name(std::string_view application) const {
    // Encoded: a separator in the name would lead out of the folder.
    const QByteArray name = QUrl::toPercentEncoding(qt_text(application), " ()");
    return QDir(folder_).filePath(QString::fromLatin1(name) + QStringLiteral(".ini"));
}

namespace {

// Ours has a few kilobytes. What is larger than this is no settings file.
constexpr std::size_t largest = std::size_t{16} * 1024 * 1024;

void log_fault(const char* what, const std::string& path, const FileFault& fault) {
    static const QLoggingCategory category("tavelo.instellingen");
    qCWarning(category).noquote() << what << qt_text(path) << '-' << qt_text(fault.step) << '-'
                                  << qt_error_string(fault.error);
}

} // namespace

const UserSettingsStore::Known& UserSettingsStore::known(std::string_view application) const {
    if (const auto found = known_.find(application); found != known_.end()) return found->second;
    const std::string path = path_of(application);
    remove_leftovers(path);
    auto text = read_small_file(path, largest);
    if (!text) text = read_small_file(path, largest); // what failed once may not fail twice
    if (!text) log_fault("not read:", path, text.error());
    Known now{IniText(text ? text->value_or("") : ""), text.has_value()};
    return known_.emplace(std::string(application), std::move(now)).first->second;
}

std::optional<std::string> UserSettingsStore::get(std::string_view application, std::string_view section,
                                                  std::string_view key) const {
    if (const auto saved = saved_.find(application); saved != saved_.end()) {
        for (auto it = saved->second.rbegin(); it != saved->second.rend(); ++it)
            if (it->section == section && it->key == key) return it->value;
    }
    return known(application).ini.get(section, key);
}

void UserSettingsStore::save(std::string_view application, std::string_view section, std::string_view key,
                             std::string_view value) {
    saved_[std::string(application)].push_back({std::string(section), std::string(key), std::string(value), true});
}

void UserSettingsStore::save_default(std::string_view application, std::string_view section, std::string_view key,
                                     std::string_view value) {
    saved_[std::string(application)].push_back({std::string(section), std::string(key), std::string(value), false});
}

void UserSettingsStore::flush() {
    for (const auto& [application, saved] : saved_)
        write_file(application, saved);
    saved_.clear();
}

void UserSettingsStore::write_file(const std::string& application, const std::vector<Saved>& saved) {
    const std::string path = path_of(application);
    const auto present = read_small_file(path, largest);
    if (!present) {
        log_fault("not written, because it cannot be read:", path, present.error());
        return;
    }
    const bool was_read = known(application).was_read;
    IniText ini(present->value_or(""));
    for (const Saved& one : saved)
        if (one.chosen || was_read || !ini.get(one.section, one.key)) ini.set(one.section, one.key, one.value);

    const std::string text = ini.text();
    known_.at(application).ini = std::move(ini);
    if (text == *present) return;
    QDir().mkpath(folder_);
    const auto written = replace_file(path, text);
    if (!written) log_fault("not written:", path, written.error());
}

std::unique_ptr<SettingsStore> user_settings() { return std::make_unique<UserSettingsStore>(); }

} // namespace tavelo
