#include "core/date_value.h"

#include <chrono>
#include <cmath>
#include <cstdio>

namespace tessera {

namespace {
constexpr std::chrono::sys_days DayZero{std::chrono::year{1899} / 12 / 30};
}

DateValue DateFromParts(int year, int month, int day) {
    const std::chrono::sys_days date{std::chrono::year{year} / month / day};
    return static_cast<double>((date - DayZero).count());
}

std::string DateText(DateValue value) {
    const auto days = std::chrono::days{static_cast<int>(std::floor(value))};
    const std::chrono::year_month_day ymd{DayZero + days};
    char text[16];
    std::snprintf(text, sizeof text, "%02u-%02u-%04d", static_cast<unsigned>(ymd.month()),
                  static_cast<unsigned>(ymd.day()), static_cast<int>(ymd.year()));
    return text;
}

} // namespace tessera
