// The place of a window among the others of the screen.
#pragma once

class QDialog;
class QWidget;

namespace tavelo {

// Above every window that is not on top itself, or back among the rest. Place, size and focus stay as they are.
void zet_bovenaan(QWidget& venster, bool bovenaan);
[[nodiscard]] bool staat_bovenaan(const QWidget& venster);
// Whether a visible window of the program does.
[[nodiscard]] bool staat_er_een_bovenaan();
// Takes the caption away for the system too, after an empty title was set: the toolkit shows the name of the program
// then.
void wis_titel(QWidget& venster);
// Whether an owned window stays on the screen when its owner is minimised. In every other respect it stays owned. On
// Windows that asks for the next function as well.
void blijft_zonder_eigenaar(QWidget& venster, bool blijft);
// Whether a message of the system to a window says that its owner is being minimised and it has to go too (Windows;
// false elsewhere). It stays when the message is handled and goes no further.
[[nodiscard]] bool meldt_verkleinde_eigenaar(const void* bericht);
// Before it is shown: a dialog goes on top while some window is there. On a single screen the operator would not find
// it behind the participant window, which cannot leave full screen while the dialog waits.
void blijf_bereikbaar(QDialog& dialoog);

} // namespace tavelo
