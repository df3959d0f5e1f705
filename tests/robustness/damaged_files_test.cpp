// A catalogue of damaged content files, each damaged as a disk, a crash or another program can
// leave it. Each row says what the candidate is left with after start-up; none may crash or
// hang, and nothing saved may be lost.

#include "core/content_format.h"
#include "core/progress_file.h"
#include "core/start_up.h"
#include "tests/support/full_course_generator.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>

using namespace tessera;

namespace {

const std::string ContentFile = "Tessera";

struct Case {
    const char* name;
    std::function<std::string()> bytes; // nullptr: a folder in the file's place
    std::string seen;                   // as Seen renders it
};

// What the candidate is left with, in one line: the course as start-up cut it, then the first
// line of every message, and whether the name was asked for.
std::string Seen(TestServices& doubles) {
    std::ostringstream out;
    SessionState s;
    out << (StartUp(s, doubles.services).run() == StartUpOutcome::Ready ? "ready" : "ended");
    const auto filled = [](const auto& table) {
        return std::ranges::count_if(table, [](const auto& text) { return !text.empty(); });
    };
    const CourseContent& c = s.content;
    out << "; cut " << filled(c.ReviewItems) << ' ' << filled(c.ExamItemTexts) << ' '
        << filled(c.GlossaryEntries) << ' ' << filled(c.HelpTexts) << ", topics";
    for (int t = 1; t <= TopicCount; ++t)
        out << ' ' << c.ItemCounts[t][1];
    for (const ShownMessage& message : doubles.dialogs.messages())
        out << " | " << message.text.section(QStringLiteral("\r\n"), 0, 0).toStdString();
    if (!doubles.dialogs.inputs().empty())
        out << " | asked the name";
    return out.str();
}

const Case Cases[] = {
    {"content_empty", [] { return ""; }, "ready; cut 0 0 0 0, topics 0 0 0 0 0 0 0 0 0"},
    {"content_more_items_than_the_table",
     [] {
         std::string text = FullCourseContent();
         size_t items = std::string::npos; // the ninth section marker's
         for (int marker = 1; marker <= 9; ++marker)
             items = text.find(SectionMarker, items + 1);
         const size_t topic1 = text.find(HeaderPattern(1) + "001", items);
         const size_t topic2 = text.find(HeaderPattern(2) + "001", topic1);
         return text.insert(topic2, text.substr(topic1, topic2 - topic1));
     },
     "ready; cut 796 300 1181 17, topics 180 70 100 85 100 90 95 66 10"},
    {"content_is_a_folder", nullptr,
     "ended; cut 0 0 0 0, topics 0 0 0 0 0 0 0 0 0 | Unrecoverable error 75 has occurred. | The "
     "program cannot start: path/file access error in the study folder. Make sure that the folder "
     "may be written to and has room, then start the program again."},
};

class DamagedFile : public testing::TestWithParam<Case> {};

TEST_P(DamagedFile, IsReadWithoutHarm) {
    const Case& c = GetParam();
    StudyFolder folder;
    TestServices doubles;
    ProgressHeader header; // an earlier run's
    std::tie(header.UserName, header.PassingGrade) = std::tuple("Pat Doe", 75);
    const RecordBytes progress = EncodeHeader(header);
    folder.write(ProgressFile, std::string(progress.begin(), progress.end()));
    if (!c.bytes)
        std::filesystem::create_directory(folder.path() / ContentFile);
    else
        folder.write(ContentFile, c.bytes());
    EXPECT_EQ(Seen(doubles), c.seen);
    EXPECT_EQ(folder.read(ProgressFile), std::string(progress.begin(), progress.end()));
}

INSTANTIATE_TEST_SUITE_P(Catalogue, DamagedFile, testing::ValuesIn(Cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
