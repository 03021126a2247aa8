#include "platform/keep_awake.h"

#include <windows.h>

namespace tavelo {

class KeepAwake::System {};

KeepAwake::KeepAwake() = default;

KeepAwake::~KeepAwake() { set(false); }

// Setting what is set already does nothing.
void KeepAwake::set(bool awake) {
    SetThreadExecutionState(awake ? ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
}

} // namespace tavelo
