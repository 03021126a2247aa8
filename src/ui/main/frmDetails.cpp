#include "ui/main/frmDetails.h"

#include "platform/elided_label.h"
#include "platform/qt_text.h"
#include "ui/main/frmPaneel.h"

#include <algorithm>
#include <array>

namespace tavelo {

namespace {

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
    const int regel = fontMetrics().height() + 3;
    const int boven = fontMetrics().height() + 6; // below the title of the frame
    int kopbreedte = 0;
    for (const Ontwerp& o : ontwerp)
        kopbreedte = std::max(kopbreedte, fontMetrics().horizontalAdvance(QString::fromUtf8(o.kop) + ':'));
    label_links_ = twips(marge + kopbreedte + marge);
    int y = boven;
    for (const Ontwerp& o : ontwerp) {
        auto* kop = new QLabel(QString::fromUtf8(o.kop) + ':', this);
        kop->setForegroundRole(QPalette::PlaceholderText);
        kop->setGeometry(marge, y, kopbreedte, regel);
        auto* label = new ElidedLabel(this);
        label->setObjectName(QString::fromUtf8(o.naam));
        label->setGeometry(pixels(label_links_), y, 100, regel);
        details_.push_back({label, QString::fromUtf8(o.kop), o.tekst});
        y += regel;
    }
    QFont vet = font();
    vet.setBold(true);
    details_.front().label->setFont(vet);
    resize(100, y + 6);
}

void RoosterDetails::toon(const RubriekLabels& labels) {
    for (const Detail& detail : details_)
        toon_tekst(*detail.label, detail.kop, labels.*detail.tekst);
}

void RoosterDetails::zet_labelbreedte(int breedte) {
    for (const Detail& detail : details_)
        detail.label->resize(std::max(pixels(breedte), 0), detail.label->height());
}

} // namespace tavelo
