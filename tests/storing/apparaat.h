// A device for a test to point at.
#pragma once

#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tavelo::test {

// Makes a null device at `path`. Who may not make one gets the system's: he cannot replace that either, so that a test
// that fails harms nobody.
inline std::string null_device(const std::string& path) {
    return mknod(path.c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0 ? path : "/dev/null";
}

} // namespace tavelo::test
