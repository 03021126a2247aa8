// The place of a window among the others of the screen.
#pragma once

class QWidget;

namespace tavelo {

// Above every window that is not on top itself, or back among the rest. Place, size and focus stay as they are.
void zet_bovenaan(QWidget& venster, bool bovenaan);
[[nodiscard]] bool staat_bovenaan(const QWidget& venster);

} // namespace tavelo
