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

void note_excel(std::string_view text) {
    static const QLoggingCategory log("tavelo.excel");
    qCDebug(log).noquote() << qt_text(text);
}

} // namespace tavelo
