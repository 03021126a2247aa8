// The per-user settings store: one INI file per application name in the user's configuration folder.
//
// What is saved is kept until `flush`, which reads the file again, changes in it only what was saved and replaces it
// whole (safe_file.h tells how): a fault or a power cut leaves the old file or the new one, and nothing that others
// wrote in it is lost. A file that cannot be read to its end, is no plain file or is larger than 16 MiB counts as empty
// and is not written either. When it could not be read at its first use but can be at `flush`, a value that is still a
// default does not replace a stored one. What went wrong is written to the log, category "tavelo.instellingen".
#pragma once

#include "basis/seams.h"
#include "platform/linux/ini_text.h"

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
    void save_default(std::string_view application, std::string_view section, std::string_view key,
                      std::string_view value) override;
    void flush() override;

    [[nodiscard]] QString file_name(std::string_view application) const;

  private:
    struct Saved {
        std::string section;
        std::string key;
        std::string value;
        bool chosen; // not a default
    };
    struct Known {
        IniText ini;
        bool was_read; // or there was no file
    };
    [[nodiscard]] std::string path_of(std::string_view application) const;
    // Reads the file at its first use, and takes away what killed writes of it left.
    [[nodiscard]] const Known& known(std::string_view application) const;
    void write_file(const std::string& application, const std::vector<Saved>& saved);

    QString folder_;
    mutable std::map<std::string, Known, std::less<>> known_; // by application
    std::map<std::string, std::vector<Saved>, std::less<>> saved_;
};

} // namespace tavelo
