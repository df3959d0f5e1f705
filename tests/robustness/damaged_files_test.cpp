// A catalogue of damaged files: the content file, the progress file and the notebook, each damaged
// as a disk, a crash or another program can leave it. Each row says what the candidate is left
// with; none may crash or hang, and nothing saved may be lost.

#include "core/content_format.h"
#include "core/progress_file.h"
#include "core/start_up.h"
#include "platform/rich_text_view.h"
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
#include <type_traits>

using namespace tessera;

namespace {

enum class File { Content, Progress, NoteBook };
const std::string Names[] = {"Tessera", "TesseraConfig.MS", "TesseraNoteBook.RTF"};
constexpr size_t Megabyte = 1 << 20;

struct Case {
    const char* name;
    File file;
    std::function<std::string()> bytes; // nullptr: a folder in the file's place
    std::string seen;                   // as Seen renders it
};

void PrintTo(const Case& c, std::ostream* out) {
    *out << c.name;
}

const std::string& Course() {
    static const std::string course = FullCourseContent();
    return course;
}

std::string Junk(size_t size, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// Where section marker i stands, 1-based.
size_t MarkerAt(const std::string& text, int i) {
    size_t at = text.find(SectionMarker);
    while (--i > 0)
        at = text.find(SectionMarker, at + 1);
    return at;
}

int Filled(const auto& table) {
    return static_cast<int>(std::count_if(std::begin(table), std::end(table), [](const auto& s) {
        return s != std::remove_cvref_t<decltype(s)>{};
    }));
}

// A progress file of an earlier run: a header with a name and the suspended record numbers,
// then the given records.
std::string EarlierRun(int test = 0, int exam = 0, const std::vector<RecordBytes>& records = {}) {
    ProgressHeader header;
    header.UserName = "Pat Doe" + std::string(UserNameLength - 7, ' ');
    header.PassingGrade = 75;
    header.SuspendedTestRecord = static_cast<uint8_t>(test);
    header.SuspendedExamRecord = static_cast<uint8_t>(exam);
    const RecordBytes first = EncodeHeader(header);
    std::string file(first.begin(), first.end());
    for (const RecordBytes& bytes : records)
        file.append(bytes.begin(), bytes.end());
    return file;
}

// A suspended run's record: a review test of topic 4, or an exam of the given kind whose answer
// codes all stand outside the table.
using Test = ReviewTestRecord;
using Exam = ExamRecord;

template <typename Record>
RecordBytes Run(int16_t count, int16_t position, std::vector<int16_t> items = {}, int kind = 10) {
    Record record;
    record.ItemCount = count;
    record.Position = position;
    std::copy(items.begin(), items.end(), record.Items.begin() + 1);
    if constexpr (std::is_same_v<Record, ExamRecord>) {
        record.Kind = static_cast<uint8_t>(kind);
        record.AnswerCodes.fill(0xFF);
        return EncodeExam(record);
    } else {
        record.Topic = 4;
        return EncodeReviewTest(record);
    }
}

std::string Items(const auto& items) {
    std::string text;
    for (int k = 1; k <= 5; ++k)
        text += (k > 1 ? " " : "") + std::to_string(items[k]);
    return text;
}

// What the candidate is left with, in one line: the course as start-up cut it, the session as
// it restored it, or the notebook as it opens; then the first line of every message, and
// whether the name was asked for.
std::string Seen(File file, TestServices& doubles) {
    std::ostringstream out;
    SessionState s;
    if (file == File::Content || file == File::Progress)
        out << (StartUp(s, doubles.services).run() == StartUpOutcome::Ready ? "ready" : "ended");
    const CourseContent& c = s.content;
    if (file == File::Content) {
        out << "; cut " << Filled(c.ReviewItems) << ' ' << Filled(c.ExamItemTexts) << ' '
            << Filled(c.GlossaryEntries) << ' ' << Filled(c.HelpTexts) << ", marks "
            << Filled(c.SectionMarks) << ", topics";
        for (int t = 1; t <= TopicCount; ++t)
            out << ' ' << c.ItemCounts[t][1];
        out << ", help " << c.HelpTexts[HelpTextCount].size() / Megabyte << " MB";
    } else if (file == File::Progress) {
        out << "; grade " << s.PassingGrade << ", suspended " << s.SuspendedTestRecord << '/'
            << s.SuspendedExamRecord << ", test " << s.TestItemCount << '@' << s.TestPosition
            << " [" << Items(s.TestItems) << "], exam " << s.ExamKind << ':' << s.ExamItemCount
            << '@' << s.ExamPosition << " [" << Items(s.ExamItems) << "] answer "
            << s.ExamAnswers[1] << " unsure " << s.ExamUnsure[1] << ", records "
            << ReadReviewTestRecords().size() << '+' << ReadExamRecords().size();
    } else {
        RichTextView view;
        view.loadFile(QString::fromStdString(Names[2]));
        out << "notebook of " << view.text().size() / 1000 << "k characters";
    }
    for (const ShownMessage& message : doubles.dialogs.messages())
        out << " | " << message.text.section(QStringLiteral("\r\n"), 0, 0).toStdString();
    if (!doubles.dialogs.inputs().empty())
        out << " | asked the name";
    return out.str();
}

// The course cut whole, and a session with no run restored.
const std::string WholeCourse =
    "cut 796 300 1181 17, marks 11, topics 90 70 100 85 100 90 95 66 100";
const std::string NothingCut = "ready; cut 0 0 0 0, marks 0, topics 0 0 0 0 0 0 0 0 0, help 0 MB";
const std::string NoRun = "test 0@0 [0 0 0 0 0], exam 1:150@0 [0 0 0 0 0] answer 0 unsure 0";
const std::string Damaged = " | Your progress file TesseraConfig.MS is damaged.";

const Case Cases[] = {
    {"content_empty", File::Content, [] { return ""; }, NothingCut},
    {"content_one_byte", File::Content, [] { return "{"; }, NothingCut},
    {"content_cut_in_the_prologue", File::Content, [] { return Course().substr(0, 200); },
     "ready; cut 0 0 0 0, marks 1, topics 0 0 0 0 0 0 0 0 0, help 0 MB"},
    {"content_cut_in_the_items", File::Content,
     [] { return Course().substr(0, Course().find(HeaderPattern(5) + "001")); },
     "ready; cut 345 0 1181 0, marks 9, topics 90 70 100 85 0 0 0 0 0, help 0 MB"},
    {"content_cut_in_the_last_help_text", File::Content,
     [] { return Course().substr(0, Course().size() - 40); },
     "ready; " + WholeCourse + ", help 0 MB"},
    {"content_without_markers", File::Content,
     [] { return Replaced(Course(), SectionMarker, "\\par -"); }, NothingCut},
    {"content_marker_doubled", File::Content,
     [] {
         return std::string(Course()).insert(MarkerAt(Course(), 1),
                                             std::string(SectionMarker) + "\r\n");
     },
     "ready; cut 1 160 1 17, marks 11, topics 1 0 0 0 0 0 0 0 0, help 0 MB"},
    {"content_item_marker_missing", File::Content,
     [] { return std::string(Course()).erase(MarkerAt(Course(), 9), SectionMarker.size()); },
     "ready; cut 300 2 1181 0, marks 10, topics 150 150 0 0 0 0 0 0 0, help 0 MB"},
    {"content_topic_headers_missing", File::Content,
     [] { return Replaced(Course(), "\\par 03", "\\par x3"); },
     "ready; cut 696 300 1181 2, marks 11, topics 90 70 0 85 100 90 95 66 100, help 0 MB"},
    {"content_more_items_than_the_table", File::Content,
     [] {
         std::string text = Course();
         const size_t topic1 = text.find(HeaderPattern(1) + "001", MarkerAt(text, 9));
         const size_t topic2 = text.find(HeaderPattern(2) + "001", topic1);
         return text.insert(topic2, text.substr(topic1, topic2 - topic1));
     },
     "ready; cut 796 300 1181 17, marks 11, topics 180 70 100 85 100 90 95 66 10, help 0 MB"},
    {"content_explanation_markers_missing", File::Content,
     [] { return Replaced(Course(), ExplanationMarker, "\\par +"); },
     "ready; " + WholeCourse + ", help 0 MB"},
    {"content_glossary_short", File::Content,
     [] {
         std::string text = Course();
         size_t cut = MarkerAt(text, 8);
         for (int i = 0; i < 11; ++i)
             cut = text.find("\\par \r\n", cut + 1);
         return text.erase(cut, MarkerAt(text, 9) - cut);
     },
     "ready; cut 796 300 10 17, marks 11, topics 90 70 100 85 100 90 95 66 100, help 0 MB"},
    {"content_line_ends_lf_only", File::Content, [] { return Replaced(Course(), "\r\n", "\n"); },
     "ready; cut 796 300 0 17, marks 11, topics 90 70 100 85 100 90 95 66 100, help 0 MB"},
    {"content_is_a_folder", File::Content, nullptr,
     "ended; cut 0 0 0 0, marks 0, topics 0 0 0 0 0 0 0 0 0, help 0 MB | Unrecoverable error 75 "
     "has occurred. | The program cannot start: path/file access error in the study folder. Make "
     "sure that the folder may be written to and has room, then start the program again."},
    {"content_binary_junk", File::Content, [] { return Junk(Megabyte, 1); }, NothingCut},
    {"content_100_megabytes", File::Content,
     [] {
         return std::string(Course()).insert(Course().size() - 10,
                                             std::string(100 * Megabyte, 'x'));
     },
     "ready; " + WholeCourse + ", help 100 MB"},

    {"progress_empty", File::Progress, [] { return ""; },
     "ready; grade 70, suspended 0/0, " + NoRun + ", records 0+0 | Thank you. | asked the name"},
    {"progress_shorter_than_a_header", File::Progress, [] { return EarlierRun().substr(0, 500); },
     "ready; grade 75, suspended 0/0, " + NoRun + ", records 0+0" + Damaged},
    {"progress_odd_length", File::Progress,
     [] { return EarlierRun(2, 0, {Run<Test>(10, 3)}) + std::string(123, '\x07'); },
     "ready; grade 75, suspended 2/0, test 10@3 [0 0 0 0 0], exam 1:150@0 [0 0 0 0 0] answer 0 "
     "unsure 0, records 1+0" +
         Damaged},
    {"progress_suspended_outside_the_file", File::Progress,
     [] { return EarlierRun(9, 200, {Run<Test>(10, 3)}); },
     "ready; grade 75, suspended 0/0, " + NoRun + ", records 1+0"},
    {"progress_suspended_at_the_header", File::Progress, [] { return EarlierRun(1, 1); },
     "ready; grade 75, suspended 0/0, " + NoRun + ", records 0+0"},
    {"progress_suspended_at_the_other_kind", File::Progress,
     [] {
         return EarlierRun(3, 2, {Run<Test>(10, 3), Run<Exam>(150, 4)});
     },
     "ready; grade 75, suspended 0/0, " + NoRun + ", records 1+1"},
    {"progress_counts_past_300_and_no_exam_kind", File::Progress,
     [] {
         return EarlierRun(2, 3, {Run<Test>(1000, 900), Run<Exam>(301, 500, {}, 200)});
     },
     "ready; grade 75, suspended 2/3, test 300@300 [0 0 0 0 0], exam 1:300@300 [0 0 0 0 0] "
     "answer 0 unsure 0, records 1+1"},
    {"progress_negative_counts", File::Progress,
     [] {
         return EarlierRun(2, 3, {Run<Test>(-7, -2), Run<Exam>(-32768, -1)});
     },
     "ready; grade 75, suspended 2/3, test 0@0 [0 0 0 0 0], exam 1:0@0 [0 0 0 0 0] answer 0 "
     "unsure 0, records 1+1"},
    {"progress_item_numbers_out_of_range", File::Progress,
     [] {
         const std::vector<int16_t> items = {797, -1, 32767, -32768, 796};
         return EarlierRun(2, 3, {Run<Test>(5, 1, items), Run<Exam>(5, 1, items)});
     },
     "ready; grade 75, suspended 2/3, test 5@1 [0 0 0 0 796], exam 1:5@1 [0 0 0 0 796] answer 0 "
     "unsure 0, records 1+1"},
    {"progress_answer_codes_outside_the_table", File::Progress,
     [] { return EarlierRun(0, 2, {Run<Exam>(20, 5)}); },
     "ready; grade 75, suspended 0/2, test 0@0 [0 0 0 0 0], exam 1:20@5 [0 0 0 0 0] answer 0 "
     "unsure 0, records 0+1"},
    {"progress_header_of_ff_bytes", File::Progress,
     [] { return std::string(RecordSize, '\xFF') + EarlierRun().substr(RecordSize); },
     "ready; grade 255, suspended 0/0, " + NoRun + ", records 0+0" + Damaged},
    {"progress_records_of_junk", File::Progress,
     [] { return EarlierRun() + Junk(50 * RecordSize + 17, 2); },
     "ready; grade 75, suspended 0/0, " + NoRun + ", records 1+49" + Damaged},

    {"notebook_binary", File::NoteBook, [] { return Junk(64 * 1024, 3); },
     "notebook of 58k characters"},
    {"notebook_very_large", File::NoteBook,
     [] {
         std::string rtf = "{\\rtf1\\ansi ";
         for (int i = 0; rtf.size() < 2 * Megabyte; ++i)
             rtf += "\\par Line " + std::to_string(i) + " of my notes\r\n";
         return rtf + "}";
     },
     "notebook of 1660k characters"},

};

class DamagedFile : public testing::TestWithParam<Case> {};

TEST_P(DamagedFile, IsReadWithoutHarm) {
    const Case& c = GetParam();
    StudyFolder folder;
    TestServices doubles;
    folder.write(Names[0], "{\\rtf1 a small course}\r\n");
    folder.write(Names[1], EarlierRun());
    folder.write(Names[2], "{\\rtf1 My notes}");
    const std::string& name = Names[static_cast<int>(c.file)];
    const std::string damaged = c.bytes ? c.bytes() : "";
    folder.write(name, damaged);
    if (!c.bytes) {
        std::filesystem::remove(folder.path() / name);
        std::filesystem::create_directory(folder.path() / name);
    }
    const std::string progress = folder.read(Names[1]);
    doubles.dialogs.type(QStringLiteral("Lee"));
    doubles.dialogs.answer(MessageAnswer::Yes);
    EXPECT_EQ(Seen(c.file, doubles), c.seen);
    // Nothing saved is lost: the progress file stays as it was, but for a first run's header.
    if (c.file != File::Progress || !damaged.empty()) {
        EXPECT_EQ(folder.read(Names[1]), progress);
    }
    if (c.file == File::NoteBook) {
        EXPECT_TRUE(folder.read(Names[2]) == damaged) << "the notebook changed";
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
