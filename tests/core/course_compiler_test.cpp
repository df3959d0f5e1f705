// The course compiler writes the content file the program cuts back: the tool, its source
// errors and its check, then the program's own reading of what it wrote.

#include "core/content_file.h"
#include "core/item_text.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/rtf_text.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

using namespace tessera;
using namespace tessera::course;

namespace {

const char* const TopicSource = R"(; a comment
=== C
Which **one** is *right*? Cost {x} \* café
01 begins with digits.
A. First
B. Second
C. Third
D. Fourth
---
Because C.
)";

// One item in topics 1 and 3 to 9, two in exam 2, two glossary entries, every text.
Course SmallCourse(std::vector<SourceError>& errors) {
    Course course;
    course.prologue = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\n\\f0 Hi! there!\nignored\n";
    for (int t = 1; t <= 9; ++t)
        course.topics[t] = ParseItems(TopicSource, "topics/t.txt", errors);
    course.topics[2].clear();
    course.exams[2] = ParseItems(std::string(TopicSource) + TopicSource, "exams/2.txt", errors);
    course.glossary = ParseGlossary("Acre :: 43,560 square feet.\nZoning :: Public rules.\n",
                                    "glossary.txt", errors);
    for (int i = 1; i <= 7; ++i)
        course.texts[i] = ParseText("# Title\nBody *text*.\n.\n- a point\n", "texts/t.txt");
    for (int h = 1; h <= 17; ++h)
        course.help[h] = ParseText("Help " + std::to_string(h) + "\n", "help/h.txt");
    return course;
}

std::string Messages(const std::vector<SourceError>& errors) {
    std::string messages;
    for (const SourceError& e : errors)
        messages += Describe(e) + "\n";
    return messages;
}

void Write(const std::filesystem::path& path, const std::string& text) {
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

// Runs the tool and gives its exit code and its output's last line.
std::pair<int, std::string> RunTool(const std::string& arguments) {
    const std::string command = std::string(TESSERA_COURSE_TOOL) + " " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char buffer[512];
    while (pipe && fgets(buffer, sizeof buffer, pipe))
        output = buffer;
    const int status = pipe ? pclose(pipe) : -1;
    return {WEXITSTATUS(status), output};
}

} // namespace

TEST(CourseCompiler, WritesWhatTheProgramCutsBack) {
    StudyFolder folder;
    std::vector<SourceError> errors;
    const std::string file = WriteContent(SmallCourse(errors), errors);
    ASSERT_EQ(Messages(errors), "");
    SessionState state;
    FillCatalogue(state);
    folder.write("Tessera", file);
    ASSERT_TRUE(LoadContent(state));
    const CourseContent& c = state.content;
    std::string counts;
    for (int g = 1; g <= TopicCount; ++g)
        counts += std::to_string(c.ItemCounts[g][1]) + std::to_string(c.ItemCounts[g][2]) + ' ';
    EXPECT_EQ(counts, "10 02 10 10 10 10 10 10 10 ") << "each group: topic, then exam";
    EXPECT_EQ(c.RtfHeader, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\r\n\\f0 Hi! there");
    EXPECT_EQ(c.ReviewItems[2].substr(0, 12) + c.ExamItemTexts[2].substr(0, 11),
              "\\par 03001C\r\\par 02002C");
    EXPECT_EQ(ItemQuestion(c.ReviewItems[1]),
              "Which \\b one\\b0  is \\i right\\i0 ? Cost \\{x\\} * caf\\'e9\r\n"
              "\\par {}01 begins with digits.\r\n\\par A. First\r\n\\par B. Second\r\n"
              "\\par C. Third\r\n\\par D. Fourth\r\n\\par \r\n");
    // An item ends two characters before the next header, the last of its section at the
    // next marker; either way closed.
    EXPECT_EQ(ItemExplanation(c.ReviewItems[1]), "\r\n\\par Because C.\r\\par }\r\n");
    for (const std::string& last : {c.ReviewItems[8], c.ExamItemTexts[2]})
        EXPECT_EQ(ItemExplanation(last), "\r\n\\par Because C.\r\n\\par }\r\n");
    EXPECT_EQ(ItemExplanation("\\par 01001A\r\n\\par no marker"), "");
    EXPECT_EQ(ItemAnswerLetter("\\par 01"), '\0');
    EXPECT_EQ(GlossaryTerm(c.GlossaryEntries[1]) + '|' + GlossaryDefinition(c.GlossaryEntries[2]),
              "Acre|Public rules.\r\n\\par }\r\n");
    EXPECT_EQ(c.TextSections[3],
              "\\pard\\qc\\b Title\\b0 \r\n\\par \\pard Body \\i text\\i0 .\r\n"
              "\\par \r\n\\par \\pard\\fi-240\\li360 \\'95\\tab a point\\par }\r\n");
    // Every help text is closed but the last.
    EXPECT_EQ(c.HelpTexts[16] + c.HelpTexts[17], "Help 16\r\n\\par }\r\nHelp 17\r\n\\par }\r");
}

TEST(CourseCompiler, SourceErrorsNameFileAndLine) {
    std::vector<SourceError> errors;
    ParseItems("=== E\nQ?\nA. a\nB. b\nD. d\n---\nWhy.\n=== A\nQ\nA. a\nB. b\nC. c\nD. d\n",
               "topics/3-x.txt", errors);
    ParseGlossary("Zoning :: rules\nAcre :: land\nNo separator\n", "glossary.txt", errors);
    InlineRtf({{"help/01-a.txt", 4}, "an arrow \xE2\x86\x92 and **open"}, errors);
    Course course = SmallCourse(errors);
    course.topics[1] = ParseItems("=== A\n- a bullet\nA. a\nB. b\nC. c\nD. d\n---\nWhy.\n",
                                  "topics/1-a.txt", errors);
    WriteContent(course, errors);
    EXPECT_EQ(Messages(errors),
              "topics/3-x.txt:1: answer letter \"E\" is not one of A to D\n"
              "topics/3-x.txt:5: expected choice \"C. \"\n"
              "topics/3-x.txt:1: item with fewer than four choices\n"
              "topics/3-x.txt:8: item without \"---\" and an explanation\n"
              "glossary.txt:2: \"Acre\" is out of alphabetical order\n"
              "glossary.txt:3: expected \"term :: definition\"\n"
              "help/01-a.txt:4: a character that Windows-1252 lacks\n"
              "help/01-a.txt:4: \"**\" opened and not closed\n"
              "topics/1-a.txt:2: a heading or bullet cannot stand right in front of the choices\n");
}

TEST(CourseCompiler, CheckNamesEveryViolationByItsLine) {
    std::vector<SourceError> errors;
    std::string file = WriteContent(SmallCourse(errors), errors);
    file.pop_back(); // as the program reads it
    // A damage, and each violation found by its line counted from the damaged one.
    const std::tuple<std::string, std::string, std::string> damages[] = {
        {"\\par 04001C", "\\par 04001E", "0 answer letter \"E\" outside A to D"},
        {"\\par 05001C\r\n", "\\par 05001C\r\n\\par 05 inside\r\n",
         "0 item without its explanation marker|0 item without choice A|1 a header line inside "
         "an item, or a broken item header"},
        {"\\par Zoning\r\n\\par  Public rules.\r\n", "\\par Zoning\r\n",
         "0 glossary entry without a definition"},
        {"\\par D. Fourth\r\n\\par \r\n\\par *\r\n\\par Because C.\r\n\\par 08",
         "\\par D. Fourth\r\n\\par *\r\n\\par Because C.\r\n\\par 08",
         "0 no \"\\par \" behind the last choice"},
        {"Help 17\r\n\\par }\r", "Help 17\r\n\\par }\r\r\n\\par ^",
         "2 section marker beyond the eleventh"},
        {"\\par 01\r\n\\par Acre", "",
         "-1 8 section markers; the format has 11|-1 glossary: header 01 missing"},
    };
    for (const auto& [from, to, said] : damages) {
        std::string damaged = file;
        const size_t at = damaged.find(from);
        damaged.replace(at, to.empty() ? std::string::npos : from.size(), to);
        const int line = static_cast<int>(std::count(file.begin(), file.begin() + at, '\n')) + 1;
        std::string found;
        for (const Violation& v : CheckContent(damaged).violations)
            found += (found.empty() ? "" : "|") + std::to_string(v.line - line) + ' ' + v.message;
        EXPECT_EQ(found, said) << from;
    }
}

TEST(CourseCompiler, ReadsAFolderAndBuildsAFileThatChecks) {
    StudyFolder study;
    const std::filesystem::path folder = "course-source";
    Write(folder / "prologue.rtf", "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 !\n");
    Write(folder / "topics/2-second.txt", TopicSource);
    std::string figure = TopicSource;
    figure.replace(figure.find("=== C"), 5, "=== C figure");
    Write(folder / "topics/6-sixth.txt", figure);
    Write(folder / "exams/1-first.txt", std::string(TopicSource) + TopicSource);
    Write(folder / "help/17-last.txt", "The end.\n");
    Write(folder / "glossary.txt", "Acre :: 43,560 square feet.\n");

    EXPECT_EQ(RunTool("build course-source Tessera"),
              (std::pair<int, std::string>{1, "topics/6-sixth.txt:2: only the picture items may be "
                                              "marked \"figure\" (topic 6 item 8, topic 9 item "
                                              "75)\n"}))
        << "a source error writes nothing";
    EXPECT_FALSE(std::filesystem::exists("Tessera"));

    Write(folder / "topics/6-sixth.txt", TopicSource);
    EXPECT_EQ(RunTool("build course-source Tessera").first, 0);
    EXPECT_EQ(
        RunTool("check Tessera"),
        (std::pair<int, std::string>{0, "ok: 2 review items (0 1 0 0 0 1 0 0 0), 2 exam items "
                                        "(2 0), 1 glossary entries, 7 texts, 17 help texts\n"}));
    Write("Broken", "{\\rtf1 !\r\n\\par ^\r\n");
    EXPECT_EQ(RunTool("check Broken").first, 1);
}
