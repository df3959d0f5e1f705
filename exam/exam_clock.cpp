#include "exam/exam_format.h"
#include "exam/exam_session.h"

#include <cmath>

namespace tessera {

ExamClockReading ReadExamClock(int examMinutes, DateValue examElapsed, DateValue sinceStart) {
    ExamClockReading reading;
    const double left = examMinutes - (examElapsed + sinceStart) * MinutesPerDay;
    reading.minutesLeft = static_cast<int>(std::floor(left));
    const DateValue remaining = examMinutes / MinutesPerDay - sinceStart - examElapsed;
    const std::string shown = HoursMinutesSeconds(remaining);
    if (reading.minutesLeft >= 2) {
        reading.label = "Time Remaining: " + shown;
    } else {
        reading.warning = true;
        reading.label = "2-minute warning! " + shown.substr(shown.size() - 4);
    }
    if (reading.minutesLeft < 0) {
        reading.expired = true;
        reading.label = "Time has expired!";
    }
    return reading;
}

} // namespace tessera
