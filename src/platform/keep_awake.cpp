#include "platform/keep_awake.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#endif

namespace tavelo {

KeepAwake::~KeepAwake() { set(false); }

#ifdef _WIN32

void KeepAwake::set(bool awake) {
    if (awake == awake_) return;
    awake_ = awake;
    SetThreadExecutionState(awake ? ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
}

#else

namespace {

// Asking for the bus of a session that has none would start one.
bool session_has_bus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

QDBusMessage screen_saver_call(const QString& method) {
    const QString service = QStringLiteral("org.freedesktop.ScreenSaver");
    return QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/ScreenSaver"), service, method);
}

} // namespace

void KeepAwake::set(bool awake) {
    if (awake == awake_) return;
    awake_ = awake;
    if (awake) {
        inhibit();
    } else if (cookie_) {
        release(*cookie_);
        cookie_.reset();
    }
}

void KeepAwake::inhibit() {
    if (!session_has_bus()) return;
    QDBusMessage call = screen_saver_call(QStringLiteral("Inhibit"));
    call << QStringLiteral("Tavelo") << QStringLiteral("Deelnemers op de monitor");
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), &context_);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [this, answer] {
        const QDBusPendingReply<std::uint32_t> reply = *answer;
        answer->deleteLater();
        if (reply.isError()) return;
        // Left full screen before the desktop answered: hand it back at once. A second answer replaces the first.
        if (!awake_ || cookie_)
            release(reply.value());
        else
            cookie_ = reply.value();
    });
}

void KeepAwake::release(std::uint32_t cookie) const {
    QDBusMessage call = screen_saver_call(QStringLiteral("UnInhibit"));
    call << cookie;
    QDBusConnection::sessionBus().asyncCall(call);
}

#endif

} // namespace tavelo
