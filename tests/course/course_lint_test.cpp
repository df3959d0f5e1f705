// The course lint: the real course source, read as the compiler reads it, must make items a
// candidate can trust and a content file the program cuts back exactly.

#include "core/content_file.h"
#include "core/item_text.h"
#include "core/session_state.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"

#include <QImageReader>
#include <QSize>
#include <QString>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <map>
#include <set>

using namespace tessera;
using namespace tessera::course;

namespace {

const std::filesystem::path Folder = std::filesystem::path(TESSERA_SOURCE_ROOT) / "course";

std::string Place(const SourcePlace& place) {
    return place.file + ":" + std::to_string(place.line);
}

// A text as a reader compares it: markup, case and spacing do not make it new.
std::string Key(const std::string& text) {
    return QString::fromStdString(text).remove(u'*').simplified().toLower().toStdString();
}

class CourseLint : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        std::vector<SourceError> errors; // the build refuses a course with any
        s_course = ReadCourse(Folder, errors);
        for (int t = 1; t <= CourseTopics; ++t)
            s_groups.push_back(&s_course.topics[t]);
        for (int e = 1; e <= CourseExams; ++e)
            s_groups.push_back(&s_course.exams[e]);
    }

    static inline Course s_course;
    static inline std::vector<const std::vector<CourseItem>*> s_groups; // topics, then exams
};

} // namespace

TEST_F(CourseLint, EveryItemCanBeTrusted) {
    // The reader refuses items without a question or an explanation. Across topics and exams
    // alike, an exam must not repeat a review item's question.
    std::map<std::string, SourcePlace> stems;
    for (const auto* group : s_groups) {
        std::map<char, size_t> right;
        for (const CourseItem& item : *group) {
            ++right[item.key];
            std::string stem;
            for (const SourceLine& line : item.stem)
                stem += line.text + " ";
            const auto [it, added] = stems.emplace(Key(stem), item.place);
            EXPECT_TRUE(added) << Place(item.place) << " repeats the stem of " << Place(it->second);
            std::set<std::string> seen;
            for (const SourceLine& choice : item.choices) {
                EXPECT_FALSE(choice.text.empty()) << Place(item.place) << ": an empty choice";
                EXPECT_TRUE(seen.insert(Key(choice.text)).second)
                    << Place(choice.place) << ": choice given twice";
            }
        }
        for (char letter = 'A'; letter <= 'D'; ++letter) {
            const double share = 100.0 * static_cast<double>(right[letter]) / group->size();
            EXPECT_TRUE(share >= 20.0 && share <= 30.0)
                << group->front().place.file << ": " << letter << " is right for " << share
                << "% of items";
        }
    }
}

TEST_F(CourseLint, GlossaryHasOneEntryPerTermThatTheViewerSplitsRight) {
    // Order is the reader's check; these are what the letter buttons and the split need.
    std::map<std::string, SourcePlace> terms;
    for (const GlossaryEntry& entry : s_course.glossary) {
        const std::string where = Place(entry.place) + " \"" + entry.term + "\"";
        // The viewer's letter buttons only find terms that start with a letter.
        EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(entry.term[0])))
            << where << " does not start with a letter";
        EXPECT_TRUE(entry.term.back() != ' ' && entry.definition[0] != ' ')
            << where << ": blanks around the separator would move the viewer's split";
        EXPECT_EQ(entry.definition.find(" :: "), std::string::npos) << where << ": two separators";
        const auto [it, added] = terms.emplace(Key(entry.term), entry.place);
        EXPECT_TRUE(added) << where << " repeats " << Place(it->second);
    }
}

TEST_F(CourseLint, CompiledCourseCutsBackIntoTheSameItemsAndEntries) {
    // The build compiles and checks the course; here every table is full, and a paragraph the
    // cutter took for a header would change an answer letter or move all that follow.
    std::vector<SourceError> errors;
    const std::string file = WriteContent(s_course, errors);
    const std::string text = file.substr(0, file.size() - 1);
    EXPECT_EQ(OkLine(CheckContent(text)),
              "ok: 796 review items (90 70 100 85 100 90 95 66 100), 300 exam items (150 150), "
              "1181 glossary entries, 7 texts, 17 help texts");
    SessionState state;
    FillCatalogue(state);
    CourseContent content;
    CutContent(text, state.catalogue, content);
    std::string keys;
    std::string letters;
    for (const auto* group : s_groups)
        for (const CourseItem& item : *group)
            keys += item.key;
    for (const auto* texts : {&content.ReviewItems, &content.ExamItemTexts})
        for (size_t n = 1; n < texts->size(); ++n)
            letters += ItemAnswerLetter((*texts)[n]);
    EXPECT_EQ(letters, keys);
    // The figures are topic 6 item 8 and topic 9 item 75; the last exam item runs to marker 11.
    for (int n = 1; n <= ReviewItemLimit; ++n)
        EXPECT_EQ(content.ItemPicture[n], n == 453 ? 1 : n == 771 ? 2 : 0) << n;
    EXPECT_TRUE(content.ExamItemTexts[ExamItemLimit].ends_with("\r\n\\par }\r\n"));
    // The report cards' Help buttons open topics 13 and 14: each on its own screen's text.
    EXPECT_NE(content.HelpTexts[13].find("Screening Exam Report Card"), std::string::npos);
    EXPECT_NE(content.HelpTexts[14].find("Monitor Spreadsheet"), std::string::npos);
}

TEST_F(CourseLint, PicturesAreImagesOfTheCataloguedSize) {
    SessionState state;
    FillCatalogue(state);
    for (int p = 1; p <= PictureItemCount; ++p) {
        const PictureEntry picture = parsePictureEntry(state.catalogue.PictureItems[p]);
        // The .gph name says nothing: the picture must be recognised by its content.
        QImageReader reader(
            QString::fromStdString((Folder / "pictures" / picture.fileName()).string()));
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.size(), QSize(picture.width, picture.height)) << picture.fileName();
    }
}
