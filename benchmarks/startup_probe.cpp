// Start-up probe: a process that reports the moment its first window gets its first paint
// (CLOCK_MONOTONIC nanoseconds on standard output) and quits on the spot. Built twice: as the
// program itself, and as a bare window of the title screen's size.

#ifdef TESSERA_PROBE_PROGRAM
#include "app/application.h"
#endif

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

#ifdef TESSERA_PROBE_PROGRAM
const QString Window = QStringLiteral("Pubdat");
#else
const QString Window = QStringLiteral("Bare");
#endif

class FirstPaint final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow() && watched->objectName() == Window) {
            timespec now{};
            clock_gettime(CLOCK_MONOTONIC, &now);
            std::printf("%lld\n", static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
            std::fflush(stdout);
            _exit(0);
        }
        return false;
    }
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication qt(argc, argv);
    FirstPaint probe;
    qt.installEventFilter(&probe);
#ifdef TESSERA_PROBE_PROGRAM
    tessera::Application application;
    return application.run();
#else
    QWidget window;
    window.setObjectName(Window);
    window.resize(640, 440);
    window.show();
    return QApplication::exec();
#endif
}
