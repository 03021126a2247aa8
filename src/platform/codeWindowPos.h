// The place of a window among the others of the screen.
#pragma once

class QDialog;
class QWidget;

namespace tavelo {

// Above every window that is not on top itself, or back among the rest. Place, size and focus stay as they are.
void zet_bovenaan(QWidget& venster, bool bovenaan);
[[nodiscard]] bool staat_bovenaan(const QWidget& venster);
// Before it is shown: a dialog goes on top while some window is there. On a single screen the operator would not find
// it behind the participant window, which cannot leave full screen while the dialog waits.
void blijf_bereikbaar(QDialog& dialoog);

} // namespace tavelo
