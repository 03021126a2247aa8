#include "platform/pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace tavelo {

void QtPointer::busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

void QtPointer::normal() { QGuiApplication::restoreOverrideCursor(); }

} // namespace tavelo
