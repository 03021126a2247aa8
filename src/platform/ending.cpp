#include "platform/ending.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>

#include <cstdlib>
#include <utility>

#ifndef _WIN32
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tavelo {

namespace {

const std::function<void()>* at_exit = nullptr;

void run_at_exit() {
    if (const auto* last = std::exchange(at_exit, nullptr)) (*last)();
}

#ifndef _WIN32

constexpr std::array ending_signals = {SIGTERM, SIGHUP, SIGINT};

// A signal comes in the middle of anything: all that may be done there is to write a byte into a pipe, which the loop
// reads. Open until the end of the process, so that a late signal finds it.
std::array<int, 2> pipe_ends = {-1, -1};

extern "C" void tavelo_note_signal(int) {
    const int error = errno;
    static_cast<void>(!write(pipe_ends[1], "", 1)); // a full pipe tells the same
    errno = error;
}

void set_handler(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) return; // started by nohup
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

#endif

} // namespace

Ending::Ending(std::function<void()> orderly, std::function<void()> last)
    : orderly_(std::move(orderly)), last_(std::move(last)) {
    // The session's end reaches the application as a wish to quit; Windows tells only that it is about to.
    qApp->installEventFilter(this);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { orderly_(); });

    at_exit = &last_;
    static const bool registered = std::atexit(run_at_exit) == 0;
    static_cast<void>(registered);

#ifndef _WIN32
    std::signal(SIGPIPE, SIG_IGN); // whoever read our log may have gone
    if (pipe_ends[0] < 0 && pipe2(pipe_ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    signals_ = new QSocketNotifier(pipe_ends[0], QSocketNotifier::Read, this);
    connect(signals_, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (read(pipe_ends[0], bytes.data(), bytes.size()) > 0) {
        }
        end();
    });
    for (const int signal : ending_signals)
        set_handler(signal, tavelo_note_signal);
#endif
}

Ending::~Ending() {
    at_exit = nullptr;
#ifndef _WIN32
    for (const int signal : ending_signals)
        set_handler(signal, SIG_DFL);
#endif
}

bool Ending::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == qApp && event->type() == QEvent::Quit) orderly_();
    return QObject::eventFilter(receiver, event);
}

void Ending::end() {
    orderly_();
    QCoreApplication::exit(0); // the loop of a dialog as well
}

} // namespace tavelo
