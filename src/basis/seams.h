// The seams to the platform: small abstract classes with a real one in platform/ and a hand-written fake in the tests,
// passed in where a rule needs them. All texts and paths are UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// The per-user settings store. Nothing is ever deleted from it.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // Nothing when application, section or key is absent; a key stored as the empty text is present.
    [[nodiscard]] virtual std::optional<std::string> get(std::string_view application, std::string_view section,
                                                         std::string_view key) const = 0;
    // Creates what is missing and overwrites. A failure leaves the store as it was.
    virtual void save(std::string_view application, std::string_view section, std::string_view key,
                      std::string_view value) = 0;
    // The same for a setting that is still at its default: does not replace a stored value that could not be read.
    virtual void save_default(std::string_view application, std::string_view section, std::string_view key,
                              std::string_view value) {
        save(application, section, key, value);
    }
    // Called once after a series of saves: a store that keeps a file writes it here, whole or not at all.
    virtual void flush() {}
};

// Sizes in twips of a text in a font; `points` may be fractional. Measured without hinting: twice the size is twice the
// width.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    [[nodiscard]] virtual double width(std::string_view font, double points, std::string_view text) const = 0;
    [[nodiscard]] virtual double height(std::string_view font, double points) const = 0;
};

// A message box with only an OK button and the program's title.
class MessageBox {
  public:
    virtual ~MessageBox() = default;
    virtual void show(std::string_view text) = 0;
};

// Shows nothing: for work that nobody asked for, such as a re-read.
class SilentMessages final : public MessageBox {
  public:
    void show(std::string_view) override {}
};

// The common file-open dialog.
struct OpenRequest {
    std::string folder;
    std::string filter;   // "label|patterns|label|patterns"
    int filter_index = 1; // from 1
};
class OpenDialog {
  public:
    virtual ~OpenDialog() = default;
    // Nothing when the user cancelled or the dialog failed.
    [[nodiscard]] virtual std::optional<std::string> ask(const OpenRequest& request) = 0;
};

// The system's colour dialog; colours are 0xBBGGRR.
class ColourDialog {
  public:
    virtual ~ColourDialog() = default;
    [[nodiscard]] virtual std::optional<std::int32_t> ask(std::int32_t preselected) = 0;
};

// Special folders by their Windows identifier (CSIDL), without a trailing separator; nothing when the system has none.
class SpecialFolders {
  public:
    virtual ~SpecialFolders() = default;
    [[nodiscard]] virtual std::optional<std::string> path(int csidl) const = 0;
};

struct LocalTime {
    int year = 0;
    int month = 0; // 1..12
    int day = 0;   // 1..31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual LocalTime now() const = 0;
};

// Modification time of a file in local time; nothing when it cannot be asked.
class FileStamp {
  public:
    virtual ~FileStamp() = default;
    [[nodiscard]] virtual std::optional<LocalTime> modified(std::string_view path) const = 0;
};

// The hourglass over the whole program; on and off come in pairs.
class Pointer {
  public:
    virtual ~Pointer() = default;
    virtual void busy() = 0;
    virtual void normal() = 0;
};

// Shows the hourglass for as long as it lives.
class BusyPointer {
  public:
    explicit BusyPointer(Pointer& pointer) : pointer_(pointer) { pointer_.busy(); }
    ~BusyPointer() { pointer_.normal(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    Pointer& pointer_;
};

// Why something of a file was left out, for the helpdesk: line number (from 1, 0 when there is none), key and reason.
class SkipLog {
  public:
    virtual ~SkipLog() = default;
    virtual void skipped(std::size_t line, std::string_view key, std::string_view reason) = 0;
};

} // namespace tavelo
