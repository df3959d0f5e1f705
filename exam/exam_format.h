#pragma once
// The text forms of the exam screens: number texts, list rows, captions, times and shares.

#include "core/date_value.h"

#include <string>

namespace tessera {

// A number with one leading blank if it is not negative: " 5", "-5".
std::string NumberText(long value);

// The "@" mask: text filled into n character places from the right; a longer text stays whole.
std::string RightAligned(const std::string& text, int columns);

// A count in the form "@@@@" of a number text: "   5", " 300".
std::string CountColumns(long value);

// The letter of a choice, 1 for "A"; a blank for none.
char ChoiceLetter(int choice);

// A time of day or a span of a date value in the form "h:mm:ss", to the nearest second.
std::string HoursMinutesSeconds(DateValue value);

// A share from 0 to 1 in the form "0.0%": "75.0%", "0.0%".
std::string ShareText(double share);

// A share in the form "##.0%": "29.9%", ".0%".
std::string ShortShareText(double share);

} // namespace tessera
