#include "core/text_masks.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// The masks' edges; the report rows show their everyday values.
TEST(TextMasks, ShowTheValueAsTheMaskAsks) {
    const std::pair<std::string, std::string> shown[] = {
        {ShareText(1), "100.0%"},       // ##0.0%
        {ShortShareText(0.004), ".4%"}, // ###.0%
        {ShortShareText(0.8125), "81.3%"},
        {DigitsOrNothing(0), ""},     // ###
        {GroupedText(1234), "1,234"}, // ##,##0
        {GroupedText(0), "0"},
        {GroupedText(0, false), ""},                          // ##,###
        {PaddedHoursMinutesSeconds(25.0 / 24.0), "01:00:00"}, // a time of day: 25 hours wrap
    };
    for (size_t row = 0; row < std::size(shown); ++row)
        EXPECT_EQ(shown[row].first, shown[row].second) << "row " << row;
}

} // namespace
} // namespace tessera
