#include "platform/mouse_wheel.h"

#include <windows.h>

namespace tavelo {

bool mouse_wheel_present() { return GetSystemMetrics(SM_MOUSEWHEELPRESENT) != 0; }

} // namespace tavelo
