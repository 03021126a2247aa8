// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>\<section>\<key>, every value a plain string: the
// place and the form that the other programs of the suite read and write. The registry keeps no difference between
// capitals and small letters in names, and a string ends at its first NUL.
#include "platform/user_settings.h"

#include "platform/windows/wide_text.h"

#include <windows.h>

namespace tavelo {

namespace {

std::wstring area(std::string_view application, std::string_view section) {
    return L"Software\\VB and VBA Program Settings\\" + wide(application) + L"\\" + wide(section);
}

class Registry final : public SettingsStore {
  public:
    // Nothing for a value that is no string, too.
    [[nodiscard]] std::optional<std::string> get(std::string_view application, std::string_view section,
                                                 std::string_view key) const override {
        const std::wstring path = area(application, section);
        const std::wstring name = wide(key);
        std::wstring value;
        DWORD bytes = 0;
        LSTATUS error = ERROR_MORE_DATA;
        // Another program may lengthen the value between asking for its size and reading it.
        while (error == ERROR_MORE_DATA) {
            value.resize(bytes / sizeof(wchar_t) + 1);
            bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
            error = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, value.data(),
                                 &bytes);
        }
        if (error != ERROR_SUCCESS) return {};
        return narrow(value.substr(0, value.find(L'\0')));
    }

    void save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view value) override {
        const std::wstring text = wide(value);
        RegSetKeyValueW(HKEY_CURRENT_USER, area(application, section).c_str(), wide(key).c_str(), REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
};

} // namespace

std::unique_ptr<SettingsStore> user_settings() { return std::make_unique<Registry>(); }

} // namespace tavelo
