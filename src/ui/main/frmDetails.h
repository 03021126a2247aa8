// The details of the open schedule beside the panel.
#pragma once

#include "schedule/record/rubriek_labels.h"

#include <QGroupBox>

#include <string>
#include <string_view>
#include <vector>

class QLabel;

namespace tavelo {

class ElidedLabel;

// Shows a text out of a file; a screen reader hears what it is about as well.
void toon_tekst(QLabel& label, const QString& kop, std::string_view tekst);

class RoosterDetails final : public QGroupBox {
  public:
    explicit RoosterDetails(QWidget* ouder);

    void toon(const RubriekLabels& labels);

    // Of the labels inside, in twips: their left, and their width at the present size of the frame.
    [[nodiscard]] int label_links() const { return label_links_; }
    void zet_labelbreedte(int breedte);
    // In pixels: what the details need at least, and the height that they have: where there is room a long one takes
    // several lines.
    [[nodiscard]] int kleinste_hoogte() const;
    void zet_hoogte(int hoogte);

  private:
    struct Detail {
        QLabel* koplabel;
        ElidedLabel* label;
        QString kop;
        std::string RubriekLabels::*tekst;
    };
    [[nodiscard]] int regelhoogte() const;
    [[nodiscard]] int titelhoogte() const;
    void verdeel();

    std::vector<Detail> details_;
    int label_links_ = 0;
    int hoogte_ = 0;  // pixels
    int breedte_ = 0; // of the labels, in pixels
};

} // namespace tavelo
