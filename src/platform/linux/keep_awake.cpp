#include "platform/keep_awake.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QObject>

#include <cstdint>
#include <optional>

namespace tavelo {

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

class KeepAwake::System {
  public:
    void set(bool awake);

  private:
    void inhibit();
    void release(std::uint32_t cookie) const;

    bool awake_ = false;
    QObject context_;                     // ends a pending answer with this object
    std::optional<std::uint32_t> cookie_; // of the desktop, while it keeps the displays on for us
};

KeepAwake::KeepAwake() : system_(std::make_unique<System>()) {}

KeepAwake::~KeepAwake() { set(false); }

void KeepAwake::set(bool awake) { system_->set(awake); }

void KeepAwake::System::set(bool awake) {
    if (awake == awake_) return;
    awake_ = awake;
    if (awake) {
        inhibit();
    } else if (cookie_) {
        release(*cookie_);
        cookie_.reset();
    }
}

void KeepAwake::System::inhibit() {
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

void KeepAwake::System::release(std::uint32_t cookie) const {
    QDBusMessage call = screen_saver_call(QStringLiteral("UnInhibit"));
    call << cookie;
    QDBusConnection::sessionBus().asyncCall(call);
}

} // namespace tavelo
