// The browser that the desktop has for pages. It goes on when the program ends.
#pragma once

#include "basis/browser.h"

namespace tavelo {

class SystemBrowser final : public Browser {
  public:
    void open(std::string_view path, std::function<void()> failed) override;
};

} // namespace tavelo
