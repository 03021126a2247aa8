// The line at the foot of the main window. It never takes the focus, and what it says moves nothing: its height is
// fixed and it asks for no width.
#pragma once

#include "ui/main/statusregel.h"

#include <QStatusBar>

#include <array>
#include <functional>

class QToolButton;

namespace tavelo {

class ElidedLabel;

class StatusBalk final : public QStatusBar {
  public:
    // A click on the line asks for the changes of the day, one on its button for the file of the slot once more.
    StatusBalk(std::function<void()> toon_wijzigingen, std::function<void()> heropen, QWidget* ouder);

    void toon(const Statusregel& regel);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    ElidedLabel* maak_deel(const char* naam, int rek);

    std::function<void()> toon_wijzigingen_;
    ElidedLabel* lblOpMonitor_ = nullptr;
    ElidedLabel* lblVenster_ = nullptr;
    ElidedLabel* lblHandleiding_ = nullptr;
    ElidedLabel* lblBuitenBeeld_ = nullptr;
    ElidedLabel* lblLijst_ = nullptr;
    ElidedLabel* lblHerlezen_ = nullptr;
    QToolButton* btnHeropenen_ = nullptr;
};

} // namespace tavelo
