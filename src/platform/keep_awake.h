// Keeps the displays on while the public watches. Where the system offers no means the displays follow its settings.
#pragma once

#include <memory>

namespace tavelo {

class KeepAwake {
  public:
    KeepAwake();
    ~KeepAwake();
    KeepAwake(const KeepAwake&) = delete;
    KeepAwake& operator=(const KeepAwake&) = delete;

    void set(bool awake);

  private:
    class System;
    std::unique_ptr<System> system_; // what this system offers
};

} // namespace tavelo
