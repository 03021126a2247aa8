#include "platform/mouse_wheel.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <QPointingDevice>

#include <algorithm>
#endif

namespace tavelo {

#ifdef _WIN32

bool mouse_wheel_present() { return GetSystemMetrics(SM_MOUSEWHEELPRESENT) != 0; }

#else

bool mouse_wheel_present() {
    const auto can_scroll = [](const QInputDevice* device) {
        return device && device->hasCapability(QInputDevice::Capability::Scroll);
    };
    // A system that lists no devices still has its core pointer.
    return std::ranges::any_of(QInputDevice::devices(), can_scroll) ||
           can_scroll(QPointingDevice::primaryPointingDevice());
}

#endif

} // namespace tavelo
