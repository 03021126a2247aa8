// The per-user settings store. On Windows the program-settings area of the registry; elsewhere one INI file per
// application name in the user's configuration folder.
//
// What is saved is kept until `flush`, which reads the file again, changes in it only what was saved and replaces it
// whole: a power cut leaves the old file or the new one. Nothing that others wrote in it is lost. A file that cannot be
// read or a folder that cannot be written leaves everything as it was.
#pragma once

#include "basis/seams.h"
#include "platform/ini_text.h"

#include <QString>

#include <map>

namespace tavelo {

class UserSettingsStore final : public SettingsStore {
  public:
    UserSettingsStore();
    explicit UserSettingsStore(QString folder);

    [[nodiscard]] std::optional<std::string> get(std::string_view application, std::string_view section,
                                                 std::string_view key) const override;
    void save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view value) override;
    void flush() override;

    [[nodiscard]] QString file_name(std::string_view application) const;

  private:
    struct Saved {
        std::string section;
        std::string key;
        std::string value;
    };
    void write_file(const std::string& application, const std::vector<Saved>& saved);

    QString folder_;
    mutable std::map<std::string, IniText, std::less<>> read_; // by application, at its first use
    std::map<std::string, std::vector<Saved>, std::less<>> saved_;
};

} // namespace tavelo
