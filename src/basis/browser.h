// The seam to the user's browser.
#pragma once

#include <functional>
#include <string_view>

namespace tavelo {

// The user's browser.
class Browser {
  public:
    virtual ~Browser() = default;
    // Has it show the page in the file `path`, and does not wait for it. `failed` is called when that turns out not to
    // work: before this returns, or later from an event.
    virtual void open(std::string_view path, std::function<void()> failed) = 0;
};

} // namespace tavelo
