#include "core/text_masks.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// The masks' edges (##0.0%, ###.0% twice, ###, ##,##0 twice, ##,###, a time of day that wraps
// at 24 hours); the report rows show their everyday values.
TEST(TextMasks, ShowTheValueAsTheMaskAsks) {
    EXPECT_EQ(ShareText(1) + '|' + ShortShareText(0.004) + '|' + ShortShareText(0.8125) + '|' +
                  DigitsOrNothing(0) + '|' + GroupedText(1234) + '|' + GroupedText(0) + '|' +
                  GroupedText(0, false) + '|' + PaddedHoursMinutesSeconds(25.0 / 24.0),
              "100.0%|.4%|81.3%||1,234|0||01:00:00");
}

} // namespace
} // namespace tessera
