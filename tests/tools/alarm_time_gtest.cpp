// The alarm clock's time arithmetic: what counts as a time, how times read, and Auto Set.

#include "tools/alarm_time.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tessera {

namespace {

constexpr int at(int hours, int minutes, int seconds = 0) {
    return hours * 3600 + minutes * 60 + seconds;
}

TEST(AlarmTime, ReadsTwelveAndTwentyFourHourTimes) {
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"7:30", at(7, 30)},        {"7:30 PM", at(19, 30)},
        {"19:30", at(19, 30)},      {"7:30:15 pm", at(19, 30, 15)},
        {"7 PM", at(19, 0)},        {"12:00 AM", 0},
        {"12:15 PM", at(12, 15)},   {" 2:00 ", at(2, 0)},
        {"0:05", at(0, 5)},         {"25:00", std::nullopt},
        {"13:00 PM", std::nullopt}, {"7:60", std::nullopt},
        {"7", std::nullopt},        {"noon", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(ParseTimeOfDay(QString::fromLatin1(text)), expected) << text;
}

TEST(AlarmTime, WritesTimesThatReadBackAndAutoSetsTenMinutesARow) {
    const QStringList written = {LongTimeText(at(14, 25, 30)),   LongTimeText(0),
                                 LongTimeText(at(12, 0, 5)),     MediumTimeText(at(7, 30, 59)),
                                 MediumTimeText(at(23, 5)),      AutoSetRowText(0),
                                 AutoSetRowText(AutoSetRows - 1)};
    EXPECT_EQ(written.join(u'|'), QStringLiteral("2:25:30 PM|12:00:00 AM|12:00:05 PM|07:30 AM|"
                                                 "11:05 PM|10 min.|600 min."));
    for (int time = 0; time < SecondsPerDay; time += 61)
        ASSERT_EQ(ParseTimeOfDay(LongTimeText(time)), time);

    const DateValue day = DateFromParts(2026, 11, 19);
    EXPECT_EQ(AutoSetAlarmTime(day + at(14, 15, 30) / 86400.0, 0), at(14, 25, 30));
    EXPECT_EQ(AutoSetAlarmTime(day + at(14, 15, 30) / 86400.0, 59), at(0, 15, 30));
    EXPECT_EQ(AutoSetAlarmTime(day + at(23, 55) / 86400.0, 0), at(0, 5));
}

} // namespace

} // namespace tessera
