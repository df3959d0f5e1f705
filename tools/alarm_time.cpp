#include "tools/alarm_time.h"

#include "platform/clock.h"

#include <QRegularExpression>

#include <cmath>

namespace tessera {

std::optional<int> ParseTimeOfDay(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*(\d{1,2})(?::(\d{1,2}))?(?::(\d{1,2}))?\s*([AaPp])(?:[Mm])?\s*$)"
                       R"(|^\s*(\d{1,2}):(\d{1,2})(?::(\d{1,2}))?\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const bool twelveHour = match.hasCaptured(4);
    const int first = twelveHour ? 1 : 5;
    int hours = match.captured(first).toInt();
    const int minutes = match.captured(first + 1).toInt();
    const int seconds = match.captured(first + 2).toInt();
    if (minutes > 59 || seconds > 59)
        return std::nullopt;
    if (twelveHour) {
        if (hours > 12)
            return std::nullopt;
        const bool afternoon =
            match.captured(4).compare(QStringLiteral("p"), Qt::CaseInsensitive) == 0;
        // 12 AM is midnight and 12 PM noon.
        hours = hours % 12 + (afternoon ? 12 : 0);
    } else if (hours > 23) {
        return std::nullopt;
    }
    return hours * 3600 + minutes * 60 + seconds;
}

namespace {

struct ClockFace {
    int hour12;
    int minutes;
    int seconds;
    QString half;
};

ClockFace faceOf(int timeOfDay) {
    const int hours = timeOfDay / 3600;
    const int hour12 = hours % 12 == 0 ? 12 : hours % 12;
    return {hour12, timeOfDay / 60 % 60, timeOfDay % 60,
            hours < 12 ? QStringLiteral("AM") : QStringLiteral("PM")};
}

} // namespace

QString LongTimeText(int timeOfDay) {
    const ClockFace face = faceOf(timeOfDay);
    return QStringLiteral("%1:%2:%3 %4")
        .arg(face.hour12)
        .arg(face.minutes, 2, 10, QLatin1Char('0'))
        .arg(face.seconds, 2, 10, QLatin1Char('0'))
        .arg(face.half);
}

QString MediumTimeText(int timeOfDay) {
    const ClockFace face = faceOf(timeOfDay);
    return QStringLiteral("%1:%2 %3")
        .arg(face.hour12, 2, 10, QLatin1Char('0'))
        .arg(face.minutes, 2, 10, QLatin1Char('0'))
        .arg(face.half);
}

int TimeOfDayNow(const Clock& clock) {
    return static_cast<int>(std::floor(clock.secondsSinceMidnight())) % SecondsPerDay;
}

int AutoSetAlarmTime(DateValue now, int row) {
    const DateValue alarm = now + (row + 1) * 10 / MinutesPerDay;
    const double fraction = alarm - std::floor(alarm);
    return static_cast<int>(std::llround(fraction * SecondsPerDay) % SecondsPerDay);
}

QString AutoSetRowText(int row) {
    return QStringLiteral("%1 min.").arg((row + 1) * 10);
}

} // namespace tessera
