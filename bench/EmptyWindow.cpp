// A Qt program with nothing in it but a window of the player's kind, painted at once: what of a start is Qt's and the
// system's.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setPalette(QPalette(Qt::gray));
    window.resize(900, 600);
    window.show();
    return QApplication::exec();
}
