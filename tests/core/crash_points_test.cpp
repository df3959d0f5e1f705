// Every operation that writes the progress file, the journal or the notebook, stopped at
// each write, flush, rename and removal in turn, with a short write and with a full disk; then
// start-up's recovery. Every record finished before the operation stays intact, and the file
// is the old one or the new one.

#include "core/progress_file.h"
#include "core/run_journal.h"
#include "platform/rich_text_view.h"
#include "tests/core/progress_records.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_folder.h"

#include <QtTest>

#include <algorithm>
#include <functional>

namespace tessera {

namespace {

constexpr const char* NoteBookFile = "TesseraNoteBook.RTF";
const DateValue Today = DateFromParts(2026, 11, 19);

// A history of finished tests and exams, with the test of record 5 and the exam of record 7
// suspended.
std::vector<std::string> StartingRecords() {
    ProgressHeader header;
    header.UserName = std::string("Pat Doe").append(23, ' ');
    header.PassingGrade = 70;
    header.SuspendedTestRecord = 5;
    header.SuspendedExamRecord = 7;
    return RecordsOf(
        File({EncodeHeader(header), EncodeReviewTest(TestOfTopic(1)), EncodeExam(ExamOfKind(1)),
              EncodeReviewTest(TestOfTopic(2)), EncodeReviewTest(TestOfTopic(3, 2)),
              EncodeExam(ExamOfKind(2)), EncodeExam(ExamOfKind(3, 1))}));
}

// The finished records: all but the header and the two suspended ones.
std::vector<std::string> FinishedRecords() {
    const std::vector<std::string> records = StartingRecords();
    return {records[1], records[2], records[3], records[5]};
}

struct Operation {
    const char* name;
    const char* file;
    std::function<void(SessionState&)> run;
};

std::vector<Operation> Operations() {
    const auto erasedOnCard = [](SessionState& state) {
        RewriteProgressFile(state, std::vector<ReviewTestRecord>{TestOfTopic(2)}, Today);
    };
    const auto examsErased = [](SessionState& state) {
        RewriteProgressFile(state, std::vector<ExamRecord>{ExamOfKind(2), ExamOfKind(1)}, Today);
    };
    return {
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
        {"AppendProgressLog", ProgressFile,
         [](SessionState&) { AppendProgressLog(11, 0.5F, Today); }},
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
        {"RewriteProgressFile, review card", ProgressFile, erasedOnCard},
        {"RewriteProgressFile, exam card", ProgressFile, examsErased},
        {"RemoveProgressRecord", ProgressFile,
         [](SessionState& s) { RemoveProgressRecord(s, 6, Today); }},
        {"Journal of a running test", JournalFile,
         [](SessionState& s) { JournalReviewTest(s, Today); }},
        {"Journal replayed at the next start", ProgressFile,
         [](SessionState& s) {
             JournalReviewTest(s, Today);
             ReplayJournal(s, Today);
         }},
        {"NoteBook save", NoteBookFile,
         [](SessionState&) {
             RichTextView view;
             view.setTextRtf("{\\rtf1\\ansi Offer, acceptance and consideration.\\par }");
             view.saveFile(QString::fromLatin1(NoteBookFile));
         }},
    };
}

} // namespace

class CrashPointsTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<StudyFolder> m_folder;

    void prepare(SessionState& state) {
        m_folder.reset(); // back in the first folder before the next one is made
        m_folder = std::make_unique<StudyFolder>();
        std::string file;
        for (const std::string& record : StartingRecords())
            file += record;
        m_folder->write(ProgressFile, file);
        m_folder->write(NoteBookFile, "{\\rtf1\\ansi Notes.\\par }");
        state = SessionState{};
        FillCatalogue(state);
        ApplyHeader(ReadProgressHeader(), state);
        RestoreSuspended(state);
        state.TestPosition = 3;
        state.ExamPosition = 2;
    }

    // The progress file and the operation's own file after the operation ran with the fault,
    // the machine started again and start-up recovered the progress file.
    std::pair<std::string, std::string>
    runWith(const Operation& operation, FaultyFiles::Fault fault, int at, int* steps, int* writes) {
        SessionState state;
        prepare(state);
        {
            FaultyFiles files(fault, at);
            operation.run(state);
            if (steps != nullptr)
                *steps = files.steps();
            if (writes != nullptr)
                *writes = files.writes();
        }
        RecoverProgressFile();
        return {m_folder->read(ProgressFile), m_folder->read(operation.file)};
    }

private Q_SLOTS:
    void everyOperationSurvivesEveryCrashPoint() {
        int tried = 0;
        for (const Operation& operation : Operations()) {
            SessionState state;
            prepare(state);
            const std::string oldFile = m_folder->read(operation.file);
            int steps = 0;
            int writes = 0;
            const auto [cleanProgress, newFile] =
                runWith(operation, FaultyFiles::Fault::None, 0, &steps, &writes);
            QVERIFY2(newFile != oldFile, operation.name);
            QVERIFY2(writes > 0, operation.name); // the faults reach it

            // Finished records the operation keeps must survive whatever strikes.
            std::vector<std::string> kept;
            const std::vector<std::string> after = RecordsOf(cleanProgress);
            for (const std::string& record : FinishedRecords())
                if (std::find(after.begin(), after.end(), record) != after.end())
                    kept.push_back(record);

            std::vector<std::pair<FaultyFiles::Fault, int>> faults;
            for (int at = 1; at <= steps; ++at)
                faults.emplace_back(FaultyFiles::Fault::Crash, at);
            for (int at = 1; at <= writes; ++at) {
                faults.emplace_back(FaultyFiles::Fault::ShortWrite, at);
                faults.emplace_back(FaultyFiles::Fault::DiskFull, at);
            }
            for (const auto& [fault, at] : faults) {
                ++tried;
                const auto [progress, file] = runWith(operation, fault, at, nullptr, nullptr);
                const QByteArray where = QByteArray(operation.name) + ", fault " +
                                         QByteArray::number(static_cast<int>(fault)) + " at " +
                                         QByteArray::number(at);
                QVERIFY2(file == oldFile || file == newFile, where + ": neither old nor new");
                const std::vector<std::string> records = RecordsOf(progress);
                for (const std::string& record : kept)
                    QVERIFY2(std::find(records.begin(), records.end(), record) != records.end(),
                             where + ": a finished record lost");
            }
        }
        qInfo("%zu operations, %d faults tried, no finished record lost", Operations().size(),
              tried);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::CrashPointsTest)
#include "crash_points_test.moc"
