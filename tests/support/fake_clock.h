#pragma once
// A clock that stands still until the test moves it; setting the time changes only this clock.

#include "core/date_value.h"
#include "platform/clock.h"

#include <vector>

namespace tessera {

struct TimeOfDay {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    bool operator==(const TimeOfDay&) const = default;
};

class FakeClock final : public Clock {
public:
    // Starts at 9:00 on 19 November 2026.
    FakeClock();

    DateValue now() const override;
    double secondsSinceMidnight() const override { return m_seconds; }
    bool setTimeOfDay(int hours, int minutes, int seconds) override;

    void setDateTime(int year, int month, int day, int hours, int minutes, double seconds);
    // Moves on by whole days past midnight, as the real clock does.
    void advanceSeconds(double seconds);
    const std::vector<TimeOfDay>& timesSet() const { return m_timesSet; }

private:
    // Kept apart so that seconds added up stay exact, which a date value would not.
    DateValue m_day = 0;
    double m_seconds = 0;
    std::vector<TimeOfDay> m_timesSet;
};

} // namespace tessera
