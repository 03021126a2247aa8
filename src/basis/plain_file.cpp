#include "basis/plain_file.h"

#include "basis/native_path.h"

#include <algorithm>
#include <filesystem>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tavelo {

namespace {

bool is_plain(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

} // namespace

#ifdef _WIN32

namespace {

Bestandskenmerk kenmerk_of(const FILETIME& time, DWORD size_high, DWORD size_low) {
    constexpr std::int64_t from_1601_to_1970 = 116444736000000000; // in units of 100 nanoseconds
    const auto units = static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    return {std::uint64_t{size_high} << 32 | size_low, (units - from_1601_to_1970) * 100};
}

} // namespace

std::optional<Bestandskenmerk> kenmerk_van(std::string_view pad) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(native_path(pad).c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
    return kenmerk_of(data.ftLastWriteTime, data.nFileSizeHigh, data.nFileSizeLow);
}

PlainFile::PlainFile(std::string_view pad) : handle_(INVALID_HANDLE_VALUE) {
    const std::filesystem::path path = native_path(pad);
    if (is_plain(path))
        handle_ = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

PlainFile::~PlainFile() {
    if (is_open()) CloseHandle(handle_);
}

bool PlainFile::is_open() const { return handle_ != INVALID_HANDLE_VALUE; }

std::optional<Bestandskenmerk> PlainFile::kenmerk() const {
    BY_HANDLE_FILE_INFORMATION data;
    if (!GetFileInformationByHandle(handle_, &data)) return std::nullopt;
    return kenmerk_of(data.ftLastWriteTime, data.nFileSizeHigh, data.nFileSizeLow);
}

std::optional<std::size_t> PlainFile::read(char* to, std::size_t most) {
    constexpr std::size_t at_once = 1U << 30;
    DWORD count = 0;
    if (!ReadFile(handle_, to, static_cast<DWORD>(std::min(most, at_once)), &count, nullptr)) return std::nullopt;
    return count;
}

#else

namespace {

// Calls again for as long as a signal interrupts.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

Bestandskenmerk kenmerk_of(const struct stat& data) {
    constexpr std::int64_t second = 1'000'000'000;
    return {static_cast<std::uint64_t>(data.st_size), data.st_mtim.tv_sec * second + data.st_mtim.tv_nsec};
}

} // namespace

std::optional<Bestandskenmerk> kenmerk_van(std::string_view pad) {
    const std::filesystem::path path = native_path(pad);
    struct stat data {};
    if (uninterrupted([&] { return stat(path.c_str(), &data); }) != 0) return std::nullopt;
    return kenmerk_of(data);
}

PlainFile::PlainFile(std::string_view pad) {
    const std::filesystem::path path = native_path(pad);
    if (is_plain(path)) // a pipe would be waited for
        descriptor_ = uninterrupted([&] { return open(path.c_str(), O_RDONLY | O_CLOEXEC); });
}

PlainFile::~PlainFile() {
    if (is_open()) close(descriptor_);
}

bool PlainFile::is_open() const { return descriptor_ >= 0; }

std::optional<Bestandskenmerk> PlainFile::kenmerk() const {
    struct stat data {};
    if (uninterrupted([&] { return fstat(descriptor_, &data); }) != 0) return std::nullopt;
    return kenmerk_of(data);
}

std::optional<std::size_t> PlainFile::read(char* to, std::size_t most) {
    const ssize_t count = uninterrupted([&] { return ::read(descriptor_, to, most); });
    return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
}

#endif

} // namespace tavelo
