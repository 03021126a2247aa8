// The least that a window of the toolkit has to do to show a key: the floor that scripts/bench_toets.py measures the
// public's wall against. Fills the screen whose name is given, and shows the last key in the middle of it.
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

class LeegVenster final : public QWidget {
  protected:
    void keyPressEvent(QKeyEvent* event) override {
        key_ = event->text();
        update();
    }
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter p(this);
        p.fillRect(rect(), Qt::white);
        p.setFont(QFont(QStringLiteral("Arial"), 200));
        p.drawText(rect(), Qt::AlignCenter, key_);
    }

  private:
    QString key_;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication toepassing(argc, argv);
    LeegVenster venster;
    venster.setWindowTitle(QStringLiteral("leeg venster"));
    const QList<QScreen*> schermen = QGuiApplication::screens();
    const auto scherm = std::ranges::find(schermen, QApplication::arguments().value(1), &QScreen::name);
    if (scherm == schermen.end()) return 1;
    venster.setGeometry((*scherm)->geometry());
    venster.showFullScreen();
    return QApplication::exec();
}
