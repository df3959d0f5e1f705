#include "tests/support/fake_clock.h"

#include <cmath>

namespace tessera {

namespace {

constexpr double SecondsPerDay = 86400.0;

} // namespace

FakeClock::FakeClock() {
    setDateTime(2026, 11, 19, 9, 0, 0);
}

double FakeClock::secondsSinceMidnight() const {
    return (m_now - std::floor(m_now)) * SecondsPerDay;
}

bool FakeClock::setTimeOfDay(int hours, int minutes, int seconds) {
    if (m_refuse)
        return false;
    m_timesSet.push_back({hours, minutes, seconds});
    m_now = std::floor(m_now) + (hours * 3600 + minutes * 60 + seconds) / SecondsPerDay;
    return true;
}

void FakeClock::setDateTime(int year, int month, int day, int hours, int minutes, double seconds) {
    m_now =
        DateFromParts(year, month, day) + (hours * 3600 + minutes * 60 + seconds) / SecondsPerDay;
}

void FakeClock::advanceSeconds(double seconds) {
    m_now += seconds / SecondsPerDay;
}

} // namespace tessera
