#include "Host.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    CHostWindow window;
    window.show();
    return QApplication::exec();
}
