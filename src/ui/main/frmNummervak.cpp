#include "ui/main/frmNummervak.h"

#include "platform/qt_text.h"
#include "ui/main/nummer_typen.h"

#include <QKeyEvent>

#include <optional>
#include <utility>

namespace tavelo {

namespace {

// Which way a key steps through the list; nothing for a key that does not. The signs need Shift on most keyboards.
std::optional<Blader> stap_van(const QKeyEvent& event) {
    const Qt::KeyboardModifiers toetsen = event.modifiers();
    if (toetsen & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
    if (event.text() == QStringLiteral("+")) return Blader::volgende;
    if (event.text() == QStringLiteral("-")) return Blader::vorige;
    if (toetsen & Qt::ShiftModifier) return std::nullopt;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return Blader::vorige;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return Blader::volgende;
    default:
        return std::nullopt;
    }
}

// A modifier, which a digit needs on some keyboards, or a function key: neither goes on with a number.
bool is_geen_invoer(const QKeyEvent& event) { return event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_F35; }

} // namespace

bool is_cijfer(const QKeyEvent& event) {
    const QString tekst = event.text();
    return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) && tekst.size() == 1 &&
           tekst[0] >= '0' && tekst[0] <= '9';
}

Nummervak::Nummervak(const Grid& rooster, std::function<void(Blader richting)> blader, QWidget* ouder)
    : QLineEdit(ouder), rooster_(rooster), blader_(std::move(blader)) {
    setObjectName(QStringLiteral("txtINR"));
    connect(this, &QLineEdit::returnPressed, this, &QLineEdit::selectAll);
}

// The text of the box after typing the digit.
QString Nummervak::tekst_met(const QString& cijfer) const {
    const int begin = hasSelectedText() ? selectionStart() : cursorPosition();
    return text().left(begin) + cijfer + text().mid(begin + static_cast<int>(selectedText().size()));
}

void Nummervak::keyPressEvent(QKeyEvent* event) {
    if (is_geen_invoer(*event)) return QLineEdit::keyPressEvent(event);
    const quint64 nu = event->timestamp();
    const quint64 vorige = std::exchange(vorige_toets_, nu);
    if (const std::optional<Blader> stap = stap_van(*event)) {
        blader_(*stap);
        return;
    }
    const bool bekend = vorige != 0 && nu > vorige; // the clock of the display begins again after some weeks
    const std::chrono::milliseconds sinds(bekend ? nu - vorige : 0);
    if (is_cijfer(*event) && begint_nieuw_nummer(rooster_, utf8(tekst_met(event->text())), sinds)) selectAll();
    QLineEdit::keyPressEvent(event);
}

void Nummervak::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return; // its own menu was open: it had the focus all the time
    selectAll();
    klik_bracht_focus_ = event->reason() == Qt::MouseFocusReason;
}

// The toolkit puts the cursor where the click was; who drags over a part selects that part.
void Nummervak::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(klik_bracht_focus_, false) && !hasSelectedText()) selectAll();
}

} // namespace tavelo
