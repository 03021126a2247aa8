#include "ui/main/frmStatus.h"

#include "platform/elided_label.h"
#include "platform/qt_text.h"

#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

constexpr std::int32_t amber = 0x3CBFFF;

void toon_deel(ElidedLabel& label, const StatusDeel& deel, const QPalette& gewoon) {
    QPalette kleuren = gewoon;
    if (deel.let_op) {
        kleuren.setColor(QPalette::Window, qt_colour(amber));
        kleuren.setColor(QPalette::WindowText, Qt::black);
    }
    label.setPalette(kleuren);
    label.setAutoFillBackground(deel.let_op);
    label.setText(line_of_text(deel.tekst));
    label.setVisible(!deel.tekst.empty());
}

} // namespace

StatusBalk::StatusBalk(std::function<void()> toon_wijzigingen, std::function<void()> heropen, QWidget* ouder)
    : QStatusBar(ouder), toon_wijzigingen_(std::move(toon_wijzigingen)) {
    setObjectName(QStringLiteral("statusregel"));
    setSizeGripEnabled(false);
    setFixedHeight(fontMetrics().height() + 12);
    setMinimumWidth(1);
    setContentsMargins(6, 0, 6, 0);
    setCursor(Qt::PointingHandCursor);
    lblOpMonitor_ = maak_deel("lblOpMonitor", 0);
    lblVenster_ = maak_deel("lblVenster", 0);
    lblHandleiding_ = maak_deel("lblHandleiding", 0);
    lblBuitenBeeld_ = maak_deel("lblBuitenBeeld", 0);
    lblLijst_ = maak_deel("lblLijst", 0);
    btnHeropenen_ = new QToolButton(this);
    btnHeropenen_->setObjectName(QStringLiteral("btnHeropenen"));
    btnHeropenen_->setText(QStringLiteral("Heropenen (F5)"));
    btnHeropenen_->setToolTip(QStringLiteral("Het bestand van dit rooster opnieuw openen (F5)"));
    btnHeropenen_->setFocusPolicy(Qt::NoFocus);
    btnHeropenen_->setCursor(Qt::ArrowCursor);
    btnHeropenen_->setFixedHeight(fontMetrics().height() + 6);
    btnHeropenen_->hide();
    connect(btnHeropenen_, &QToolButton::clicked, this, [heropen = std::move(heropen)] { heropen(); });
    addWidget(btnHeropenen_);
    addWidget(new QWidget(this), 1); // what is left over
    lblHerlezen_ = maak_deel("lblHerlezen", 0);
}

ElidedLabel* StatusBalk::maak_deel(const char* naam, int rek) {
    auto* label = new ElidedLabel(this);
    label->setObjectName(QString::fromUtf8(naam));
    label->setMargin(4);
    label->setMinimumWidth(1);
    label->setToolTip(QStringLiteral("Klik of druk op F6: wat er vandaag gewijzigd is"));
    addWidget(label, rek);
    return label;
}

void StatusBalk::toon(const Statusregel& regel) {
    toon_deel(*lblOpMonitor_, regel.monitor, palette());
    toon_deel(*lblVenster_, regel.venster, palette());
    toon_deel(*lblHandleiding_, regel.handleiding, palette());
    toon_deel(*lblBuitenBeeld_, regel.buiten_beeld, palette());
    toon_deel(*lblLijst_, regel.lijst, palette());
    toon_deel(*lblHerlezen_, regel.herlezen, palette());
    lblVenster_->setMinimumWidth(lblVenster_->sizeHint().width()); // short, and never the one to give way
    btnHeropenen_->setVisible(regel.biedt_heropenen);

    QStringList gezegd;
    for (const StatusDeel* deel :
         {&regel.monitor, &regel.venster, &regel.handleiding, &regel.buiten_beeld, &regel.lijst, &regel.herlezen})
        if (!deel->tekst.empty()) gezegd += line_of_text(deel->tekst);
    setAccessibleName(gezegd.join(QStringLiteral("; ")));
}

void StatusBalk::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) toon_wijzigingen_();
}

} // namespace tavelo
