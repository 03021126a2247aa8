// States that hold for a scope and end with it, also when an error cuts it short.
#pragma once

#include "basis/grid.h"

namespace tavelo {

// A flag that has this value meanwhile, and the other one afterwards.
class ScopedFlag {
  public:
    ScopedFlag(bool& flag, bool meanwhile) : flag_(flag), meanwhile_(meanwhile) { flag_ = meanwhile_; }
    ~ScopedFlag() { flag_ = !meanwhile_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
    bool meanwhile_;
};

// A grid whose view hears nothing meanwhile, and of everything at once afterwards.
class WithoutRedraw {
  public:
    explicit WithoutRedraw(Grid& grid) : grid_(grid) { grid_.set_redraw(false); }
    ~WithoutRedraw() { grid_.set_redraw(true); }
    WithoutRedraw(const WithoutRedraw&) = delete;
    WithoutRedraw& operator=(const WithoutRedraw&) = delete;

  private:
    Grid& grid_;
};

} // namespace tavelo
