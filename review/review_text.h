#pragma once
// The number form and the masks through which Quiz800 shows numbers and times.

#include "core/date_value.h"

#include <string>

namespace tessera {

// A blank before a number that is not negative, so that labels read "Right: 5".
std::string NumberForm(long value);

// "##0.0%": 0.75 reads 75.0%.
std::string PercentText(float share);

// "##%" of a whole percent: 70 reads 70%, and 0 has no digit at all.
std::string WholePercentText(int percent);

// "h:mm:ss" of the time part of a date value; a day or more wraps round.
std::string ClockText(DateValue value);

} // namespace tessera
