#include "core/text_masks.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr DateValue Seconds = 1.0 / 86400.0;

TEST(TextMasks, ShowTheValueAsTheMaskAsks) {
    const std::pair<std::string, std::string> shown[] = {
        {ShareText(0.875), "87.5%"}, // ##0.0%
        {ShareText(1), "100.0%"},
        {ShortShareText(0.004), ".4%"}, // ###.0%
        {ShortShareText(0.8125), "81.3%"},
        {DigitsOrNothing(0), ""}, // ###
        {DigitsOrNothing(195), "195"},
        {GroupedText(1234), "1,234"}, // ##,##0
        {GroupedText(0), "0"},
        {GroupedText(0, false), ""}, // ##,###
        {HoursMinutesSeconds(90 * Seconds), "0:01:30"},
        {PaddedHoursMinutesSeconds(90 * Seconds), "00:01:30"},
        {PaddedHoursMinutesSeconds(25.0 / 24.0), "01:00:00"}, // a time of day: 25 hours wrap
        {RightAligned(NumberText(5), 4), "   5"},
    };
    for (size_t row = 0; row < std::size(shown); ++row)
        EXPECT_EQ(shown[row].first, shown[row].second) << "row " << row;
}

} // namespace
} // namespace tessera
