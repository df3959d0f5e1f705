#pragma once
// Numbers kept as text, as the desk tools keep them: read by their longest numeric prefix,
// written in the general form with at most 15 significant digits.

#include <string>
#include <string_view>

namespace tessera {

// The value of the longest numeric prefix after leading blanks: "12." is 12, "-3.5x" is -3.5,
// "1E+20" is 1E+20, and a text without one is 0. Too large a number reads as infinity.
double NumericValue(std::string_view text);

// 5 gives "5", 0.5 gives "0.5", 1E+20 gives "1E+20"; never a trailing point.
std::string FloatText(double value);

} // namespace tessera
