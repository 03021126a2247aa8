// The splash: a picture and the version, fading in, for three seconds. `exec` returns when it has closed.
#pragma once

#include "app/splash.h"

#include <QDialog>
#include <QTimer>

namespace tavelo {

class frmIntro final : public QDialog {
  public:
    explicit frmIntro(QWidget* parent = nullptr);

    [[nodiscard]] static QSize maat() { return {600, 380}; }

  private:
    Vervaging vervaging_;
    QTimer timer1_{this};
    QTimer timer2_{this};
};

} // namespace tavelo
