// The course lint: the real course source, read as the compiler reads it, must make items a
// candidate can trust and a content file the program cuts back exactly. The build refuses a
// course with source or format errors; these are the faults it cannot see.

#include "core/content_file.h"
#include "core/item_text.h"
#include "core/session_state.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"

#include <QImageReader>
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

TEST(CourseLint, ItemsGlossaryPicturesAndTheCutBackCanBeTrusted) {
    std::vector<SourceError> errors;
    const Course course = ReadCourse(Folder, errors);
    std::vector<const std::vector<CourseItem>*> groups; // topics, then exams
    for (int t = 1; t <= CourseTopics; ++t)
        groups.push_back(&course.topics[t]);
    for (int e = 1; e <= CourseExams; ++e)
        groups.push_back(&course.exams[e]);

    // No question twice, even between a topic and an exam; no empty or repeated choice; each
    // letter right for a fifth to three tenths of a group's items.
    std::map<std::string, SourcePlace> stems;
    std::string keys;
    for (const auto* group : groups) {
        std::map<char, size_t> right;
        for (const CourseItem& item : *group) {
            ++right[item.key];
            keys += item.key;
            std::string stem;
            for (const SourceLine& line : item.stem)
                stem += line.text + " ";
            const auto [it, added] = stems.emplace(Key(stem), item.place);
            EXPECT_TRUE(added) << Place(item.place) << " repeats the stem of " << Place(it->second);
            std::set<std::string> seen;
            for (const SourceLine& choice : item.choices)
                EXPECT_TRUE(!choice.text.empty() && seen.insert(Key(choice.text)).second)
                    << Place(choice.place) << ": an empty choice or one given twice";
        }
        for (char letter = 'A'; letter <= 'D'; ++letter) {
            const double share = 100.0 * static_cast<double>(right[letter]) / group->size();
            EXPECT_TRUE(share >= 20.0 && share <= 30.0)
                << group->front().place.file << ": " << letter << " is right for " << share << "%";
        }
    }

    // The viewer's letter buttons find terms that start with a letter; blanks around the
    // separator, or a second one, would move its split.
    std::map<std::string, SourcePlace> terms;
    for (const GlossaryEntry& entry : course.glossary) {
        const std::string where = Place(entry.place) + " \"" + entry.term + "\"";
        EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(entry.term[0])) &&
                    entry.term.back() != ' ' && entry.definition[0] != ' ' &&
                    entry.definition.find(" :: ") == std::string::npos)
            << where << " would not be found or split right";
        const auto [it, added] = terms.emplace(Key(entry.term), entry.place);
        EXPECT_TRUE(added) << where << " repeats " << Place(it->second);
    }

    // Every table full, and no paragraph taken for a header: the letters cut back are the keys.
    const std::string file = WriteContent(course, errors);
    const std::string text = file.substr(0, file.size() - 1);
    EXPECT_EQ(OkLine(CheckContent(text)),
              "ok: 796 review items (90 70 100 85 100 90 95 66 100), 300 exam items (150 150), "
              "1181 glossary entries, 7 texts, 17 help texts");
    SessionState state;
    FillCatalogue(state);
    CourseContent content;
    CutContent(text, state.catalogue, content);
    std::string letters;
    for (const auto* texts : {&content.ReviewItems, &content.ExamItemTexts})
        for (size_t n = 1; n < texts->size(); ++n)
            letters += ItemAnswerLetter((*texts)[n]);
    EXPECT_EQ(letters, keys);
    // The figures are topic 6 item 8 and topic 9 item 75, each an image of its catalogued size
    // whatever its name says; the last exam item runs to marker 11.
    for (int n = 1; n <= ReviewItemLimit; ++n)
        EXPECT_EQ(content.ItemPicture[n], n == 453 ? 1 : n == 771 ? 2 : 0) << n;
    for (int p = 1; p <= PictureItemCount; ++p) {
        const PictureEntry picture = parsePictureEntry(state.catalogue.PictureItems[p]);
        QImageReader reader(
            QString::fromStdString((Folder / "pictures" / picture.fileName()).string()));
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.size(), QSize(picture.width, picture.height)) << picture.fileName();
    }
    EXPECT_TRUE(content.ExamItemTexts[ExamItemLimit].ends_with("\r\n\\par }\r\n"));
    // The report cards' Help buttons open topics 13 and 14: each on its own screen's text.
    EXPECT_NE(content.HelpTexts[13].find("Screening Exam Report Card"), std::string::npos);
    EXPECT_NE(content.HelpTexts[14].find("Monitor Spreadsheet"), std::string::npos);
}

} // namespace
