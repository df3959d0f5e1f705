#pragma once
// The text masks through which the screens and printed cards show numbers, shares and times.

#include "core/date_value.h"

#include <string>

namespace tessera {

// The number form: one leading blank if the number is not negative, " 5", "-5".
std::string NumberText(long value);

// The "@" mask: text filled into n character places from the right; a longer text stays whole.
std::string RightAligned(const std::string& text, int columns);

// "##0.0%" (and "0.0%", which reads the same for a share): 0.875 reads 87.5%, 1 reads 100.0%.
std::string ShareText(double share);

// "###.0%": no digit before the point when the whole part is 0, so 0.004 reads .4%.
std::string ShortShareText(double share);

// "###": the digits, and nothing at all for 0.
std::string DigitsOrNothing(long value);

// "##,##0" (zeroShows) and "##,###": thousands separated by commas, 1234 reads 1,234.
std::string GroupedText(long value, bool zeroShows = true);

// "h:mm:ss" of the time of day of a date value, to the nearest second; a day or more wraps.
std::string HoursMinutesSeconds(DateValue value);

// "hh:mm:ss": the same with two digits of hours.
std::string PaddedHoursMinutesSeconds(DateValue value);

} // namespace tessera
