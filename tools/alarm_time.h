#pragma once
// The alarm clock's time arithmetic. A time of day is kept in whole seconds since midnight, so
// that later is a plain comparison and a setting means the same time every day.

#include "core/date_value.h"

#include <QString>

#include <optional>

namespace tessera {

class Clock;

inline constexpr int SecondsPerDay = 86400;

// Any 12- or 24-hour clock time: 7:30, 7:30 PM, 19:30, 7:30:15 pm, 7 PM. Without AM or PM a
// 12-hour time is taken as AM. Nothing for a text that is not a time of day.
std::optional<int> ParseTimeOfDay(const QString& text);

// The long time form, as in 2:25:30 PM.
QString LongTimeText(int timeOfDay);
// The "Medium Time" form of a minimized window's title, as in 07:30 AM.
QString MediumTimeText(int timeOfDay);

// The time of day now, in whole seconds, as the system's time of day gives it.
int TimeOfDayNow(const Clock& clock);

// Auto Set: the time of day (row + 1) times 10 minutes after now, to the second; the date and
// any midnight crossed are dropped.
int AutoSetAlarmTime(DateValue now, int row);

// The rows of the minutes list: "10 min." to "600 min.".
inline constexpr int AutoSetRows = 60;
QString AutoSetRowText(int row);

} // namespace tessera
