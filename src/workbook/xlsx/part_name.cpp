#include "workbook/xlsx/part_name.h"

#include <vector>

namespace tavelo {

namespace {

char folded(char c) {
    if (c == '\\') return '/';
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view folder_of(std::string_view key) {
    const auto slash = key.rfind('/');
    return slash == std::string_view::npos ? std::string_view{} : key.substr(0, slash);
}

// Adds the steps of `path` to `steps`; false when it climbs above the root.
bool walk(std::string_view path, std::vector<std::string_view>& steps) {
    while (!path.empty()) {
        const auto slash = path.find('/');
        const auto step = path.substr(0, slash);
        path = slash == std::string_view::npos ? std::string_view{} : path.substr(slash + 1);
        if (step.empty() || step == ".") continue;
        if (step != "..") {
            steps.push_back(step);
        } else if (steps.empty()) {
            return false;
        } else {
            steps.pop_back();
        }
    }
    return true;
}

} // namespace

std::string part_key(std::string_view zip_name) {
    std::string key;
    key.reserve(zip_name.size());
    for (const char c : zip_name) {
        if (key.empty() && folded(c) == '/') continue;
        key += folded(c);
    }
    return key;
}

std::optional<std::string> resolve_target(std::string_view source, std::string_view target) {
    std::string path;
    for (const char c : target)
        path += folded(c);
    if (path.empty() || path.find(':') != std::string::npos) return std::nullopt;

    const std::string from = part_key(source);
    std::vector<std::string_view> steps;
    if (path.front() != '/' && !walk(folder_of(from), steps)) return std::nullopt;
    if (!walk(path, steps) || steps.empty()) return std::nullopt;

    std::string key;
    for (const auto step : steps) {
        if (!key.empty()) key += '/';
        key += step;
    }
    return key;
}

std::string relationships_of(std::string_view part) {
    const std::string key = part_key(part);
    const auto folder = folder_of(key);
    const auto name = folder.empty() ? std::string_view(key) : std::string_view(key).substr(folder.size() + 1);
    std::string rels(folder);
    if (!rels.empty()) rels += '/';
    return rels.append("_rels/").append(name).append(".rels");
}

} // namespace tavelo
