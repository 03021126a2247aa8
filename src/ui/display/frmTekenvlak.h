// Paints the areas of a display window as they were composed. After a composition only what changed is painted: on a
// large monitor the background alone takes longer than the texts.
#pragma once

#include "ui/display/tekenvlak.h"

#include <QRect>
#include <QWidget>

#include <vector>

namespace tavelo {

// One area. `vlak` is not owned and outlives the widget.
class TekenvlakWidget : public QWidget {
  public:
    TekenvlakWidget(const Tekenvlak& vlak, QWidget* parent);

    // After a composition.
    void ververs();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Tekenvlak& vlak_;
    Tekenvlak getoond_;           // as it was composed when it was last asked to be painted
    std::vector<QRect> plaatsen_; // of its texts, with all their ink
};

// Both areas, to a screen reader one picture with its texts: itself `picDeelnemer`, with `picRubriek` as its child over
// the top.
class VertoningWidget final : public TekenvlakWidget {
  public:
    VertoningWidget(Vertoning& vertoning, QWidget* parent);

    // Before a composition: the area gets the size of the widget.
    void neem_maat();
    // After a composition.
    void ververs();
    // All texts, the heading first, for who cannot see them.
    [[nodiscard]] QString voorgelezen() const;

  private:
    Vertoning& vertoning_;
    TekenvlakWidget picRubriek_;
};

// All texts of an area, its background first.
void schilder(QPainter& schilder, const QRectF& gebied, const Tekenvlak& vlak);

} // namespace tavelo
