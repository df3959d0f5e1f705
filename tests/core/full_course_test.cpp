// The full-size course exercises the sizes the tables were made for.

#include "core/content_file.h"
#include "core/item_text.h"
#include "course/compiler/content_check.h"
#include "tests/support/full_course_generator.h"

#include <gtest/gtest.h>

using namespace tessera;

TEST(FullCourse, FillsEveryTableToItsSize) {
    const std::string file = FullCourseContent();
    const std::string text = file.substr(0, file.size() - 1);
    const course::ContentSummary summary = course::CheckContent(text);
    ASSERT_TRUE(summary.violations.empty()) << summary.violations[0].message;
    EXPECT_EQ(course::OkLine(summary),
              "ok: 796 review items (90 70 100 85 100 90 95 66 100), 300 exam items (150 150), "
              "1181 glossary entries, 7 texts, 17 help texts");

    SessionState state;
    FillCatalogue(state);
    CutContent(text, state.catalogue, state.content);
    const CourseContent& c = state.content;
    for (int t = 1; t <= TopicCount; ++t)
        EXPECT_EQ(c.ItemCounts[t][1], FullTopicCounts[t]);
    for (int t = 1, n = 1; t <= TopicCount; ++t) {
        for (int j = 1; j <= FullTopicCounts[t]; ++j, ++n) {
            // Running numbers go on across topics: topic 6 item 8 is 453, topic 9 item 75 771.
            EXPECT_EQ(c.ItemPicture[n], n == 453 ? 1 : n == 771 ? 2 : 0) << n;
            EXPECT_EQ(ItemAnswerLetter(c.ReviewItems[n]), "ABCD"[j % 4]) << n;
        }
    }
    EXPECT_EQ(c.ReviewItems[453].substr(0, 11), "\\par 06008A");
    EXPECT_EQ(c.ReviewItems[796].substr(0, 11), "\\par 09100A");
    EXPECT_EQ(c.ExamItemTexts[151].substr(0, 11), "\\par 02001B");
    EXPECT_EQ(c.ExamItemTexts[300].substr(c.ExamItemTexts[300].size() - 10), "\r\n\\par }\r\n")
        << "the last exam item runs to marker 11";
    EXPECT_EQ(GlossaryTerm(c.GlossaryEntries[1181]), "Zterm 1030");
    EXPECT_FALSE(c.HelpTexts[17].empty());
}
