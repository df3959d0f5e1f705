#pragma once
// The computer's own clock.

#include "platform/clock.h"

namespace tessera {

class SystemClock final : public Clock {
public:
    double now() const override;
    double secondsSinceMidnight() const override;
    // Asks the operating system; it refuses unless the program may set the time.
    bool setTimeOfDay(int hours, int minutes, int seconds) override;
};

} // namespace tessera
