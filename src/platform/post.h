// The way from another thread to the interface's.
#pragma once

#include <functional>

namespace tavelo {

// Has a step done by the event loop of the interface, also while a dialog is open. Called from any thread for as long
// as the toolkit's application lives.
void post_to_interface(std::function<void()> step);

} // namespace tavelo
