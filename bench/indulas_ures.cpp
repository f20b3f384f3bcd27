// The same for an empty main window: what the toolkit itself costs.

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    QMainWindow ablak;
    ablak.resize(995, 717);
    ablak.show();
    QTimer::singleShot(0, &program, &QApplication::quit);
    return QApplication::exec();
}
