// Special folders by their Windows identifier (CSIDL). Off Windows the nearest folder of the user's desktop.
#pragma once

#include "basis/seams.h"

namespace tavelo {

class SystemFolders final : public SpecialFolders {
  public:
    [[nodiscard]] std::optional<std::string> path(int csidl) const override;
};

} // namespace tavelo
