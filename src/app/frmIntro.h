// The splash: a picture and the version, fading in, for three seconds, on the screen where the main window is going to
// be. Only its timer closes it: not Esc, not the window manager. `exec` returns then.
#pragma once

#include "app/splash.h"

#include <QDialog>
#include <QTimer>

namespace tavelo {

class frmIntro final : public QDialog {
  public:
    explicit frmIntro(QWidget* parent = nullptr);

    [[nodiscard]] static QSize maat() { return {600, 380}; }

    void reject() override {} // Esc and the title bar's cross end here

  private:
    Vervaging vervaging_;
    QTimer timer1_{this};
    QTimer timer2_{this};
};

} // namespace tavelo
