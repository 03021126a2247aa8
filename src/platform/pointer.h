// The hourglass over the whole program.
#pragma once

#include "basis/seams.h"

namespace tavelo {

class QtPointer final : public Pointer {
  public:
    void busy() override;
    void normal() override;
};

} // namespace tavelo
