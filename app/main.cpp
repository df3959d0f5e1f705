// Tessera: the program takes no arguments and finds all its files in the current directory.

#include "app/application.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tessera"));
    tessera::Application application;
    return application.run();
}
