#pragma once
// A clock that stands still at 9:00 on 19 November 2026 until the test moves it; setting the time
// changes only this clock.

#include "core/date_value.h"
#include "platform/clock.h"

#include <cmath>

namespace tessera {

class FakeClock final : public Clock {
public:
    DateValue now() const override { return m_day + m_seconds / 86400; }
    double secondsSinceMidnight() const override { return m_seconds; }
    bool setTimeOfDay(int hours, int minutes, int seconds) override {
        m_seconds = hours * 3600 + minutes * 60 + seconds;
        return true;
    }

    void setDateTime(int year, int month, int day, int hours, int minutes, double seconds) {
        m_day = DateFromParts(year, month, day);
        m_seconds = hours * 3600 + minutes * 60 + seconds;
    }
    // Moves on by whole days past midnight, as the real clock does.
    void advanceSeconds(double seconds) {
        m_seconds += seconds;
        const double days = std::floor(m_seconds / 86400);
        m_day += days;
        m_seconds -= days * 86400;
    }

private:
    // Kept apart so that seconds added up stay exact, which a date value would not.
    DateValue m_day = DateFromParts(2026, 11, 19);
    double m_seconds = 9 * 3600;
};

} // namespace tessera
