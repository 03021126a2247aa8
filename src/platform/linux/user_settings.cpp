#include "platform/user_settings.h"

#include "platform/linux/settings_store.h"

namespace tavelo {

std::unique_ptr<SettingsStore> user_settings() { return std::make_unique<UserSettingsStore>(); }

} // namespace tavelo
