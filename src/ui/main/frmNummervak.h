// The number box. What a digit does to the number in it is a rule beside this file; keys that step are never typed.
#pragma once

#include "basis/grid.h"
#include "ui/main/huidige_combinatie.h"

#include <QLineEdit>

#include <functional>

namespace tavelo {

class Nummervak final : public QLineEdit {
  public:
    // `rooster` holds the numbers that can be meant; it outlives the widget.
    Nummervak(const Grid& rooster, std::function<void(Blader richting)> blader, QWidget* ouder);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QString tekst_met(const QString& cijfer) const;

    const Grid& rooster_;
    std::function<void(Blader richting)> blader_;
    quint64 vorige_toets_ = 0;       // when the last key was pressed, in ms on the clock of the events; 0 is unknown
    bool klik_bracht_focus_ = false; // the button of the mouse is still down
};

// A key that types one of the digits 0 to 9, with Shift on a Belgian or French keyboard.
[[nodiscard]] bool is_cijfer(const QKeyEvent& event);

} // namespace tavelo
