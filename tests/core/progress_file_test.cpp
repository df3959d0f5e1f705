// The progress file as each operation leaves it, whatever strikes while it writes, and the
// journal of a running test or exam as the next start finds it.

#include "core/progress_file.h"
#include "core/run_journal.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

using namespace tessera;

namespace {

using Fault = FaultyFiles::Fault;
const DateValue Today = DateFromParts(2026, 11, 19);

// A progress file of the given records, the header first.
std::string File(std::initializer_list<RecordBytes> records) {
    std::string file;
    for (const RecordBytes& record : records)
        file.append(record.begin(), record.end());
    return file;
}

// The whole records of a file, the header first.
std::vector<std::string> RecordsOf(const std::string& file) {
    std::vector<std::string> records;
    for (std::size_t at = 0; at + RecordSize <= file.size(); at += RecordSize)
        records.push_back(file.substr(at, RecordSize));
    return records;
}

// A test of the topic and an exam of the kind, stopped at the given position.
ReviewTestRecord TestOfTopic(int topic, int16_t position = 0) {
    return {
        .Topic = static_cast<uint8_t>(topic), .Position = position, .ItemCount = 4, .TestType = 1};
}

ExamRecord ExamOfKind(int kind, int16_t position = 0) {
    const auto k = static_cast<uint8_t>(kind);
    return {
        .Kind = static_cast<uint8_t>(k + 9), .Position = position, .ItemCount = 3, .ExamType = k};
}

// A header as a first run leaves it, with the reserved tail and a flag byte of 2 that every
// operation has to pass through.
ProgressHeader StartedHeader() {
    ProgressHeader h;
    std::tie(h.UserName, h.ScrambleQuestions, h.PassingGrade) = std::tuple("Pat Doe", 2, 70);
    for (int i = 0; i < ReservedHeaderBytes; ++i)
        h.Reserved[i] = static_cast<uint8_t>(i * 7 + 3);
    return h;
}

// The file in short: the suspended test and exam record numbers, then each record as t<topic>
// or e<exam kind> at its position, and the length of a cut-off tail.
std::string Sketch(const std::string& file) {
    std::ostringstream out;
    out << +static_cast<uint8_t>(file[5]) << '/' << +static_cast<uint8_t>(file[6]);
    const std::vector<std::string> records = RecordsOf(file);
    for (size_t n = 1; n < records.size(); ++n) {
        const auto byte = [&](int at) { return static_cast<uint8_t>(records[n][at]); };
        const int kind = byte(0);
        out << ' ' << (kind <= TopicCount ? 't' : 'e') << (kind <= TopicCount ? kind : kind - 9)
            << '@' << static_cast<int16_t>(byte(11) | byte(12) << 8);
    }
    if (file.size() % RecordSize != 0)
        out << " +" << file.size() % RecordSize;
    return out.str();
}

// The session as the next start restores it from the progress file.
SessionState Restarted() {
    SessionState state;
    FillCatalogue(state);
    ApplyHeader(ReadProgressHeader(), state);
    RestoreSuspended(state);
    return state;
}

using S = SessionState;

// A session with a review test and an exam running, each at its first item.
class ProgressFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        FillCatalogue(state);
        std::tie(state.CurrentTopic, state.TestType, state.TestItemCount, state.TestPosition,
                 state.ExamKind, state.ExamType, state.ExamItemCount, state.ExamPosition,
                 state.TakeCounts[3]) = std::tuple(3, 1, 2, 1, 2, 2, 2, 1, 2);
        state.TestItems = {0, 5, 6};
        state.ExamItems = {0, 11, 12};
        state.ExamKey = {0, 1, 2};
        state.ExamAnswers = {0, 1, 0};
        state.ExamAnswered = {0, 1, 0};
    }
    StudyFolder folder;
    SessionState state;
};

// A history of finished tests and exams (records 2, 3, 4 and 6), with the test of record 5 and
// the exam of record 7 suspended.
const std::string Starting = [] {
    ProgressHeader header = StartedHeader();
    std::tie(header.SuspendedTestRecord, header.SuspendedExamRecord) = std::tuple(5, 7);
    return File({EncodeHeader(header), EncodeReviewTest(TestOfTopic(1)), EncodeExam(ExamOfKind(1)),
                 EncodeReviewTest(TestOfTopic(2)), EncodeReviewTest(TestOfTopic(3, 2)),
                 EncodeExam(ExamOfKind(2)), EncodeExam(ExamOfKind(3, 1))});
}();

// An operation, and the file it writes.
struct Operation {
    const char* name;
    std::function<void(SessionState&)> run;
    const char* file = ProgressFile;
};

const LogEntry Logged{3, .75F};
const ExamFilingPlan Filed = [](float) { return ExamFiling{LogEntry{10, .8F}, true}; };
const Operation Operations[] = {
    {"test broken off", [](S& s) { SaveReviewTest(s, false, Today); }},
    {"test finished, logged", [](S& s) { SaveReviewTest(s, true, Today, Logged); }},
    {"exam broken off", [](S& s) { SaveExam(s, false, Today); }},
    {"exam finished, logged, counted", [](S& s) { SaveExam(s, true, Today, Filed); }},
    {"a new test", [](S& s) { s.SuspendedTestRecord = 0, SaveReviewTest(s, false, Today); }},
    {"a log entry", [](S&) { AppendProgressLog(11, 0.5F, Today); }},
    {"preferences", [](S& s) { s.PassingGrade = 75, SavePreferences(s); }},
    {"the review card", [](S& s) { RewriteProgressFile(s, std::vector{TestOfTopic(2)}, Today); }},
    {"a record taken out", [](S& s) { RemoveProgressRecord(s, 6, Today); }},
    {"a journal", [](S& s) { JournalReviewTest(s, Today); }, JournalFile},
    {"a journal replayed", [](S& s) { JournalReviewTest(s, Today), ReplayJournal(s, Today); }},
};

// The operation's own file before and after, and the progress file once start-up recovered it.
struct Outcome {
    std::string before{}, progress{}, after{};
    int steps = 0, writes = 0;
};

// The operation run with the fault, the machine started again and start-up's recovery done.
Outcome RunWith(const Operation& operation, Fault fault, int at) {
    StudyFolder folder;
    folder.write(ProgressFile, Starting);
    SessionState state = Restarted();
    std::tie(state.TestPosition, state.ExamPosition) = std::tuple(3, 2);
    Outcome outcome{.before = folder.read(operation.file)};
    {
        FaultyFiles files(fault, at);
        operation.run(state);
        std::tie(outcome.steps, outcome.writes) = std::tuple(files.steps(), files.writes());
    }
    RecoverProgressFile();
    outcome.progress = folder.read(ProgressFile);
    outcome.after = folder.read(operation.file);
    return outcome;
}

bool Holds(const std::string& file, const std::string& record) {
    return std::ranges::count(RecordsOf(file), record) > 0;
}

} // namespace

// Breaking off keeps one record per run until it is finished; card rewrites and removals move
// the suspended numbers along with their records.
TEST_F(ProgressFileTest, RecordsGoWhereTheSuspendedNumbersSay) {
    ProgressHeader header = StartedHeader();
    header.SuspendedTestRecord = 2;
    folder.write(ProgressFile, File({EncodeHeader(header), EncodeExam(ExamOfKind(1)),
                                     EncodeReviewTest(TestOfTopic(2))}) +
                                   std::string(300, '\xEE'));
    state.SuspendedTestRecord = 2;
    state.ExamAnswered[2] = 1;
    const auto save = [](bool finished, int position) {
        return [=](S& s) {
            s.TestPosition = static_cast<int16_t>(position);
            return SaveReviewTest(s, finished, Today).recordNumber;
        };
    };
    const auto kept = [](auto records) {
        return [=](S& s) { return static_cast<int>(RewriteProgressFile(s, records, Today)); };
    };
    const auto removed = [](int record) {
        return [=](S& s) { return static_cast<int>(RemoveProgressRecord(s, record, Today)); };
    };
    // What is done, doing it (giving the record written or the status), and the result with
    // the file's sketch after it.
    const std::tuple<const char*, std::function<int(S&)>, const char*> steps[] = {
        {"a number at an exam: the test is new", save(false, 1), "4: 4/0 e1@0 t2@0 t3@1"},
        {"broken off again: the same record", save(false, 2), "4: 4/0 e1@0 t2@0 t3@2"},
        {"finished in place", save(true, 2), "4: 0/0 e1@0 t2@0 t3@2"},
        {"the next test is new", save(false, 1), "5: 5/0 e1@0 t2@0 t3@2 t3@1"},
        {"the exam card keeps two exams, first", kept(std::vector{ExamOfKind(3), ExamOfKind(4)}),
         "0: 6/0 e3@0 e4@0 t2@0 t3@2 t3@1"},
        {"an exam broken off", [](S& s) { return SaveExam(s, false, Today).recordNumber; },
         "7: 6/7 e3@0 e4@0 t2@0 t3@2 t3@1 e2@1"},
        {"the suspended test taken out", removed(6), "0: 0/6 e3@0 e4@0 t2@0 t3@2 e2@1"},
        {"the review card keeps three tests, first",
         kept(std::vector{TestOfTopic(4), TestOfTopic(7), TestOfTopic(1)}),
         "0: 0/7 t4@0 t7@0 t1@0 e3@0 e4@0 e2@1"},
        {"a test taken out", removed(3), "0: 0/6 t4@0 t1@0 e3@0 e4@0 e2@1"},
    };
    for (const auto& [what, run, after] : steps) {
        const int result = run(state);
        const std::string sketch = Sketch(folder.read(ProgressFile));
        EXPECT_EQ(std::to_string(result) + ": " + sketch, after) << what;
        EXPECT_TRUE(sketch.starts_with(std::to_string(state.SuspendedTestRecord) + '/' +
                                       std::to_string(state.SuspendedExamRecord) + ' '))
            << what << ": the session's numbers are the header's";
    }
    const std::string file = folder.read(ProgressFile);
    EXPECT_EQ(RecordsOf(file).back().substr(1, 10), "11-19-2026");
    std::tie(header.SuspendedTestRecord, header.SuspendedExamRecord, header.TakeCounts[3]) =
        std::tuple(0, 6, 2);
    EXPECT_EQ(file.substr(0, RecordSize), File({EncodeHeader(header)}));
    EXPECT_FALSE(folder.exists(NewProgressFile));
    // Past record 255 the header has no byte for the number: the test is saved and kept for this
    // run, and comes within reach again once a record before it goes.
    folder.write(ProgressFile,
                 file + std::string((255 - file.size() / RecordSize) * RecordSize, 12));
    for (int save = 0; save < 2; ++save) {
        const SaveResult r = SaveReviewTest(state, false, Today);
        const std::string saved = folder.read(ProgressFile);
        EXPECT_EQ(std::tuple(r.status, r.recordNumber, saved.size() / RecordSize, Sketch(saved)[0]),
                  std::tuple(SaveStatus::SuspendedBeyondHeader, 256, 256u, '0'));
    }
    RemoveProgressRecord(state, 2, Today);
    EXPECT_EQ(std::to_string(state.SuspendedTestRecord) + ' ' +
                  Sketch(folder.read(ProgressFile)).substr(0, 6),
              "255 255/5 ");
}

TEST_F(ProgressFileTest, HeaderOperationsWriteOnlyTheirOwnFields) {
    ProgressHeader expected = StartedHeader();
    folder.write(ProgressFile, File({EncodeHeader(expected)}));
    for (int slot = 1; slot <= LogSlotCount + 1; ++slot) {
        AppendProgressLog(slot % 12 + 1, 0.25f * (slot % 4), Today);
        if (slot <= LogSlotCount) // with all slots taken nothing changes
            std::tie(expected.LogDates[slot], expected.LogCodes[slot], expected.LogScores[slot]) =
                std::tuple("11-19-2026", slot % 12 + 1, 0.25f * (slot % 4));
        ASSERT_EQ(folder.read(ProgressFile), File({EncodeHeader(expected)})) << "slot " << slot;
    }
    std::tie(state.SoundOn, state.PassingGrade) = std::tuple(true, 75);
    SavePreferences(state);
    std::tie(expected.ScrambleQuestions, expected.SoundOn, expected.PassingGrade) =
        std::tuple(0, 1, 75);
    EXPECT_EQ(folder.read(ProgressFile), File({EncodeHeader(expected)}));
}

// A NewConfig left complete by a crash replaces the progress file; an unfinished one is dropped.
TEST_F(ProgressFileTest, StartUpRecoversACompleteRewrite) {
    const std::string saved = File({EncodeHeader(StartedHeader()), EncodeExam(ExamOfKind(2))});
    for (const std::string& rewrite : {saved, std::string(10, 1)}) {
        folder.write(NewProgressFile, rewrite);
        RecoverProgressFile();
        EXPECT_EQ(folder.read(ProgressFile), saved);
        EXPECT_FALSE(folder.exists(NewProgressFile));
    }
}

// A run saved once, then journaled further: whole, the journal takes the place of its record;
// not adding up, or emptied as the folder would not let it go, it is dropped and the file stays.
TEST_F(ProgressFileTest, WholeJournalsBecomeTheSuspendedRunAndOthersAreDropped) {
    // An exam or a test; a byte changed in the journal (-1: none); the journal dropped while no
    // file can be removed; what the next start after the replay restores.
    const std::tuple<bool, int, bool, std::string> cases[] = {
        {true, -1, false, "2: 0/2 e2@2, test at 0 tally 0, exam at 2 answer 3"},
        {true, 45, false, "0: 0/2 e2@1, test at 0 tally 0, exam at 1 answer 0"},
        {false, -1, true, "0: 2/0 t3@1, test at 1 tally 0, exam at 0 answer 0"},
    };
    for (const auto& [exam, flipByte, stuck, restored] : cases) {
        const StudyFolder own;
        SessionState s = state;
        exam ? SaveExam(s, false, Today) : SaveReviewTest(s, false, Today);
        const std::string saved = own.read(ProgressFile);
        // The exam's second answer is given but not committed: a break would clear it, the run
        // keeps it.
        s.ExamAnswers[2] = 3;
        ASSERT_TRUE(JournalExam(s, Today));
        EXPECT_EQ(s.ExamAnswers[2], 3) << "journaling leaves the running exam alone";
        // Two more answers, then the machine stops before any save.
        std::tie(s.TestPosition, s.ExamAnswered[2], s.ExamPosition) = std::tuple(2, 1, 2);
        s.TestTally = {0, 2, 1, 4, 0};
        ASSERT_TRUE(exam ? JournalExam(s, Today) : JournalReviewTest(s, Today));
        std::string journal = own.read(JournalFile);
        if (flipByte >= 0)
            journal[static_cast<std::size_t>(flipByte)] ^= 0x20;
        own.write(JournalFile, journal);
        if (stuck) {
            FaultyFiles refusing(Fault::RemoveRefused, 0);
            DropJournal();
        }

        SessionState next = Restarted();
        const Replayed replayed = ReplayJournal(next, Today);
        EXPECT_FALSE(own.exists(JournalFile));
        const SessionState later = Restarted();
        std::ostringstream seen;
        seen << static_cast<int>(replayed) << ": " << Sketch(own.read(ProgressFile)) << ", test at "
             << later.TestPosition << " tally " << later.TestTally[3] << ", exam at "
             << later.ExamPosition << " answer " << later.ExamAnswers[2];
        EXPECT_EQ(seen.str(), restored);
        EXPECT_TRUE(replayed != Replayed::Nothing || own.read(ProgressFile) == saved);
    }
}

// Every operation that writes the progress file or the journal, stopped at each write, flush,
// rename and removal in turn, with a short write and with a full disk; then start-up's
// recovery. Every record finished before the operation stays intact, and the file is the old
// one or the new one.
TEST(CrashPoints, EveryOperationSurvivesEveryCrashPoint) {
    for (const Operation& operation : Operations) {
        const Outcome clean = RunWith(operation, Fault::None, 0);
        ASSERT_NE(clean.after, clean.before) << operation.name;
        ASSERT_GT(clean.writes, 0) << operation.name << ": the faults reach it";
        for (const auto& [fault, count] : {std::pair{Fault::Crash, clean.steps},
                                           {Fault::ShortWrite, clean.writes},
                                           {Fault::DiskFull, clean.writes}})
            for (int at = 1; at <= count; ++at) {
                const Outcome struck = RunWith(operation, fault, at);
                SCOPED_TRACE(testing::Message() << operation.name << ", fault "
                                                << static_cast<int>(fault) << " at " << at);
                EXPECT_TRUE(struck.after == clean.before || struck.after == clean.after)
                    << "neither old nor new";
                // Finished records the operation keeps survive whatever strikes.
                for (const int n : {1, 2, 3, 5})
                    EXPECT_TRUE(!Holds(clean.progress, RecordsOf(Starting)[n]) ||
                                Holds(struck.progress, RecordsOf(Starting)[n]))
                        << "a finished record lost";
            }
    }
}
