// The settings store of who uses the program: the registry on Windows, a file elsewhere.
#pragma once

#include "basis/seams.h"

#include <memory>

namespace tavelo {

[[nodiscard]] std::unique_ptr<SettingsStore> user_settings();

} // namespace tavelo
