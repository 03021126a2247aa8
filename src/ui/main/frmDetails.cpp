#include "ui/main/frmDetails.h"

#include "platform/elided_label.h"
#include "platform/qt_text.h"
#include "ui/main/frmPaneel.h"

#include <algorithm>
#include <array>

namespace tavelo {

namespace {

constexpr int onder = 6; // below the last line, in pixels

struct Ontwerp {
    const char* naam;
    const char* kop;
    std::string RubriekLabels::*tekst;
};
constexpr std::array<Ontwerp, 6> ontwerp = {{
    {"lblRubriek", "Rubriek", &RubriekLabels::lblRubriek},
    {"lblRingType", "Ringtype", &RubriekLabels::lblRingType},
    {"lblRingNaam", "Ring", &RubriekLabels::lblRingNaam},
    {"lblDagTijd", "Dag en tijd", &RubriekLabels::lblDagTijd},
    {"lblRubriekLijsten", "Lijsten", &RubriekLabels::lblRubriekLijsten},
    {"lblJury", "Jury", &RubriekLabels::lblJury},
}};

} // namespace

void toon_tekst(QLabel& label, const QString& kop, std::string_view tekst) {
    label.setText(line_of_text(tekst));
    label.setAccessibleName(kop + QStringLiteral(": ") + label.text());
}

RoosterDetails::RoosterDetails(QWidget* ouder) : QGroupBox(QStringLiteral("Rooster"), ouder) {
    setObjectName(QStringLiteral("frameRoosterinstellingen"));
    int kopbreedte = 0;
    for (const Ontwerp& o : ontwerp)
        kopbreedte = std::max(kopbreedte, fontMetrics().horizontalAdvance(QString::fromUtf8(o.kop) + ':'));
    label_links_ = twips(marge + kopbreedte + marge);
    for (const Ontwerp& o : ontwerp) {
        auto* kop = new QLabel(QString::fromUtf8(o.kop) + ':', this);
        kop->setForegroundRole(QPalette::PlaceholderText);
        kop->setAlignment(Qt::AlignTop);
        kop->resize(kopbreedte, 0);
        auto* label = new ElidedLabel(this);
        label->setObjectName(QString::fromUtf8(o.naam));
        label->setAlignment(Qt::AlignTop);
        details_.push_back({kop, label, QString::fromUtf8(o.kop), o.tekst});
    }
    QFont vet = font();
    vet.setBold(true);
    details_.front().label->setFont(vet);
    resize(100, kleinste_hoogte());
    zet_hoogte(height());
}

int RoosterDetails::regelhoogte() const { return line_height(fontMetrics()) + 3; }
int RoosterDetails::titelhoogte() const { return fontMetrics().height() + 10; }

int RoosterDetails::kleinste_hoogte() const {
    return titelhoogte() + static_cast<int>(details_.size()) * regelhoogte() + onder;
}

void RoosterDetails::zet_hoogte(int hoogte) {
    hoogte_ = hoogte;
    verdeel();
}

void RoosterDetails::zet_labelbreedte(int breedte) {
    breedte_ = std::max(pixels(breedte), 0);
    verdeel();
}

void RoosterDetails::toon(const RubriekLabels& labels) {
    for (const Detail& detail : details_)
        toon_tekst(*detail.label, detail.kop, labels.*detail.tekst);
    verdeel();
}

// A line for each, and what is left over to the long ones, the upper first.
void RoosterDetails::verdeel() {
    const int regel = line_height(fontMetrics());
    int vrij = (hoogte_ - kleinste_hoogte()) / regel;
    int y = titelhoogte();
    for (const Detail& detail : details_) {
        const int extra = std::clamp(detail.label->lines_for(breedte_) - 1, 0, std::max(vrij, 0));
        vrij -= extra;
        const int stap = regelhoogte() + extra * regel;
        detail.koplabel->setGeometry(marge, y, detail.koplabel->width(), stap);
        detail.label->setGeometry(pixels(label_links_), y, breedte_, stap);
        y += stap;
    }
}

} // namespace tavelo
