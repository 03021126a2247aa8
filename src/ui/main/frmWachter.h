// The timers behind the poll of the schedule file: every ten seconds, and once more after a moment of rest.
#pragma once

#include "ui/main/volg_rooster.h"

#include <QTimer>

namespace tavelo {

class Wachter {
  public:
    // `venster` owns the timers for who looks for them by name ("Timer1", "TimerNogeens").
    Wachter(QObject& venster, Bediening& bediening, FileReader& lezer, std::function<void()> toon_label,
            std::function<void()> toon);

    void begin() { timer1_.start(); }
    void einde();

  private:
    QTimer timer1_;
    QTimer nog_eens_;
    RoosterVolger volger_;
};

} // namespace tavelo
