#include <QApplication>

int main(int argc, char** argv) {
    QApplication toepassing(argc, argv);
    return 0;
}
