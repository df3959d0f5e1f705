// A catalogue of damaged content and progress files, each damaged as a disk, a crash or another
// program can leave it. Each row says what the candidate is left with after start-up; none may
// crash or hang, and nothing saved may be lost.

#include "core/content_format.h"
#include "core/progress_file.h"
#include "core/start_up.h"
#include "tests/support/full_course_generator.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <random>
#include <sstream>

using namespace tessera;

namespace {

const std::string ContentFile = "Tessera";

struct Case {
    const char* name;
    bool content;                       // else the progress file
    std::function<std::string()> bytes; // nullptr: a folder in the file's place
    std::string seen;                   // as Seen renders it
};

// An earlier run's progress file: a header naming the suspended records, then a test of topic 4
// and an exam of the kind with no answer code in the table, each with the count and items given.
struct Run {
    int16_t count, position;
    std::vector<int16_t> items = {};
};
std::string EarlierRun(int test = 0, int exam = 0, std::optional<Run> t = {},
                       std::optional<Run> e = {}, int kind = 10) {
    ProgressHeader header;
    header.UserName = "Pat Doe" + std::string(UserNameLength - 7, ' ');
    std::tie(header.PassingGrade, header.SuspendedTestRecord, header.SuspendedExamRecord) =
        std::tuple(75, test, exam);
    std::string file;
    const auto add = [&](const RecordBytes& bytes) { file.append(bytes.begin(), bytes.end()); };
    const auto fill = [](auto record, const Run& run) {
        std::tie(record.ItemCount, record.Position) = std::tuple(run.count, run.position);
        std::copy(run.items.begin(), run.items.end(), record.Items.begin() + 1);
        return record;
    };
    add(EncodeHeader(header));
    if (t)
        add(EncodeReviewTest(fill(ReviewTestRecord{.Topic = 4}, *t)));
    ExamRecord record{.Kind = static_cast<uint8_t>(kind)};
    record.AnswerCodes.fill(0xFF);
    if (e)
        add(EncodeExam(fill(record, *e)));
    return file;
}

// What the candidate is left with, in one line: the course as start-up cut it, or the session
// as it restored it (grade, suspended records, test, exam, its first answer and unsure mark,
// records listed); then the first line of every message, and whether the name was asked for.
std::string Seen(bool content, TestServices& doubles) {
    std::ostringstream out;
    SessionState s;
    out << (StartUp(s, doubles.services).run() == StartUpOutcome::Ready ? "ready" : "ended");
    const auto filled = [](const auto& table) {
        return std::ranges::count_if(table, [](const auto& text) { return !text.empty(); });
    };
    const auto items = [](const auto& items) {
        std::string text = std::to_string(items[1]);
        for (int k = 2; k <= 5; ++k)
            text += ' ' + std::to_string(items[k]);
        return text;
    };
    if (content) {
        const CourseContent& c = s.content;
        out << "; cut " << filled(c.ReviewItems) << ' ' << filled(c.ExamItemTexts) << ' '
            << filled(c.GlossaryEntries) << ' ' << filled(c.HelpTexts) << ", topics";
        for (int t = 1; t <= TopicCount; ++t)
            out << ' ' << c.ItemCounts[t][1];
    } else {
        out << "; grade " << s.PassingGrade << ", " << s.SuspendedTestRecord << '/'
            << s.SuspendedExamRecord << ", test " << s.TestItemCount << '@' << s.TestPosition
            << " [" << items(s.TestItems) << "], exam " << s.ExamKind << ':' << s.ExamItemCount
            << '@' << s.ExamPosition << " [" << items(s.ExamItems) << "] " << s.ExamAnswers[1]
            << ' ' << s.ExamUnsure[1] << ", records " << ReadReviewTestRecords().size() << '+'
            << ReadExamRecords().size();
    }
    for (const ShownMessage& message : doubles.dialogs.messages())
        out << " | " << message.text.section(QStringLiteral("\r\n"), 0, 0).toStdString();
    if (!doubles.dialogs.inputs().empty())
        out << " | asked the name";
    return out.str();
}

const Run OutOfRange(5, 1, {797, -1, 32767, -32768, 796}); // item numbers
const std::string NoRun = "test 0@0 [0 0 0 0 0], exam 1:150@0 [0 0 0 0 0] 0 0";
const std::string Damaged = " | Your progress file TesseraConfig.MS is damaged.";

const Case Cases[] = {
    {"content_empty", true, [] { return ""; }, "ready; cut 0 0 0 0, topics 0 0 0 0 0 0 0 0 0"},
    {"content_more_items_than_the_table", true,
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
    {"content_is_a_folder", true, nullptr,
     "ended; cut 0 0 0 0, topics 0 0 0 0 0 0 0 0 0 | Unrecoverable error 75 has occurred. | The "
     "program cannot start: path/file access error in the study folder. Make sure that the folder "
     "may be written to and has room, then start the program again."},
    {"progress_shorter_than_a_header", false, [] { return EarlierRun().substr(0, 500); },
     "ready; grade 75, 0/0, " + NoRun + ", records 0+0" + Damaged},
    {"progress_odd_length", false,
     [] { return EarlierRun(2, 0, Run(10, 3)) + std::string(123, '\x07'); },
     "ready; grade 75, 2/0, test 10@3 [0 0 0 0 0], exam 1:150@0 [0 0 0 0 0] 0 0, records 1+0" +
         Damaged},
    {"progress_suspended_at_the_header_or_outside_the_file", false,
     [] { return EarlierRun(1, 200, Run(10, 3)); },
     "ready; grade 75, 0/0, " + NoRun + ", records 1+0"},
    {"progress_suspended_at_the_other_kind", false,
     [] { return EarlierRun(3, 2, Run(10, 3), Run(150, 4)); },
     "ready; grade 75, 0/0, " + NoRun + ", records 1+1"},
    {"progress_counts_past_300_and_no_exam_kind", false,
     [] { return EarlierRun(2, 3, Run(1000, 900), Run(301, 500), 200); },
     "ready; grade 75, 2/3, test 300@300 [0 0 0 0 0], exam 1:300@300 [0 0 0 0 0] 0 0, records 1+1"},
    {"progress_negative_counts", false,
     [] { return EarlierRun(2, 3, Run(-7, -2), Run(-32768, -1)); },
     "ready; grade 75, 2/3, test 0@0 [0 0 0 0 0], exam 1:0@0 [0 0 0 0 0] 0 0, records 1+1"},
    {"progress_item_numbers_out_of_range", false,
     [] { return EarlierRun(2, 3, OutOfRange, OutOfRange); },
     "ready; grade 75, 2/3, test 5@1 [0 0 0 0 796], exam 1:5@1 [0 0 0 0 796] 0 0, records 1+1"},
    {"progress_answer_codes_outside_the_table", false,
     [] { return EarlierRun(0, 2, {}, Run(20, 5)); },
     "ready; grade 75, 0/2, test 0@0 [0 0 0 0 0], exam 1:20@5 [0 0 0 0 0] 0 0, records 0+1"},
    {"progress_records_of_junk", false,
     [] {
         std::string junk(50 * RecordSize + 17, '\0');
         std::generate(junk.begin(), junk.end(), std::mt19937(2));
         return EarlierRun() + junk;
     },
     "ready; grade 75, 0/0, " + NoRun + ", records 1+49" + Damaged},
};

class DamagedFile : public testing::TestWithParam<Case> {};

TEST_P(DamagedFile, IsReadWithoutHarm) {
    const Case& c = GetParam();
    StudyFolder folder;
    TestServices doubles;
    folder.write(ProgressFile, c.content ? EarlierRun() : c.bytes());
    if (!c.bytes)
        std::filesystem::create_directory(folder.path() / ContentFile);
    else
        folder.write(ContentFile, c.content ? c.bytes() : "{\\rtf1 a small course}\r\n");
    const std::string progress = folder.read(ProgressFile);
    doubles.dialogs.type(QStringLiteral("Lee"));
    doubles.dialogs.answer(MessageAnswer::Yes);
    EXPECT_EQ(Seen(c.content, doubles), c.seen);
    // Nothing saved is lost: the progress file stays as it was, but for a first run's header.
    if (!progress.empty()) {
        EXPECT_EQ(folder.read(ProgressFile), progress);
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, DamagedFile, testing::ValuesIn(Cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
