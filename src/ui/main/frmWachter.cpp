#include "ui/main/frmWachter.h"

#include "ui/main/auto_import.h"

#include <utility>

namespace tavelo {

Wachter::Wachter(QObject& venster, Bediening& bediening, FileReader& lezer, std::function<void()> toon_label,
                 std::function<void()> toon)
    : timer1_(&venster),
      nog_eens_(&venster),
      volger_(bediening, lezer, {std::move(toon_label), std::move(toon), [this] { nog_eens_.start(); }}) {
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setInterval(auto_import_interval_ms);
    nog_eens_.setObjectName(QStringLiteral("TimerNogeens"));
    nog_eens_.setSingleShot(true);
    nog_eens_.setInterval(rusttijd);
    QObject::connect(&timer1_, &QTimer::timeout, &timer1_, [this] { volger_.tik(); });
    QObject::connect(&nog_eens_, &QTimer::timeout, &nog_eens_, [this] { volger_.kijk_nog_eens(); });
}

void Wachter::einde() {
    timer1_.stop();
    nog_eens_.stop();
}

} // namespace tavelo
