#include "platform/application.h"

#include <QAbstractButton>
#include <QCursor>
#include <QDebug>
#include <QKeyEvent>
#include <QPixmapCache>
#include <QSettings>
#include <QShortcutEvent>

#include <exception>
#include <utility>

namespace tavelo {

namespace {

// The toolkit shows a button pressed for a tenth of a second before its key does anything; what is typed meanwhile
// would be done first. True when the button of the key was clicked.
bool clicks_at_once(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::Shortcut) return false;
    auto* button = qobject_cast<QAbstractButton*>(receiver);
    const auto& shortcut = static_cast<const QShortcutEvent&>(*event);
    if (!button || shortcut.isAmbiguous() || shortcut.key() != button->shortcut()) return false;
    if (button->isCheckable() && (button->focusPolicy() & Qt::ClickFocus)) button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return true;
}

// A session under Wayland has an X server beside it. Only there may a program say where its windows stand (the public
// monitor), keep one on top and fade the splash; and when the display goes, the toolkit ends in a way that lets the
// settings be saved. What the caller chose by himself stands.
int& prefer_x_server(int& argc) {
    constexpr const char* choice = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(choice) && qEnvironmentVariableIsSet("DISPLAY") &&
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv(choice, "xcb;wayland"); // the second when the X server does not answer
    return argc;
}

// The key alone, pressed once. A menu that is open keeps the mouse to itself: no other window would be of use.
bool is_f1(const QObject& receiver, const QEvent& event) {
    if (event.type() != QEvent::KeyPress || !receiver.isWidgetType() || QApplication::activePopupWidget()) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(prefer_x_server(argc), argv) {
    // In KiB. The toolkit keeps a picture of every button in every state and size, ten megabytes of them by the end of
    // a day; those of the windows that are open fit in this.
    QPixmapCache::setCacheLimit(512);
    // Below what is no folder nothing can be made. (Windows has its own dialogs and keeps no such file.)
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        if (clicks_at_once(receiver, event)) return true;
        if (is_f1(*receiver, *event)) {
            f1_(*static_cast<QWidget*>(receiver)->window());
            return true;
        }
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        qWarning() << "event handler stopped:" << error.what();
        return true;
    }
}

void QtPointer::busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

void QtPointer::normal() { QGuiApplication::restoreOverrideCursor(); }

void post_to_interface(std::function<void()> step) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(step), Qt::QueuedConnection);
}

} // namespace tavelo
