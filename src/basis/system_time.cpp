#include "basis/system_time.h"

#include <chrono>
#include <ctime>
#include <filesystem>

namespace tavelo {

namespace {

LocalTime local(std::time_t time) {
    std::tm parts{};
#ifdef _WIN32
    localtime_s(&parts, &time);
#else
    localtime_r(&time, &parts);
#endif
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

} // namespace

LocalTime SystemClock::now() const { return local(std::time(nullptr)); }

std::optional<LocalTime> SystemFileStamp::modified(std::string_view path) const {
    std::error_code error;
    const auto time =
        std::filesystem::last_write_time(std::filesystem::path(std::u8string(path.begin(), path.end())), error);
    if (error) return std::nullopt;
    const auto system = std::chrono::floor<std::chrono::seconds>(std::chrono::file_clock::to_sys(time));
    return local(static_cast<std::time_t>(system.time_since_epoch().count()));
}

} // namespace tavelo
