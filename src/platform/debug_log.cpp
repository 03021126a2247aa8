#include "platform/debug_log.h"

#include "platform/qt_text.h"

#include <QLoggingCategory>

namespace tavelo {

namespace {

const QLoggingCategory& category() {
    static const QLoggingCategory log("tavelo.overgeslagen");
    return log;
}

} // namespace

void DebugLog::skipped(std::size_t line, std::string_view key, std::string_view reason) {
    qCDebug(category).noquote() << "regel" << line << qt_text(key) << ':' << qt_text(reason);
}

} // namespace tavelo
