#include "review/review_text.h"

#include <cmath>
#include <cstdio>

namespace tessera {

std::string NumberForm(long value) {
    const std::string digits = std::to_string(value);
    return value < 0 ? digits : " " + digits;
}

std::string PercentText(float share) {
    // Halves round away from zero, as the mask does, not to even.
    const double tenths = std::round(static_cast<double>(share) * 1000.0);
    char text[32];
    std::snprintf(text, sizeof text, "%.1f%%", tenths / 10.0);
    return text;
}

std::string WholePercentText(int percent) {
    return percent == 0 ? std::string("%") : std::to_string(percent) + "%";
}

std::string ClockText(DateValue value) {
    const double day = std::abs(value - std::trunc(value));
    const long seconds = std::lround(day * 86400.0) % 86400;
    char text[16];
    std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
    return text;
}

} // namespace tessera
