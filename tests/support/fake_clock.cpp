#include "tests/support/fake_clock.h"

#include <cmath>

namespace tessera {

namespace {

constexpr double SecondsPerDay = 86400.0;

} // namespace

FakeClock::FakeClock() {
    setDateTime(2026, 11, 19, 9, 0, 0);
}

DateValue FakeClock::now() const {
    return m_day + m_seconds / SecondsPerDay;
}

bool FakeClock::setTimeOfDay(int hours, int minutes, int seconds) {
    m_timesSet.push_back({hours, minutes, seconds});
    m_seconds = hours * 3600 + minutes * 60 + seconds;
    return true;
}

void FakeClock::setDateTime(int year, int month, int day, int hours, int minutes, double seconds) {
    m_day = DateFromParts(year, month, day);
    m_seconds = hours * 3600 + minutes * 60 + seconds;
}

void FakeClock::advanceSeconds(double seconds) {
    m_seconds += seconds;
    const double days = std::floor(m_seconds / SecondsPerDay);
    m_day += days;
    m_seconds -= days * SecondsPerDay;
}

} // namespace tessera
