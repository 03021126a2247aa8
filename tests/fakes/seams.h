// Hand-written fakes of the seams to the platform: they answer what a test tells them and record what they are asked.
#pragma once

#include "basis/browser.h"
#include "basis/seams.h"
#include "basis/text.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tavelo::test {

struct FakeMessages final : MessageBox {
    std::vector<std::string> shown;
    void show(std::string_view text) override { shown.emplace_back(text); }
};

// Saturday morning in the season, unless a test says otherwise.
struct FakeClock final : Clock {
    LocalTime time{2026, 6, 13, 9, 30, 0};
    [[nodiscard]] LocalTime now() const override { return time; }
};

// Knows the files that a test gave a stamp; any other cannot be asked.
struct FakeFileStamp final : FileStamp {
    std::map<std::string, LocalTime, std::less<>> stamps;
    [[nodiscard]] std::optional<LocalTime> modified(std::string_view path) const override {
        const auto found = stamps.find(path);
        return found == stamps.end() ? std::nullopt : std::optional(found->second);
    }
};

struct FakePointer final : Pointer {
    int depth = 0;      // 0: the normal pointer
    int times_busy = 0; // how often the hourglass came on
    void busy() override {
        ++depth;
        ++times_busy;
    }
    void normal() override { --depth; }
};

struct FakeSkipLog final : SkipLog {
    struct Entry {
        std::size_t line = 0;
        std::string key;
        std::string reason;
    };
    std::vector<Entry> entries;
    void skipped(std::size_t line, std::string_view key, std::string_view reason) override {
        entries.push_back({line, std::string(key), std::string(reason)});
    }
};

struct FakeOpenDialog final : OpenDialog {
    std::optional<std::string> answer; // nothing: cancelled
    std::vector<OpenRequest> requests;
    [[nodiscard]] std::optional<std::string> ask(const OpenRequest& request) override {
        requests.push_back(request);
        return answer;
    }
};

struct FakeColourDialog final : ColourDialog {
    std::optional<std::int32_t> answer;
    std::vector<std::int32_t> preselected;
    [[nodiscard]] std::optional<std::int32_t> ask(std::int32_t colour) override {
        preselected.push_back(colour);
        return answer;
    }
};

struct FakeBrowser final : Browser {
    std::vector<std::string> opened;
    std::function<void()> fail; // of the page opened last
    void open(std::string_view path, std::function<void()> failed) override {
        opened.emplace_back(path);
        fail = std::move(failed);
    }
};

struct FakeSpecialFolders final : SpecialFolders {
    std::map<int, std::string> folders;
    [[nodiscard]] std::optional<std::string> path(int csidl) const override {
        const auto found = folders.find(csidl);
        return found == folders.end() ? std::nullopt : std::optional(found->second);
    }
};

struct FakeSettings final : SettingsStore {
    using Place = std::tuple<std::string, std::string, std::string>; // application, section, key
    std::map<Place, std::string> values;
    int flushes = 0;
    [[nodiscard]] std::optional<std::string> get(std::string_view application, std::string_view section,
                                                 std::string_view key) const override {
        const auto found = values.find(Place(application, section, key));
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view value) override {
        values[Place(application, section, key)] = value;
    }
    void flush() override { ++flushes; }
};

// A fixed metric that makes fitting exact: a blank is 6 wide, any other character 5 + (code point x 7) modulo 11, each
// times the size; a line is 23 times the size. The font makes no difference.
struct FakeMeasure final : TextMeasure {
    [[nodiscard]] double width(std::string_view, double points, std::string_view text) const override {
        double units = 0;
        for (const char32_t c : code_points(text))
            units += c == U' ' ? 6 : 5 + static_cast<double>(c * 7 % 11);
        return units * points;
    }
    [[nodiscard]] double height(std::string_view, double points) const override { return 23 * points; }
};

} // namespace tavelo::test
