#include "basis/system_time.h"

#include "basis/plain_file.h"

#include <chrono>
#include <ctime>

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

LocalTime local_time(std::int64_t nanoseconds) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds(nanoseconds));
    return local(static_cast<std::time_t>(seconds.count()));
}

std::optional<LocalTime> SystemFileStamp::modified(std::string_view path) const {
    const std::optional<Bestandskenmerk> kenmerk = kenmerk_van(path);
    return kenmerk ? std::optional(local_time(kenmerk->gewijzigd)) : std::nullopt;
}

} // namespace tavelo
