#pragma once
// Date values count days since 30 December 1899; minutes divide by 1440.

#include <string>

namespace tessera {

using DateValue = double;

inline constexpr double MinutesPerDay = 1440.0;

// The ten-character month-day-year text of a date value, as in 11-19-2026.
std::string DateText(DateValue value);

// The date in the form "dddd, mmmm d, yyyy", as in Thursday, November 19, 2026.
std::string LongDateText(DateValue value);

// The time of day in the form "h:mm:ss AM/PM", as in 9:05:00 AM.
std::string TimeOfDayText(DateValue value);

// The date value of a calendar day at midnight.
DateValue DateFromParts(int year, int month, int day);

} // namespace tessera
