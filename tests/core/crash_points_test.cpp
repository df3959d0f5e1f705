// Every operation that writes the progress file or the journal, stopped at each write, flush,
// rename and removal in turn, with a short write and with a full disk; then start-up's
// recovery. Every record finished before the operation stays intact, and the file is the old
// one or the new one.

#include "core/progress_file.h"
#include "core/run_journal.h"
#include "tests/core/progress_records.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace tessera {

namespace {

using Fault = FaultyFiles::Fault;
const DateValue Today = DateFromParts(2026, 11, 19);

// A history of finished tests and exams (records 2, 3, 4 and 6), with the test of record 5 and
// the exam of record 7 suspended.
const std::string Starting = [] {
    ProgressHeader header;
    header.UserName = std::string("Pat Doe").append(23, ' ');
    header.PassingGrade = 70;
    header.SuspendedTestRecord = 5;
    header.SuspendedExamRecord = 7;
    return File({EncodeHeader(header), EncodeReviewTest(TestOfTopic(1)), EncodeExam(ExamOfKind(1)),
                 EncodeReviewTest(TestOfTopic(2)), EncodeReviewTest(TestOfTopic(3, 2)),
                 EncodeExam(ExamOfKind(2)), EncodeExam(ExamOfKind(3, 1))});
}();

struct Operation {
    const char* name;
    const char* file;
    std::function<void(SessionState&)> run;
};

const Operation Operations[] = {
    {"SaveReviewTest, broken off", ProgressFile,
     [](SessionState& s) { SaveReviewTest(s, false, Today); }},
    {"SaveReviewTest, finished and logged", ProgressFile,
     [](SessionState& s) {
         SaveReviewTest(s, true, Today, LogEntry{3, 0.75F});
     }},
    {"SaveReviewTest, a new test", ProgressFile,
     [](SessionState& s) {
         s.SuspendedTestRecord = 0;
         SaveReviewTest(s, false, Today);
     }},
    {"SaveExam, broken off", ProgressFile, [](SessionState& s) { SaveExam(s, false, Today); }},
    {"SaveExam, finished, logged and counted", ProgressFile,
     [](SessionState& s) {
         SaveExam(s, true, Today, {LogEntry{10, 0.8F}, true});
     }},
    {"AppendProgressLog", ProgressFile, [](SessionState&) { AppendProgressLog(11, 0.5F, Today); }},
    {"SavePreferences", ProgressFile,
     [](SessionState& s) {
         s.PassingGrade = 75;
         SavePreferences(s);
     }},
    {"WriteProgressHeader", ProgressFile,
     [](SessionState&) {
         ProgressHeader header = ReadProgressHeader();
         header.TakeCounts[10] = 1;
         WriteProgressHeader(header);
     }},
    {"RewriteProgressFile, review card", ProgressFile,
     [](SessionState& s) {
         RewriteProgressFile(s, std::vector<ReviewTestRecord>{TestOfTopic(2)}, Today);
     }},
    {"RewriteProgressFile, exam card", ProgressFile,
     [](SessionState& s) {
         RewriteProgressFile(s, std::vector<ExamRecord>{ExamOfKind(2), ExamOfKind(1)}, Today);
     }},
    {"RemoveProgressRecord", ProgressFile,
     [](SessionState& s) { RemoveProgressRecord(s, 6, Today); }},
    {"Journal of a running test", JournalFile,
     [](SessionState& s) { JournalReviewTest(s, Today); }},
    {"Journal replayed at the next start", ProgressFile,
     [](SessionState& s) {
         JournalReviewTest(s, Today);
         ReplayJournal(s, Today);
     }},
};

struct Outcome {
    std::string before;   // the operation's own file before it ran
    std::string progress; // after start-up recovered the progress file
    std::string after;    // the operation's own file then
    int steps = 0;
    int writes = 0;
};

// The operation run with the fault, the machine started again and start-up's recovery done.
Outcome RunWith(const Operation& operation, Fault fault, int at) {
    StudyFolder folder;
    folder.write(ProgressFile, Starting);
    SessionState state;
    FillCatalogue(state);
    ApplyHeader(ReadProgressHeader(), state);
    RestoreSuspended(state);
    state.TestPosition = 3;
    state.ExamPosition = 2;
    Outcome outcome;
    outcome.before = folder.read(operation.file);
    {
        FaultyFiles files(fault, at);
        operation.run(state);
        outcome.steps = files.steps();
        outcome.writes = files.writes();
    }
    RecoverProgressFile();
    outcome.progress = folder.read(ProgressFile);
    outcome.after = folder.read(operation.file);
    return outcome;
}

bool Holds(const std::string& file, const std::string& record) {
    const std::vector<std::string> records = RecordsOf(file);
    return std::find(records.begin(), records.end(), record) != records.end();
}

TEST(CrashPoints, EveryOperationSurvivesEveryCrashPoint) {
    int tried = 0;
    for (const Operation& operation : Operations) {
        const Outcome clean = RunWith(operation, Fault::None, 0);
        ASSERT_NE(clean.after, clean.before) << operation.name;
        ASSERT_GT(clean.writes, 0) << operation.name << ": the faults reach it";
        std::vector<std::pair<Fault, int>> faults;
        for (int at = 1; at <= clean.steps; ++at)
            faults.emplace_back(Fault::Crash, at);
        for (int at = 1; at <= clean.writes; ++at) {
            faults.emplace_back(Fault::ShortWrite, at);
            faults.emplace_back(Fault::DiskFull, at);
        }
        for (const auto& [fault, at] : faults) {
            ++tried;
            const Outcome struck = RunWith(operation, fault, at);
            const std::string where = std::string(operation.name) + ", fault " +
                                      std::to_string(static_cast<int>(fault)) + " at " +
                                      std::to_string(at);
            EXPECT_TRUE(struck.after == clean.before || struck.after == clean.after)
                << where << ": neither old nor new";
            // Finished records the operation keeps survive whatever strikes.
            for (const int n : {1, 2, 3, 5})
                EXPECT_TRUE(!Holds(clean.progress, RecordsOf(Starting)[n]) ||
                            Holds(struck.progress, RecordsOf(Starting)[n]))
                    << where << ": a finished record lost";
        }
    }
    std::printf("%zu operations, %d faults tried\n", std::size(Operations), tried);
}

} // namespace
} // namespace tessera
