#include "core/date_value.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace tessera {

namespace {
constexpr std::chrono::sys_days DayZero{std::chrono::year{1899} / 12 / 30};

std::chrono::sys_days DayOf(DateValue value) {
    return DayZero + std::chrono::days{static_cast<int>(std::floor(value))};
}
} // namespace

DateValue DateFromParts(int year, int month, int day) {
    const std::chrono::sys_days date{std::chrono::year{year} / month / day};
    return static_cast<double>((date - DayZero).count());
}

std::string DateText(DateValue value) {
    const std::chrono::year_month_day ymd{DayOf(value)};
    char text[16];
    std::snprintf(text, sizeof text, "%02u-%02u-%04d", static_cast<unsigned>(ymd.month()),
                  static_cast<unsigned>(ymd.day()), static_cast<int>(ymd.year()));
    return text;
}

std::string LongDateText(DateValue value) {
    static constexpr std::array<const char*, 7> weekdays = {
        "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    static constexpr std::array<const char*, 12> months = {
        "January", "February", "March",     "April",   "May",      "June",
        "July",    "August",   "September", "October", "November", "December"};
    const std::chrono::sys_days day = DayOf(value);
    const std::chrono::year_month_day ymd{day};
    return std::string(weekdays[std::chrono::weekday{day}.c_encoding()]) + ", " +
           months[static_cast<unsigned>(ymd.month()) - 1] + " " +
           std::to_string(static_cast<unsigned>(ymd.day())) + ", " +
           std::to_string(static_cast<int>(ymd.year()));
}

std::string TimeOfDayText(DateValue value) {
    const long long seconds = std::llround((value - std::floor(value)) * 86400.0) % 86400;
    const long long hours = seconds / 3600;
    const long long clockHour = hours % 12 == 0 ? 12 : hours % 12;
    char text[16];
    std::snprintf(text, sizeof text, "%lld:%02lld:%02lld %s", clockHour, seconds / 60 % 60,
                  seconds % 60, hours < 12 ? "AM" : "PM");
    return text;
}

} // namespace tessera
