// The toolkit's application, at whose edge an exception out of an event handler stops, and F1 is heard in whatever
// window has the keys. Its dialogs keep nothing for the next time: they would write a file of their own beside the
// settings.
#pragma once

#include "basis/seams.h"

#include <QApplication>

#include <functional>

namespace tavelo {

class Application final : public QApplication {
  public:
    Application(int& argc, char** argv);
    // The event counts as handled and the program goes on; what went wrong is written to the log.
    bool notify(QObject* receiver, QEvent* event) override;

    // Called for F1 alone with the window or dialog that has the keys. That does not get it itself: the toolkit's open
    // dialog would keep it.
    void bij_f1(std::function<void(const QWidget& venster)> gevraagd) { f1_ = std::move(gevraagd); }

  private:
    std::function<void(const QWidget& venster)> f1_ = [](const QWidget&) {};
};

// The hourglass over the whole program.
class QtPointer final : public Pointer {
  public:
    void busy() override;
    void normal() override;
};

// The way from another thread: has a step done by the event loop of the interface, also while a dialog is open. Called
// from any thread for as long as the application lives.
void post_to_interface(std::function<void()> step);

} // namespace tavelo
