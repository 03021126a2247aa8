// Keeps the displays on while the public watches. Where the system offers no means the displays follow its settings.
#pragma once

#include <QObject>

#include <cstdint>
#include <optional>

namespace tavelo {

class KeepAwake {
  public:
    KeepAwake() = default;
    ~KeepAwake();
    KeepAwake(const KeepAwake&) = delete;
    KeepAwake& operator=(const KeepAwake&) = delete;

    void set(bool awake);

  private:
    bool awake_ = false;
#ifndef _WIN32
    void inhibit();
    void release(std::uint32_t cookie) const;

    QObject context_;                     // ends a pending answer with this object
    std::optional<std::uint32_t> cookie_; // of the desktop, while it keeps the displays on for us
#endif
};

} // namespace tavelo
