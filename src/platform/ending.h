// The ends of a run that do not come from the operator: a signal, the end of the session, a display that is gone.
#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace tavelo {

// Listens for as long as it lives; there is one at a time, made on the interface's thread when the application is
// there.
class Ending final : public QObject {
  public:
    // `orderly` shuts the program down as closing the main window does, on the interface's thread, also when a dialog
    // or the splash is up; the program's loops then end. SIGTERM, SIGHUP (unless it was ignored from the start), SIGINT
    // and the end of a session lead to it. It may be called when the program has been shut down already.
    //
    // `last` runs when the process ends by exit(), wherever that is called: the toolkit does so when its X display is
    // gone. It may touch neither windows nor the display. Without a way in: the toolkit's Wayland plugin, used
    // where there is no X server, leaves by _exit() when the compositor dies, and no handler runs.
    Ending(std::function<void()> orderly, std::function<void()> last);
    ~Ending() override;
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void end();

    std::function<void()> orderly_;
    std::function<void()> last_;
    QSocketNotifier* signals_ = nullptr;
};

} // namespace tavelo
