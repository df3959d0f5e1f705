// Tessera: the program takes no arguments and finds all its files in the current directory.

#include "app/application.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tessera"));
    // Lets a Wayland desktop match the windows to the installed menu entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("academy.orlanda.Tessera"));
    tessera::Application application;
    return application.run();
}
