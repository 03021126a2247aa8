#include "platform/dialogs.h"

#include "app/programma.h"
#include "platform/codeWindowPos.h"
#include "platform/qt_text.h"

#include <QApplication>
#include <QMessageBox>

namespace tavelo {

QWidget* parent_window(const DialogOwner& owner) {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : owner.window.data();
}

void QtMessageBox::show(std::string_view text) {
    QMessageBox box(QMessageBox::NoIcon, qt_text(programma_titel), qt_text(text), QMessageBox::Ok,
                    parent_window(owner_));
    box.setTextFormat(Qt::PlainText); // a file may hold anything
    blijf_bereikbaar(box);
    box.exec();
}

} // namespace tavelo
