// Whether the computer has a mouse wheel, or a pad that turns like one.
#pragma once

namespace tavelo {

[[nodiscard]] bool mouse_wheel_present();

} // namespace tavelo
