#include "platform/application.h"

#include <QDebug>

#include <exception>

namespace tavelo {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        qWarning() << "event handler stopped:" << error.what();
        return true;
    }
}

} // namespace tavelo
