#include "fakes/read_faults.h"

#ifndef _WIN32

#include <algorithm>
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace {

thread_local tavelo::test::ReadFaults* present = nullptr;

} // namespace

extern "C" ssize_t read(int descriptor, void* to, size_t most) {
    if (present) {
        const tavelo::test::ReadStep step = present->next();
        if (step.before) {
            auto* const meanwhile = std::exchange(present, nullptr); // what the other program reads is none of ours
            step.before();
            present = meanwhile;
        }
        if (step.error != 0) {
            errno = step.error;
            return -1;
        }
        most = std::min(most, step.most);
    }
    return syscall(SYS_read, descriptor, to, most);
}

namespace tavelo::test {

ReadFaults::ReadFaults(std::vector<ReadStep> steps) : steps_(std::move(steps)) { present = this; }
ReadFaults::~ReadFaults() { present = nullptr; }

ReadStep ReadFaults::next() {
    const std::size_t n = reads_++;
    return n < steps_.size() ? steps_[n] : ReadStep{};
}

} // namespace tavelo::test

#endif
