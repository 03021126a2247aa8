// Paints the areas of a display window as they were composed.
#pragma once

#include "ui/display/tekenvlak.h"

#include <QWidget>

namespace tavelo {

// One area. `vlak` is not owned and outlives the widget; after a composition call `update`.
class TekenvlakWidget : public QWidget {
  public:
    TekenvlakWidget(const Tekenvlak& vlak, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Tekenvlak& vlak_;
};

// Both areas: itself `picDeelnemer`, with `picRubriek` as its child over the top.
class VertoningWidget final : public TekenvlakWidget {
  public:
    VertoningWidget(Vertoning& vertoning, QWidget* parent);

    // Before a composition: the area gets the size of the widget.
    void neem_maat();
    // After a composition.
    void ververs();

  private:
    Vertoning& vertoning_;
    TekenvlakWidget picRubriek_;
};

// All texts of an area, its background first.
void schilder(QPainter& schilder, const QRectF& gebied, const Tekenvlak& vlak);

} // namespace tavelo
