#include "platform/browser.h"

#include "platform/qt_text.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tavelo {

namespace {

// Asks the desktop's own opener, which alone knows that there is no browser: the toolkit starts it and does not hear
// how it ends. Without a desktop it runs as long as the browser does.
void open_with(const QString& opener, const QUrl& page, const std::function<void()>& failed) {
    auto* process = new QProcess; // nobody's: an owner would end the browser with the program
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setWorkingDirectory(QDir::rootPath()); // keeps no medium in use
    QObject::connect(process, &QProcess::finished, process, [process, failed](int code, QProcess::ExitStatus status) {
        process->deleteLater();
        if (code != 0 || status != QProcess::NormalExit) failed();
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [process, failed](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        process->deleteLater();
        failed();
    });
    process->start(opener, {page.toString(QUrl::FullyEncoded)});
}

} // namespace

void SystemBrowser::open(std::string_view path, std::function<void()> failed) {
    const QUrl page = QUrl::fromLocalFile(QDir::cleanPath(qt_text(path)));
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!opener.isEmpty()) return open_with(opener, page, failed);
    if (!QDesktopServices::openUrl(page)) failed();
}

} // namespace tavelo
