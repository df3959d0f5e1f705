// The course lint: the real course source, read as the compiler reads it, must make items a
// candidate can trust and a content file the program cuts back exactly.

#include "core/content_file.h"
#include "core/item_text.h"
#include "core/session_state.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "course/compiler/rtf_text.h"

#include <QImageReader>
#include <QSize>
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

using namespace tessera;
using namespace tessera::course;

namespace {

// The size of each topic and exam.
constexpr std::array<size_t, CourseTopics + 1> TopicSizes{0, 90, 70, 100, 85, 100, 90, 95, 66, 100};
constexpr size_t ExamSize = 150;

struct Group {
    std::string name;
    const std::vector<CourseItem>* items;
    size_t size;
};

class CourseLint : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        s_course = ReadCourse(Folder(), s_errors);
        for (int t = 1; t <= CourseTopics; ++t)
            s_groups.push_back({"topic " + std::to_string(t), &s_course.topics[t], TopicSizes[t]});
        for (int e = 1; e <= CourseExams; ++e)
            s_groups.push_back({"exam " + std::to_string(e), &s_course.exams[e], ExamSize});
    }

    static std::filesystem::path Folder() {
        return std::filesystem::path(TESSERA_SOURCE_ROOT) / "course";
    }

    static std::string Place(const SourcePlace& place) {
        return place.file + ":" + std::to_string(place.line);
    }

    static inline Course s_course;
    static inline std::vector<SourceError> s_errors;
    static inline std::vector<Group> s_groups;
};

std::string Lowered(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// A stem as a reader compares it: markup, case and spacing do not make it new.
std::string StemKey(const CourseItem& item) {
    std::string key;
    for (const SourceLine& line : item.stem)
        for (char c : Lowered(line.text + " ")) {
            if (c == '*')
                continue;
            if (c == ' ' && (key.empty() || key.back() == ' '))
                continue;
            key += c;
        }
    while (!key.empty() && key.back() == ' ')
        key.pop_back();
    return key;
}

} // namespace

TEST_F(CourseLint, SourceReadsWithoutErrors) {
    // The reader reports items without four choices, an explanation or an answer letter,
    // glossary lines without a definition or out of order, and misplaced figure marks.
    for (const SourceError& error : s_errors)
        ADD_FAILURE() << Describe(error);
}

TEST_F(CourseLint, EveryGroupIsWholeAndItsItemsCanBeTrusted) {
    // Across topics and exams alike: an exam must not repeat a review item's question.
    std::map<std::string, SourcePlace> stems;
    for (const Group& group : s_groups) {
        EXPECT_EQ(group.items->size(), group.size) << group.name;
        std::map<char, size_t> right;
        for (const CourseItem& item : *group.items) {
            ++right[item.key];
            const auto [it, added] = stems.emplace(StemKey(item), item.place);
            EXPECT_TRUE(added) << Place(item.place) << " repeats the stem of " << Place(it->second);
            EXPECT_FALSE(StemKey(item).empty()) << Place(item.place) << ": no question";
            EXPECT_FALSE(item.explanation.empty()) << Place(item.place) << ": no explanation";
            std::map<std::string, int> seen;
            for (const SourceLine& choice : item.choices) {
                EXPECT_FALSE(choice.text.empty()) << Place(item.place) << ": an empty choice";
                if (++seen[Lowered(choice.text)] == 2)
                    ADD_FAILURE() << Place(choice.place) << ": choice given twice";
            }
        }
        for (char letter = 'A'; letter <= 'D'; ++letter) {
            const double share = 100.0 * static_cast<double>(right[letter]) / group.size;
            EXPECT_TRUE(share >= 20.0 && share <= 30.0)
                << group.name << ": " << letter << " is right for " << share << "% of items";
        }
    }
}

TEST_F(CourseLint, GlossaryHasOneEntryPerTermThatTheViewerSplitsRight) {
    // Order is the reader's check; these are what the letter buttons and the split need.
    EXPECT_EQ(s_course.glossary.size(), static_cast<size_t>(GlossaryEntryCount));
    std::map<std::string, SourcePlace> terms;
    for (const GlossaryEntry& entry : s_course.glossary) {
        const std::string where = Place(entry.place) + " \"" + entry.term + "\"";
        // The viewer's letter buttons only find terms that start with a letter.
        EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(entry.term[0])))
            << where << " does not start with a letter";
        EXPECT_TRUE(entry.term.back() != ' ' && entry.definition[0] != ' ')
            << where << ": blanks around the separator would move the viewer's split";
        EXPECT_EQ(entry.definition.find(" :: "), std::string::npos) << where << ": two separators";
        const auto [it, added] = terms.emplace(Lowered(entry.term), entry.place);
        EXPECT_TRUE(added) << where << " repeats " << Place(it->second);
    }
}

TEST_F(CourseLint, CompiledCourseCutsBackIntoTheSameItemsAndEntries) {
    // A paragraph the cutter took for a header would change a count or an answer letter; an
    // entry split in the wrong place would change its term.
    std::vector<SourceError> errors;
    const std::string file = WriteContent(s_course, errors);
    for (const SourceError& error : errors)
        ADD_FAILURE() << Describe(error);
    const std::string text = file.substr(0, file.size() - 1);
    EXPECT_EQ(OkLine(CheckContent(text)),
              "ok: 796 review items (90 70 100 85 100 90 95 66 100), 300 exam items (150 150), "
              "1181 glossary entries, 7 texts, 17 help texts");
    SessionState state;
    FillCatalogue(state);
    CourseContent content;
    CutContent(text, state.catalogue, content);

    // Running numbers go on across topics, and across exams.
    for (const bool exam : {false, true}) {
        const std::vector<std::string>& texts = exam ? content.ExamItemTexts : content.ReviewItems;
        size_t running = 0;
        for (int g = 1; g <= (exam ? CourseExams : CourseTopics); ++g) {
            const auto& items = exam ? s_course.exams[g] : s_course.topics[g];
            EXPECT_EQ(content.ItemCounts[g][exam ? 2 : 1], static_cast<int>(items.size()))
                << (exam ? "exam " : "topic ") << g;
            for (size_t j = 0; j < items.size() && running + 1 < texts.size(); ++j)
                EXPECT_EQ(ItemAnswerLetter(texts[++running]), items[j].key)
                    << Place(items[j].place);
        }
    }
    // The figures are topic 6 item 8 and topic 9 item 75; the last exam item runs to marker 11.
    for (int n = 1; n <= ReviewItemLimit; ++n)
        EXPECT_EQ(content.ItemPicture[n], n == 453 ? 1 : n == 771 ? 2 : 0) << n;
    EXPECT_TRUE(content.ExamItemTexts[ExamItemLimit].ends_with("\r\n\\par }\r\n"));
    const size_t entries = std::min(s_course.glossary.size(), size_t{GlossaryEntryCount});
    for (size_t i = 0; i < entries; ++i) {
        const GlossaryEntry& entry = s_course.glossary[i];
        std::vector<SourceError> ignored;
        EXPECT_EQ(GlossaryTerm(content.GlossaryEntries[i + 1]),
                  InlineRtf({entry.place, entry.term}, ignored))
            << Place(entry.place);
        EXPECT_EQ(GlossaryDefinition(content.GlossaryEntries[i + 1])
                      .rfind(InlineRtf({entry.place, entry.definition}, ignored), 0),
                  0u)
            << Place(entry.place) << ": definition cut wrongly";
    }
    // The report cards' Help buttons open topics 13 and 14: each on its own screen's text.
    for (const auto& [topic, screen] :
         {std::pair{13, "Screening Exam Report Card"}, std::pair{14, "Monitor Spreadsheet"}})
        EXPECT_NE(content.HelpTexts[topic].find(screen), std::string::npos) << "help " << topic;
}

TEST_F(CourseLint, PicturesAreImagesOfTheCataloguedSize) {
    SessionState state;
    FillCatalogue(state);
    for (int p = 1; p <= PictureItemCount; ++p) {
        const PictureEntry picture = parsePictureEntry(state.catalogue.PictureItems[p]);
        const std::filesystem::path path = Folder() / "pictures" / picture.fileName();
        // The .gph name says nothing: the picture must be recognised by its content.
        QImageReader reader(QString::fromStdString(path.string()));
        reader.setDecideFormatFromContent(true);
        EXPECT_TRUE(reader.canRead()) << picture.fileName() << " is not a readable picture";
        EXPECT_EQ(reader.size(), QSize(picture.width, picture.height)) << picture.fileName();
    }
}
