#include "core/content_file.h"
#include "core/content_format.h"
#include "core/item_text.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessera;

namespace {

constexpr std::string_view Close = "\\par }\r\n";

std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

std::string Two(int n) {
    return HeaderPattern(n).substr(5);
}

std::string Item(int group, int ordinal, char letter) {
    const std::string id = Two(group) + "-" + std::to_string(ordinal);
    char number[12];
    std::snprintf(number, sizeof number, "%03d", ordinal);
    return Lines({"\\par " + Two(group) + number + letter, "\\par Stem " + id, "\\par A. one",
                  "\\par B. two", "\\par C. three", "\\par D. four", "\\par ", "\\par *",
                  "\\par Because " + id});
}

// A small course: topic t has topicCounts[t] items, exam 1 two and exam 2 one.
std::string SmallCourse() {
    const int topicCounts[] = {0, 2, 1, 1, 1, 1, 8, 1, 1, 3};
    std::string text = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 Hi! there!\r\nignored\r\n";
    for (int i = 1; i <= 7; ++i)
        text += Lines(
            {"\\par ^", "\\par 01", "\\par Text " + std::to_string(i), "\\par line two", "\\par "});
    text += Lines({"\\par ^", "\\par 01", "\\par Abandonment", "\\par  Giving up a right.",
                   "\\par ", "\\par Zoning", "\\par  Public rules.", "\\par ", "\\par ^"});
    for (int t = 1; t <= 9; ++t)
        for (int j = 1; j <= topicCounts[t]; ++j)
            text += Item(t, j, static_cast<char>('A' + j % 4));
    text += Lines({"\\par ^"}) + Item(1, 1, 'D') + Item(1, 2, 'C') + Item(2, 1, 'B');
    text += Lines({"\\par ^"});
    for (int h = 1; h <= 17; ++h)
        text += Lines({"\\par " + Two(h), "\\par Help " + std::to_string(h)});
    return text + Lines({"\\par }"}); // the file's last byte is dropped before the cut
}

CourseContent Cut(std::string_view text) {
    SessionState state;
    FillCatalogue(state);
    CourseContent content;
    CutContent(text, state.catalogue, content);
    return content;
}

} // namespace

TEST(ContentFile, CutsEverySectionAtItsPatterns) {
    const std::string text = SmallCourse();
    const CourseContent c = Cut(text);
    size_t at = 0;
    for (int i = 1; i <= 11; ++i) {
        at = text.find("\\par ^", at) + 1;
        EXPECT_EQ(c.SectionMarks[i], static_cast<int>(at)) << "marker " << i;
    }
    EXPECT_EQ(c.RtfHeader, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 Hi! there");
    EXPECT_EQ(c.TextSections[1], "Text 1\r\n\\par line two" + std::string(Close));
    EXPECT_EQ(c.TextSections[7], "Text 7\r\n\\par line two" + std::string(Close));
    EXPECT_EQ(c.GlossaryEntries[1],
              "Abandonment\r\n\\par  Giving up a right.\r\n" + std::string(Close));
    EXPECT_EQ(GlossaryTerm(c.GlossaryEntries[2]), "Zoning");
    EXPECT_EQ(GlossaryDefinition(c.GlossaryEntries[2]), "Public rules.\r\n" + std::string(Close));
    EXPECT_EQ(c.GlossaryEntries[3], "") << "fewer entries leave the rest empty";
    EXPECT_EQ(c.HelpTexts[1], "Help 1\r\n" + std::string(Close));
    EXPECT_EQ(c.HelpTexts[16], "Help 16\r\n" + std::string(Close));
    EXPECT_EQ(c.HelpTexts[17], "Help 17\r\n\\par }\r\n") << "the last help text gets no closing";
}

TEST(ContentFile, ItemsEndAtTheSecondCharacterBeforeTheNextHeader) {
    const CourseContent c = Cut(SmallCourse());
    const int expectedCounts[] = {0, 2, 1, 1, 1, 1, 8, 1, 1, 3};
    for (int t = 1; t <= 9; ++t)
        EXPECT_EQ(c.ItemCounts[t][1], expectedCounts[t]) << "topic " << t;
    EXPECT_EQ(c.ItemCounts[1][2], 2);
    EXPECT_EQ(c.ItemCounts[2][2], 1);

    const std::string lastOfTopic1 = Item(1, 2, 'C');
    EXPECT_EQ(c.ReviewItems[2],
              lastOfTopic1.substr(0, lastOfTopic1.size() - 1) + std::string(Close))
        << "the last item of a topic ends like any other";
    EXPECT_EQ(c.ReviewItems[3].substr(0, 12), "\\par 02001B\r");
    EXPECT_EQ(c.ReviewItems[19], Item(9, 3, 'D') + std::string(Close)) << "runs to marker 10";
    EXPECT_EQ(c.ReviewItems[20], "");
    EXPECT_EQ(c.ExamItemTexts[3], Item(2, 1, 'B') + std::string(Close));
    EXPECT_EQ(c.ExamItemTexts[2].substr(0, 11), "\\par 01002C");

    EXPECT_EQ(c.ItemPicture[14], 1) << "topic 6 item 8";
    int pictures = 0;
    for (int n = 0; n <= ReviewItemLimit; ++n)
        pictures += c.ItemPicture[n] != 0;
    EXPECT_EQ(pictures, 1);

    const std::string& item = c.ReviewItems[1];
    EXPECT_EQ(ItemAnswerLetter(item), 'B');
    EXPECT_EQ(ItemQuestion(item), "Stem 01-1\r\n\\par A. one\r\n\\par B. two\r\n\\par C. three\r\n"
                                  "\\par D. four\r\n\\par \r\n");
    EXPECT_EQ(ItemExplanation(item), "\r\n\\par Because 01-1\r" + std::string(Close));
    EXPECT_EQ(ItemExplanation("\\par 01001A\r\n\\par no marker"), "");
    EXPECT_EQ(ItemAnswerLetter("\\par 01"), '\0');
}

TEST(ContentFile, LoadContentReadsTheFileLessItsLastByte) {
    StudyFolder folder;
    SessionState state;
    FillCatalogue(state);
    EXPECT_FALSE(LoadContent(state));
    folder.write("Tessera", SmallCourse());
    ASSERT_TRUE(LoadContent(state));
    EXPECT_EQ(state.content.HelpTexts[17], "Help 17\r\n\\par }\r");
    EXPECT_EQ(state.content.ItemCounts[9][1], 3);
}

TEST(ContentFile, BrokenFilesAreCutAsFarAsTheyGo) {
    const std::string text = SmallCourse();
    // Every prefix, every single-byte deletion at a pattern, and random damage: no cut may
    // read outside the text (the sanitizer run watches) or stop short of returning.
    for (size_t length = 0; length <= text.size(); length += 7)
        Cut(std::string_view(text).substr(0, length));
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        std::string damaged = text;
        for (int k = 0; k < 5; ++k) {
            const size_t at = random() % damaged.size();
            if (random() % 2)
                damaged.erase(at, random() % 40);
            else
                damaged[at] = "\\^*\r\n0119 "[random() % 10];
        }
        Cut(damaged);
    }

    std::string noHelp = text.substr(0, text.rfind("\\par ^"));
    const CourseContent c = Cut(noHelp);
    EXPECT_EQ(c.SectionMarks[11], 0);
    EXPECT_EQ(c.HelpTexts[1], "");
    EXPECT_EQ(c.ItemCounts[2][2], 1) << "exam 2 runs to the end of the text";

    std::string noTopic3 = text;
    const size_t topic3 = noTopic3.find("\\par 03001");
    noTopic3.erase(topic3, noTopic3.find("\\par 04001") - topic3);
    const CourseContent d = Cut(noTopic3);
    EXPECT_EQ(d.ItemCounts[3][1], 0);
    EXPECT_EQ(d.ItemCounts[4][1], 1);
    EXPECT_EQ(d.ReviewItems[3].substr(0, 11), "\\par 02001B");
    EXPECT_EQ(d.ReviewItems[4].substr(0, 11), "\\par 04001B");
}
