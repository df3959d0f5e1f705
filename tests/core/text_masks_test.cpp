#include "core/text_masks.h"

#include <gtest/gtest.h>

#include <functional>

namespace tessera {
namespace {

struct MaskCase {
    const char* mask;
    std::function<std::string()> shown;
    const char* text;
};

class TextMasks : public testing::TestWithParam<MaskCase> {};

TEST_P(TextMasks, ShowTheValueAsTheMaskAsks) {
    EXPECT_EQ(GetParam().shown(), GetParam().text) << GetParam().mask;
}

constexpr DateValue Seconds = 1.0 / 86400.0;

INSTANTIATE_TEST_SUITE_P(
    Table, TextMasks,
    testing::Values(
        MaskCase{"##0.0%", [] { return ShareText(0.875); }, "87.5%"},
        MaskCase{"##0.0%", [] { return ShareText(1); }, "100.0%"},
        MaskCase{"###.0%", [] { return ShortShareText(0.004); }, ".4%"},
        MaskCase{"###.0%", [] { return ShortShareText(0.8125); }, "81.3%"},
        MaskCase{"###", [] { return DigitsOrNothing(0); }, ""},
        MaskCase{"###", [] { return DigitsOrNothing(195); }, "195"},
        MaskCase{"##,##0", [] { return GroupedText(1234); }, "1,234"},
        MaskCase{"##,##0", [] { return GroupedText(0); }, "0"},
        MaskCase{"##,###", [] { return GroupedText(0, false); }, ""},
        MaskCase{"h:mm:ss", [] { return HoursMinutesSeconds(90 * Seconds); }, "0:01:30"},
        MaskCase{"hh:mm:ss", [] { return PaddedHoursMinutesSeconds(90 * Seconds); }, "00:01:30"},
        // A time of day: 25 hours wrap round to one.
        MaskCase{"hh:mm:ss", [] { return PaddedHoursMinutesSeconds(25.0 / 24.0); }, "01:00:00"},
        MaskCase{"@@@@", [] { return RightAligned(NumberText(5), 4); }, "   5"}));

} // namespace
} // namespace tessera
