#include "platform/system_clock.h"

#include <QDateTime>

#include <ctime>

namespace tessera {

namespace {

const QDate DateOrigin(1899, 12, 30);
constexpr double MillisecondsPerDay = 86400000.0;

} // namespace

double SystemClock::now() const {
    const QDateTime local = QDateTime::currentDateTime();
    return static_cast<double>(DateOrigin.daysTo(local.date())) +
           local.time().msecsSinceStartOfDay() / MillisecondsPerDay;
}

double SystemClock::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

bool SystemClock::setTimeOfDay(int hours, int minutes, int seconds) {
    const QTime time(hours, minutes, seconds);
    if (!time.isValid())
        return false;
    const QDateTime wanted(QDate::currentDate(), time);
    timespec value{};
    value.tv_sec = static_cast<time_t>(wanted.toSecsSinceEpoch());
    return clock_settime(CLOCK_REALTIME, &value) == 0;
}

} // namespace tessera
