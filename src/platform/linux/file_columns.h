// The list of files in the open dialog, in Dutch: the toolkit fills it in the language of the computer.
#pragma once

class QFileDialog;

namespace tavelo {

// Size, kind and date of the toolkit's own list, in the default locale and as wide as they need. A dialog of the
// desktop has no such list and stays as it is.
void zet_kolommen(QFileDialog& dialog);

} // namespace tavelo
