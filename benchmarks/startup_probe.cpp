// Start-up probe: a process that reports the moment its first window has been painted whole,
// with every control in it, (CLOCK_MONOTONIC nanoseconds on standard output) and quits on the
// spot. Built three times: as the program itself, as a bare window of the title screen's size,
// and as that window with one line of text, which shows what the font system alone costs.

#ifdef TESSERA_PROBE_PROGRAM
#include "app/application.h"
#endif

#include <QApplication>
#include <QEvent>
#include <QLabel>
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
            // The window paints first, its controls after it in the same pass; the pass is
            // over when the event loop takes the next queued call.
            QMetaObject::invokeMethod(this, &FirstPaint::report, Qt::QueuedConnection);
        }
        return false;
    }

private:
    [[noreturn]] void report() {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        std::printf("%lld\n", static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
        std::fflush(stdout);
        _exit(0);
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
#ifdef TESSERA_PROBE_ONE_LINE
    auto* line = new QLabel(QStringLiteral("REAL ESTATE SALESPERSON TESSERA"), &window);
    line->move(40, 40);
#endif
    window.show();
    return QApplication::exec();
#endif
}
