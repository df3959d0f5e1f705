// A catalogue of damaged files: the content file, the progress file, the notebook and the
// pictures, each damaged in a way a disk, a crash or another program can leave it. Every case
// states what the candidate sees; none may crash or hang, and nothing saved may be lost.

#include "core/content_format.h"
#include "core/progress_file.h"
#include "core/records.h"
#include "core/start_up.h"
#include "platform/rich_text_view.h"
#include "review/pict_form.h"
#include "tests/support/full_course_generator.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <QApplication>
#include <QLabel>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <random>

using namespace tessera;

namespace {

const std::string Content = "Tessera";
const std::string Progress = "TesseraConfig.MS";
const std::string NoteBook = "TesseraNoteBook.RTF";
const std::string Picture = "Tessera06008.gph";
constexpr size_t Megabyte = 1 << 20;

enum class File { Content, Progress, NoteBook, Picture };

// What the candidate is left with after the damaged file was read.
struct Seen {
    StartUpOutcome outcome = StartUpOutcome::Ready;
    std::vector<QString> messages; // every message box, in order
    int inputs = 0;                // name questions asked
    SessionState state;
    QString noteBookText; // the notebook as it opens
    bool pictureShown = false;
};

struct Case {
    const char* name;
    File file;
    std::function<std::string()> bytes; // what the damaged file holds
    std::function<void(const Seen&)> expect;
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

std::string Replaced(const std::string& text, std::string_view from, std::string_view to) {
    std::string result;
    size_t done = 0;
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, done)) {
        result.append(text, done, at - done).append(to);
        done = at + from.size();
    }
    return result.append(text, done);
}

// Where section marker i stands, 0-based.
size_t MarkerAt(const std::string& text, int i) {
    size_t at = text.find(SectionMarker);
    while (--i > 0)
        at = text.find(SectionMarker, at + 1);
    return at;
}

int Filled(const auto& table) {
    return static_cast<int>(std::count_if(std::begin(table), std::end(table),
                                          [](const std::string& s) { return !s.empty(); }));
}

// A progress file of an earlier run: a header with a name, then the given records.
std::string EarlierRun(ProgressHeader header, const std::vector<RecordBytes>& records) {
    header.UserName = "Pat Doe" + std::string(UserNameLength - 7, ' ');
    header.PassingGrade = 75;
    std::string file;
    const RecordBytes first = EncodeHeader(header);
    file.append(first.begin(), first.end());
    for (const RecordBytes& bytes : records)
        file.append(bytes.begin(), bytes.end());
    return file;
}

ProgressHeader Suspending(int test, int exam) {
    ProgressHeader header;
    header.SuspendedTestRecord = static_cast<uint8_t>(test);
    header.SuspendedExamRecord = static_cast<uint8_t>(exam);
    return header;
}

ReviewTestRecord Review(int16_t count, int16_t position, std::vector<int16_t> items = {}) {
    ReviewTestRecord record;
    record.Topic = 4;
    record.ItemCount = count;
    record.Position = position;
    record.Furthest = position;
    for (size_t k = 0; k < items.size(); ++k)
        record.Items[k + 1] = items[k];
    return record;
}

ExamRecord Exam(int16_t count, int16_t position, std::vector<int16_t> items = {},
                uint8_t code = 0) {
    ExamRecord record;
    record.Kind = 10;
    record.ItemCount = count;
    record.Position = position;
    for (size_t k = 0; k < items.size(); ++k)
        record.Items[k + 1] = items[k];
    record.AnswerCodes.fill(code);
    return record;
}

const std::vector<QString> DamagedWithoutBackup = {
    QStringLiteral("Your progress file TesseraConfig.MS is damaged.\r\nNo good backup of it was "
                   "found in the Backups folder. The program "
                   "will use what it can read.")};

// The header is read as far as the file holds it; a suspended number that cannot be right
// restores nothing.
std::function<void(const Seen&)> NothingRestored(const std::vector<QString>& said = {}) {
    return [=](const Seen& seen) {
        EXPECT_EQ(seen.outcome, StartUpOutcome::Ready);
        EXPECT_EQ(seen.messages, said);
        EXPECT_EQ(seen.state.SuspendedTestRecord, 0);
        EXPECT_EQ(seen.state.SuspendedExamRecord, 0);
        EXPECT_EQ(seen.state.PassingGrade, 75) << "the header is still read";
    };
}

// Counts and positions are brought within the tables, and an exam kind outside them is 1.
std::function<void(const Seen&)> CountsAndPositionsAre(int value) {
    return [=](const Seen& seen) {
        EXPECT_TRUE(seen.messages.empty());
        const SessionState& s = seen.state;
        EXPECT_EQ((std::vector<int>{s.TestItemCount, s.TestPosition, s.ExamItemCount,
                                    s.ExamPosition, s.ExamKind}),
                  (std::vector<int>{value, value, value, value, 1}));
    };
}

// An empty progress file is a first run: the name is asked for.
void AskedForTheName(const Seen& seen) {
    EXPECT_EQ(seen.outcome, StartUpOutcome::Ready);
    EXPECT_EQ(seen.inputs, 1);
    EXPECT_EQ(seen.messages,
              std::vector<QString>{QStringLiteral("Thank you.\r\nSoftware user's name is Lee.")});
}

// The course is cut as far as the text allows and start-up goes on without a word; -1: any
// number of review items, exam items, glossary entries or help texts; topics: (topic, items).
std::function<void(const Seen&)> CutAsFarAsItGoes(int items, int exams, int glossary,
                                                  int helps = -1,
                                                  std::vector<std::pair<int, int>> topics = {}) {
    return [=](const Seen& seen) {
        EXPECT_EQ(seen.outcome, StartUpOutcome::Ready);
        EXPECT_TRUE(seen.messages.empty());
        const CourseContent& c = seen.state.content;
        const int expected[] = {items, exams, glossary, helps};
        const int filled[] = {Filled(c.ReviewItems), Filled(c.ExamItemTexts),
                              Filled(c.GlossaryEntries), Filled(c.HelpTexts)};
        for (int i = 0; i < 4; ++i)
            EXPECT_TRUE(expected[i] < 0 || filled[i] == expected[i]) << i << ": " << filled[i];
        for (const auto& [topic, count] : topics)
            EXPECT_EQ(c.ItemCounts[topic][1], count) << "topic " << topic;
    };
}

void EmptyPicture(const Seen& seen) {
    EXPECT_FALSE(seen.pictureShown);
}

constexpr int Items = ReviewItemLimit;
constexpr int ExamItems = 2 * FullExamCount;
constexpr int Entries = GlossaryEntryCount;

const std::vector<Case>& Cases() {
    static const std::vector<Case> cases = {
        // The content file: cut as far as it goes, never read outside the text.
        {"content_empty", File::Content, [] { return std::string(); }, CutAsFarAsItGoes(0, 0, 0)},
        {"content_one_byte", File::Content, [] { return std::string("{"); },
         CutAsFarAsItGoes(0, 0, 0)},
        {"content_cut_in_the_prologue", File::Content, [] { return Course().substr(0, 200); },
         CutAsFarAsItGoes(0, 0, 0)},
        {"content_cut_in_the_items", File::Content,
         [] { return Course().substr(0, Course().find(HeaderPattern(5) + "001")); },
         CutAsFarAsItGoes(-1, 0, Entries, 0, {{4, FullTopicCounts[4]}, {5, 0}})},
        {"content_cut_in_the_last_help_text", File::Content,
         [] { return Course().substr(0, Course().size() - 40); },
         CutAsFarAsItGoes(Items, ExamItems, Entries)},
        {"content_without_markers", File::Content,
         [] { return Replaced(Course(), SectionMarker, "\\par -"); }, CutAsFarAsItGoes(0, 0, 0)},
        {"content_marker_doubled", File::Content,
         [] {
             std::string text = Course();
             const size_t first = text.find(SectionMarker);
             return text.insert(first, std::string(SectionMarker) + "\r\n");
         },
         [](const Seen& seen) {
             CutAsFarAsItGoes(-1, -1, -1)(seen);
             EXPECT_NE(seen.state.content.SectionMarks[11], 0);
             EXPECT_FALSE(seen.state.content.RtfHeader.empty());
         }},
        {"content_item_marker_missing", File::Content,
         [] {
             std::string text = Course();
             return text.erase(MarkerAt(text, 9), SectionMarker.size());
         },
         CutAsFarAsItGoes(-1, -1, -1)},
        {"content_topic_headers_missing", File::Content,
         [] { return Replaced(Course(), "\\par 03", "\\par x3"); },
         CutAsFarAsItGoes(-1, -1, -1, -1, {{3, 0}, {4, FullTopicCounts[4]}})},
        {"content_more_items_than_the_table", File::Content,
         [] {
             std::string text = Course();
             const size_t topic1 = text.find(HeaderPattern(1) + "001", MarkerAt(text, 9));
             const size_t topic2 = text.find(HeaderPattern(2) + "001", topic1);
             return text.insert(topic2, text.substr(topic1, topic2 - topic1));
         },
         [](const Seen& seen) {
             CutAsFarAsItGoes(Items, ExamItems, Entries, -1, {{1, 2 * FullTopicCounts[1]}})(seen);
             const auto& counts = seen.state.content.ItemCounts;
             int total = 0;
             for (int t = 1; t <= TopicCount; ++t)
                 total += counts[t][1];
             EXPECT_EQ(total, Items) << "the table is full, and no item beyond it is cut";
         }},
        {"content_explanation_markers_missing", File::Content,
         [] { return Replaced(Course(), ExplanationMarker, "\\par +"); },
         CutAsFarAsItGoes(Items, ExamItems, Entries)},
        {"content_glossary_short", File::Content,
         [] {
             std::string text = Course();
             const size_t items = MarkerAt(text, 9);
             size_t cut = MarkerAt(text, 8);
             for (int i = 0; i < 11; ++i)
                 cut = text.find("\\par \r\n", cut + 1);
             return text.erase(cut, items - cut);
         },
         CutAsFarAsItGoes(Items, ExamItems, 10)},
        {"content_line_ends_lf_only", File::Content,
         [] { return Replaced(Course(), "\r\n", "\n"); }, CutAsFarAsItGoes(-1, -1, -1)},
        {"content_is_a_folder", File::Content, nullptr,
         [](const Seen& seen) {
             EXPECT_EQ(seen.outcome, StartUpOutcome::Ended);
             ASSERT_EQ(seen.messages.size(), 2u); // the error once, then the closing message
             EXPECT_EQ(seen.messages[0], QStringLiteral("Unrecoverable error 75 has occurred."));
         }},
        {"content_binary_junk", File::Content, [] { return Junk(Megabyte, 1); },
         CutAsFarAsItGoes(0, 0, 0)},
        {"content_100_megabytes", File::Content,
         [] {
             std::string text = Course();
             text.insert(text.size() - 10, std::string(100 * Megabyte, 'x'));
             return text;
         },
         [](const Seen& seen) {
             CutAsFarAsItGoes(Items, ExamItems, Entries)(seen);
             EXPECT_GT(seen.state.content.HelpTexts[HelpTextCount].size(), 100 * Megabyte);
         }},

        // The progress file: values that cannot be used are ignored, and the file is kept.
        {"progress_empty", File::Progress, [] { return std::string(); }, AskedForTheName},
        {"progress_shorter_than_a_header", File::Progress,
         [] { return EarlierRun({}, {}).substr(0, 500); }, NothingRestored(DamagedWithoutBackup)},
        {"progress_odd_length", File::Progress,
         [] {
             return EarlierRun(Suspending(2, 0), {EncodeReviewTest(Review(10, 3))}) +
                    std::string(123, '\x07');
         },
         [](const Seen& seen) {
             EXPECT_EQ(seen.messages, DamagedWithoutBackup);
             EXPECT_EQ(seen.state.SuspendedTestRecord, 2);
             EXPECT_EQ(seen.state.TestItemCount, 10);
             EXPECT_EQ(ReadReviewTestRecords().size(), 1u) << "the cut-off tail is no record";
         }},
        {"progress_suspended_outside_the_file", File::Progress,
         [] { return EarlierRun(Suspending(9, 200), {EncodeReviewTest(Review(10, 3))}); },
         NothingRestored()},
        {"progress_suspended_at_the_header", File::Progress,
         [] { return EarlierRun(Suspending(1, 1), {}); }, NothingRestored()},
        {"progress_suspended_at_the_other_kind", File::Progress,
         [] {
             return EarlierRun(Suspending(3, 2),
                               {EncodeReviewTest(Review(10, 3)), EncodeExam(Exam(150, 4))});
         },
         NothingRestored()},
        {"progress_counts_past_300_and_no_exam_kind", File::Progress,
         [] {
             ExamRecord exam = Exam(301, 500);
             exam.Kind = 200;
             return EarlierRun(Suspending(2, 3),
                               {EncodeReviewTest(Review(1000, 900)), EncodeExam(exam)});
         },
         CountsAndPositionsAre(ExamItemLimit)},
        {"progress_negative_counts", File::Progress,
         [] {
             return EarlierRun(Suspending(2, 3),
                               {EncodeReviewTest(Review(-7, -2)), EncodeExam(Exam(-32768, -1))});
         },
         CountsAndPositionsAre(0)},
        {"progress_item_numbers_out_of_range", File::Progress,
         [] {
             const std::vector<int16_t> items = {797, -1, 32767, -32768, 796};
             return EarlierRun(Suspending(2, 3), {EncodeReviewTest(Review(5, 1, items)),
                                                  EncodeExam(Exam(5, 1, items))});
         },
         [](const Seen& seen) {
             for (int k = 1; k <= 4; ++k) {
                 EXPECT_EQ(seen.state.TestItems[k], 0) << k;
                 EXPECT_EQ(seen.state.ExamItems[k], 0) << k;
             }
             EXPECT_EQ(seen.state.TestItems[5], 796);
             EXPECT_EQ(seen.state.ExamItems[5], 796);
         }},
        {"progress_answer_codes_outside_the_table", File::Progress,
         [] { return EarlierRun(Suspending(0, 2), {EncodeExam(Exam(20, 5, {}, 0xFF))}); },
         [](const Seen& seen) {
             EXPECT_EQ(seen.state.ExamItemCount, 20);
             EXPECT_EQ(seen.state.ExamAnswers[1], 0);
             EXPECT_EQ(seen.state.ExamUnsure[1], 0);
         }},
        {"progress_header_of_ff_bytes", File::Progress,
         [] { return std::string(RecordSize, '\xFF') + EarlierRun({}, {}).substr(RecordSize); },
         [](const Seen& seen) {
             EXPECT_EQ(seen.outcome, StartUpOutcome::Ready);
             EXPECT_EQ(seen.messages, DamagedWithoutBackup) << "a passing grade of 255";
             EXPECT_EQ(seen.state.SuspendedTestRecord, 0);
             EXPECT_FALSE(seen.state.ScrambleQuestions) << "a flag is on only when it is 1";
         }},
        {"progress_records_of_junk", File::Progress,
         [] { return EarlierRun({}, {}) + Junk(50 * RecordSize + 17, 2); },
         [](const Seen& seen) {
             EXPECT_EQ(seen.messages, DamagedWithoutBackup);
             EXPECT_EQ(ReadReviewTestRecords().size() + ReadExamRecords().size(), 50u);
         }},

        // The notebook: whatever it holds opens (the reader's own tests show what it shows), and
        // opening it changes nothing on disk.
        {"notebook_missing", File::NoteBook, nullptr,
         [](const Seen& seen) { EXPECT_TRUE(seen.noteBookText.isEmpty()); }},
        {"notebook_binary", File::NoteBook, [] { return Junk(64 * 1024, 3); },
         [](const Seen& seen) { EXPECT_FALSE(seen.noteBookText.isEmpty()); }},
        {"notebook_very_large", File::NoteBook,
         [] {
             std::string rtf = "{\\rtf1\\ansi ";
             for (int i = 0; rtf.size() < 2 * Megabyte; ++i)
                 rtf += "\\par Line " + std::to_string(i) + " of my notes\r\n";
             return rtf + "}";
         },
         [](const Seen& seen) { EXPECT_GT(seen.noteBookText.size(), 1000 * 1000); }},

        // The pictures: a picture that cannot be read leaves the window empty.
        {"picture_empty", File::Picture, [] { return std::string(); }, EmptyPicture},
        {"picture_not_a_picture", File::Picture, [] { return std::string("not a picture"); },
         EmptyPicture},
        {"picture_png_of_absurd_size", File::Picture,
         [] {
             // A PNG header that claims 100000 by 100000 pixels, and no picture behind it.
             return std::string("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\x01\x86\xa0\0\x01\x86\xa0"
                                "\x08\x02\0\0\0\0\0\0\0",
                                33);
         },
         EmptyPicture},
        {"picture_bmp_of_absurd_size", File::Picture,
         [] {
             std::string bmp = "BM" + std::string(52, '\0');
             bmp[10] = 54;
             bmp[14] = 40;
             for (int i : {18, 19, 20, 22, 23, 24})
                 bmp[i] = '\x7f';
             bmp[26] = 1;
             bmp[28] = 24;
             return bmp;
         },
         EmptyPicture},
        {"picture_truncated", File::Picture,
         [] {
             std::ifstream in(std::string(TESSERA_SOURCE_ROOT) + "/course/pictures/" + Picture,
                              std::ios::binary);
             std::string png(std::istreambuf_iterator<char>(in), {});
             return png.substr(0, 40);
         },
         EmptyPicture},
    };
    return cases;
}

class DamagedFile : public testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        folder.write(Content, "{\\rtf1 a small course}\r\n");
        folder.write(Progress, EarlierRun({}, {}));
        folder.write(NoteBook, "{\\rtf1 My notes}");
    }

    // Reads the damaged file the way the program does: start-up for the content and progress
    // files, the notebook's view, the picture window.
    Seen Read(File file) {
        Seen seen;
        doubles.dialogs.type(QStringLiteral("Lee"));
        doubles.dialogs.answer(MessageAnswer::Yes);
        if (file == File::Content || file == File::Progress) {
            seen.outcome = StartUp(seen.state, doubles.services).run();
        } else if (file == File::NoteBook) {
            RichTextView view;
            view.loadFile(QString::fromStdString(NoteBook));
            seen.noteBookText = view.text();
        } else {
            PictForm form;
            form.showPicture(263, 232, QString::fromStdString(Picture));
            seen.pictureShown = !form.Image1->pixmap().isNull();
        }
        for (const ShownMessage& message : doubles.dialogs.messages())
            seen.messages.push_back(message.text);
        seen.inputs = static_cast<int>(doubles.dialogs.inputs().size());
        return seen;
    }

    StudyFolder folder;
    TestServices doubles;
};

TEST_P(DamagedFile, IsReadWithoutHarm) {
    const Case& c = GetParam();
    const std::string name = c.file == File::Content    ? Content
                             : c.file == File::Progress ? Progress
                             : c.file == File::NoteBook ? NoteBook
                                                        : Picture;
    std::string damaged;
    if (!c.bytes) {
        // No file at all, and for the content file a folder in its place.
        std::filesystem::remove(folder.path() / name);
        if (c.file == File::Content)
            std::filesystem::create_directory(folder.path() / name);
    } else {
        damaged = c.bytes();
        folder.write(name, damaged);
    }
    const std::string progress = folder.read(Progress); // as the content cases find it
    const Seen seen = Read(c.file);
    c.expect(seen);
    // Nothing saved is lost: reading changes neither the progress file, but for a first run's
    // new header, nor the notebook.
    if (c.file == File::Progress && seen.inputs > 0)
        return;
    EXPECT_EQ(folder.read(Progress), c.file == File::Progress ? damaged : progress);
    if (c.file == File::NoteBook && c.bytes) {
        EXPECT_TRUE(folder.read(NoteBook) == damaged) << "the notebook changed";
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, DamagedFile, testing::ValuesIn(Cases()),
                         [](const testing::TestParamInfo<Case>& info) {
                             return std::string(info.param.name);
                         });

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
