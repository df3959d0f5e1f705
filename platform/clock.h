#pragma once
// The system clock: date values, the time of day, and setting the time of day.

namespace tessera {

class Clock {
public:
    virtual ~Clock() = default;
    // Date and time now in days since 30 December 1899, the time of day as the fraction.
    virtual double now() const = 0;
    // Seconds since midnight, with fractions, as the system timer counts them.
    virtual double secondsSinceMidnight() const = 0;
    // Sets the computer's time of day; false when the system refuses.
    virtual bool setTimeOfDay(int hours, int minutes, int seconds) = 0;
};

} // namespace tessera
