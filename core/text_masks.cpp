#include "core/text_masks.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tessera {

namespace {

// One decimal of a percentage, rounded half away from zero as the masks do.
std::string PercentDigits(double share) {
    const double tenths = std::round(share * 1000.0);
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", tenths / 10.0);
    return text;
}

std::string ClockText(DateValue value, const char* format) {
    const long long seconds = std::llround(value * 86400.0);
    const long long inDay = ((seconds % 86400) + 86400) % 86400;
    char text[16];
    std::snprintf(text, sizeof text, format, inDay / 3600, inDay / 60 % 60, inDay % 60);
    return text;
}

} // namespace

std::string NumberText(long value) {
    const std::string digits = std::to_string(value);
    return value < 0 ? digits : " " + digits;
}

std::string RightAligned(const std::string& text, int columns) {
    const auto width = static_cast<std::size_t>(columns);
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

std::string ShareText(double share) {
    return PercentDigits(share) + "%";
}

std::string ShortShareText(double share) {
    std::string digits = PercentDigits(share);
    // "#" places stay empty for a leading zero: 0.0 reads ".0".
    if (digits.starts_with("0.")) {
        digits.erase(0, 1);
    } else if (digits.starts_with("-0.")) {
        digits.erase(1, 1);
    }
    return digits + "%";
}

std::string DigitsOrNothing(long value) {
    return value == 0 ? std::string() : std::to_string(value);
}

std::string GroupedText(long value, bool zeroShows) {
    if (value == 0)
        return zeroShows ? "0" : "";
    const std::string digits = std::to_string(std::labs(value));
    std::string grouped = value < 0 ? "-" : "";
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += ',';
        grouped += digits[i];
    }
    return grouped;
}

std::string HoursMinutesSeconds(DateValue value) {
    return ClockText(value, "%lld:%02lld:%02lld");
}

std::string PaddedHoursMinutesSeconds(DateValue value) {
    return ClockText(value, "%02lld:%02lld:%02lld");
}

} // namespace tessera
