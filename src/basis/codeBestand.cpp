#include "basis/codeBestand.h"

#include "basis/text.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <cstdint>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace tavelo {

namespace {

std::filesystem::path native(std::string_view pad) {
    return std::filesystem::path(std::u8string(pad.begin(), pad.end()));
}

struct Sluiter {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using Open = std::unique_ptr<std::FILE, Sluiter>;

#ifdef _WIN32
// Shared in every way. Opened as usual, a writer could not replace or delete the file as long as it is read here.
Open opened_shared(const std::filesystem::path& path) {
    const HANDLE handle =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return nullptr;
    const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY);
    if (descriptor < 0) {
        CloseHandle(handle);
        return nullptr;
    }
    Open file(_fdopen(descriptor, "rb"));
    if (!file) _close(descriptor);
    return file;
}
#else
Open opened_shared(const std::filesystem::path& path) { return Open(std::fopen(path.c_str(), "rb")); }
#endif

// A folder, a pipe or a device opens on some systems; only a plain file counts.
Open opened(std::string_view pad) {
    if (pad.empty()) return nullptr;
    const std::filesystem::path path = native(pad);
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) ? opened_shared(path) : nullptr;
}

// Appends what the file still holds, at most `most` bytes.
void append(std::FILE* file, std::size_t most, std::string& bytes) {
    const std::size_t had = bytes.size();
    bytes.resize(had + most);
    bytes.resize(had + std::fread(bytes.data() + had, 1, most, file));
}

// Appends what the file still holds. Grows in steps of the size that it has now: it may change while it is read.
void append_rest(std::FILE* file, std::size_t expected, std::string& bytes) {
    constexpr std::size_t least = 4096;
    std::size_t wanted = bytes.size();
    std::size_t step = std::max(expected + 1, least); // one more, to meet the end at once
    while (bytes.size() == wanted) {
        wanted += step;
        append(file, step, bytes);
        step = std::max(bytes.size() / 4, least);
    }
}

std::size_t size_of(std::string_view pad) {
    std::error_code error;
    const auto size = std::filesystem::file_size(native(pad), error);
    return error ? 0 : static_cast<std::size_t>(size);
}

std::string_view after_last_of(std::string_view text, std::string_view separators) {
    const std::size_t at = text.find_last_of(separators);
    return at == std::string_view::npos ? text : text.substr(at + 1);
}

} // namespace

std::string bestand_extensie(std::string_view pad) {
    const std::string_view name = after_last_of(pad, "\\/");
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? std::string() : std::string(name.substr(point + 1));
}

std::string bestand_titel(std::string_view pad) {
    const std::string_view name = after_last_of(trimmed(pad), "/\\:");
    return std::string(name.substr(0, name.rfind('.')));
}

std::string bestand_map(std::string_view pad) {
    const std::string_view path = trimmed(pad);
    const std::size_t at = path.find_last_of("\\/:");
    return at == std::string_view::npos ? std::string() : std::string(path.substr(0, at + 1));
}

std::optional<std::string> lees_bestand(std::string_view pad) {
    const Open file = opened(pad);
    if (!file) return std::nullopt;
    std::string bytes;
    append_rest(file.get(), size_of(pad), bytes);
    return bytes;
}

std::optional<BestandInhoud> lees_bestand_met_begin(std::string_view pad, std::string_view begin) {
    const Open file = opened(pad);
    if (!file) return std::nullopt;
    BestandInhoud inhoud;
    append(file.get(), begin.size(), inhoud.bytes);
    inhoud.begin_klopt = inhoud.bytes == begin;
    if (inhoud.begin_klopt) append_rest(file.get(), size_of(pad), inhoud.bytes);
    return inhoud;
}

bool bestandbestaat(std::string_view naam) { return opened(naam) != nullptr; }

} // namespace tavelo
