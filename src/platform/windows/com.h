// Objects of the system that count who uses them.
#pragma once

#include <memory>

#include <windows.h>

#include <unknwn.h>

namespace tavelo {

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using Com = std::unique_ptr<T, Release>;

} // namespace tavelo
