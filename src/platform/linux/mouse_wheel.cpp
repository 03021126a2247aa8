#include "platform/mouse_wheel.h"

#include <QPointingDevice>

#include <algorithm>

namespace tavelo {

bool mouse_wheel_present() {
    const auto can_scroll = [](const QInputDevice* device) {
        return device && device->hasCapability(QInputDevice::Capability::Scroll);
    };
    // A system that lists no devices still has its core pointer.
    return std::ranges::any_of(QInputDevice::devices(), can_scroll) ||
           can_scroll(QPointingDevice::primaryPointingDevice());
}

} // namespace tavelo
