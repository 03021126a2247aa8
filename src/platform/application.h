// The toolkit's application, at whose edge an exception out of an event handler stops. Its dialogs keep nothing for the
// next time: they would write a file of their own beside the settings.
#pragma once

#include <QApplication>

namespace tavelo {

class Application final : public QApplication {
  public:
    Application(int& argc, char** argv);
    // The event counts as handled and the program goes on; what went wrong is written to the log.
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace tavelo
