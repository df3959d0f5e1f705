// The end of an exam in the progress file: no record, break, finish, the rule of 30%, the take
// counter, and a resumed exam finished in a later run.

#include "core/progress_file.h"
#include "exam/exam_end.h"
#include "exam/exam_session.h"
#include "exam/results_summary.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class ExamEndTest : public ::testing::Test, protected StudyFixture {
protected:
    void SetUp() override {
        ProgressHeader header;
        header.UserName = "Candidate" + std::string(21, ' ');
        WriteProgressHeader(header);
        NewState(state);
    }

    void NewState(SessionState& s) {
        FillSmallCourse(s, SmallTopicCounts, {80, 10});
        s.PassingGrade = 70;
    }
    // A new unscrambled exam I of n items, keys A B C D A ...
    ExamSession& Start(int n) {
        state.ExamKind = state.ExamType = 1;
        state.ExamScrambled = false;
        state.ExamItemCount = static_cast<int16_t>(n);
        state.ExamMinutes = 60;
        state.ExamPosition = 0;
        session = std::make_unique<ExamSession>(state, clock, random);
        session->open();
        return *session;
    }
    // Commits `right` right answers and `wrong` wrong ones on the first remaining items.
    void Answer(int right, int wrong) {
        for (int k = 0; k < right + wrong; ++k) {
            const int key = state.ExamKey[state.ExamPosition];
            session->pressAnswer(k < right ? key - 1 : key % 4);
            session->pressNext();
        }
    }
    ExamEndOutcome Close(bool finishPressed) {
        if (finishPressed) {
            dialogs.answer(MessageAnswer::Ok);
            session->pressFinished(dialogs);
        }
        session->beginClosing();
        const int rows = session->list(AnsweredList).rows();
        return EndExam(state, session->examFinished(), rows, clock.now(), dialogs,
                       [this] { ++refreshed; });
    }

    // What the end said and what the progress file holds after it: the records, the exam records
    // among them, the first two log codes, exam I's take counter, the suspended records.
    std::string Filed(const ExamEndOutcome& end) const {
        const ProgressHeader h = ReadProgressHeader();
        return std::string(end.saved ? "saved" : "") + (end.removed ? " removed" : "") +
               (end.showResults ? " results" : "") +
               QStringLiteral("|%1 records, %2 exam|log %3 %4|takes %5|suspended %6 %7|%8")
                   .arg(ProgressRecordCount())
                   .arg(ReadExamRecords().size())
                   .arg(h.LogCodes[1])
                   .arg(h.LogCodes[2])
                   .arg(h.TakeCounts[10])
                   .arg(h.SuspendedExamRecord)
                   .arg(h.SuspendedTestRecord)
                   .arg(refreshed)
                   .toStdString();
    }

    std::unique_ptr<ExamSession> session;
    int refreshed = 0;
};

TEST_F(ExamEndTest, NothingCommittedLeavesNoRecordAndNoResults) {
    Start(5);
    session->pressAnswer(0); // answered, never committed
    const ExamEndOutcome end = Close(true);
    EXPECT_EQ(dialogs.messages().size(), 1u); // "You failed to answer 5 questions."
    EXPECT_EQ(Filed(end), "|1 records, 0 exam|log 0 0|takes 0|suspended 0 0|0");
    EXPECT_EQ(state.ExamPosition, 0);
}

TEST_F(ExamEndTest, UncommittedAnswerCountsAsUnansweredAndTheTakeCounterRises) {
    Start(10);
    Answer(8, 0);
    session->pressAnswer(state.ExamKey[state.ExamPosition] - 1); // right, but not committed
    const ExamEndOutcome end = Close(true);
    EXPECT_TRUE(dialogs.messages()[0].text.startsWith(QStringLiteral("You failed to answer 2 ")));
    EXPECT_EQ(Filed(end), "saved results|2 records, 1 exam|log 10 0|takes 1|suspended 0 0|1");
    EXPECT_FLOAT_EQ(ReadProgressHeader().LogScores[1], 0.8f);
    EXPECT_FLOAT_EQ(state.ExamScore, 0.8f);
    EXPECT_EQ(state.ExamAnswers[9] * 10 + state.TakeCounts[10], 1);
}

// The log entry and the take go with the record: a save that fails files none of them, and the
// exam finished again files each once.
TEST_F(ExamEndTest, AFailedSaveFilesNeitherLogNorTakeUntilTheExamIsFinishedAgain) {
    Start(10);
    Answer(9, 1);
    ExamEndOutcome end;
    {
        FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
        end = Close(true);
    }
    EXPECT_EQ(Filed(end), "|1 records, 0 exam|log 0 0|takes 0|suspended 0 0|1");
    EXPECT_EQ(state.TakeCounts[10], 0);
    end = EndExam(state, true, 10, clock.now(), dialogs, {});
    EXPECT_EQ(Filed(end), "saved results|2 records, 1 exam|log 10 0|takes 1|suspended 0 0|1");
    EXPECT_EQ(state.TakeCounts[10], 1);
}

TEST_F(ExamEndTest, BelowThirtyPercentIsRemovedButLoggedAndAReviewTestSurvives) {
    Start(67);
    Answer(5, 0);
    EXPECT_EQ(Filed(Close(false)), "saved|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|1");
    // A review test is broken off behind it, at record 3.
    state.CurrentTopic = 2;
    state.TestType = 1;
    state.TestItemCount = 3;
    state.TestPosition = 2;
    ASSERT_EQ(SaveReviewTest(state, false, clock.now()).recordNumber, 3);

    session = std::make_unique<ExamSession>(state, clock, random);
    session->open();
    Answer(15, 0);
    const ExamEndOutcome end = Close(true); // 20 of 67 right: 29.85%
    EXPECT_EQ(Filed(end),
              "saved removed results|2 records, 0 exam|log 10 0|takes 0|suspended 0 2|2");
    EXPECT_EQ(state.SuspendedTestRecord, 2);
    ASSERT_EQ(dialogs.messages().size(), 2u);
    const ShownMessage& sorry = dialogs.messages()[1];
    EXPECT_EQ(sorry.title + sorry.text,
              QStringLiteral("Sorry!You answered 29.9% (less than 30%) of the questions correctly. "
                             "Therefore, this exam has not been recorded on your Exam Report "
                             "Card."));
    EXPECT_EQ(sorry.icon, MessageIcon::Question);
}

TEST_F(ExamEndTest, BreakingOffTwiceLeavesOneRecordAndResumesInANewRun) {
    Start(6);
    Answer(2, 0);
    Close(false);
    session = std::make_unique<ExamSession>(state, clock, random);
    session->open();
    Answer(1, 1);
    clock.advanceSeconds(90);
    EXPECT_EQ(Filed(Close(false)), "saved|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|2");

    SessionState next; // a later run of the program
    NewState(next);
    RestoreSuspended(next);
    ExamSession resumed(next, clock, random);
    resumed.open();
    EXPECT_EQ(resumed.list(AnsweredList).rows(), 4);
    EXPECT_EQ(next.ExamPosition, 5);
    dialogs.answer(MessageAnswer::Ok);
    ASSERT_TRUE(resumed.pressFinished(dialogs));
    resumed.beginClosing();
    const ExamEndOutcome end = EndExam(next, true, 4, clock.now(), dialogs, {});
    EXPECT_EQ(Filed(end), "saved results|2 records, 1 exam|log 10 0|takes 0|suspended 0 0|2");
    EXPECT_FLOAT_EQ(next.ExamScore, 3.0f / 6.0f); // the earlier answers graded against ExamKey
    EXPECT_EQ(CountResults(next).missed, 3);
    EXPECT_NEAR(next.ExamElapsed * 1440.0, 1.5, 1e-4);
}

TEST(EndRule, KeepsFromThirtyPercentAndCountsAtTheLowerOfSeventyAndThePassingGrade) {
    const struct {
        float score;
        int grade, type, before;
        bool counts, removed;
    } cases[] = {{0.70f, 90, 1, 0, true, false},         {0.69f, 90, 1, 0, false, false},
                 {0.60f, 60, 3, 1, true, false},         {0.59f, 60, 3, 1, false, false},
                 {0.90f, 70, 4, 2, true, false},         {0.90f, 70, 5, 0, false, false},
                 {0.90f, 70, 1, 3, false, false},        {0.20f, 0, 1, 0, false, true},
                 {3.0f / 10.0f, 70, 1, 0, false, false}, {20.0f / 67.0f, 0, 2, 0, false, true}};
    for (const auto& c : cases) {
        const ExamEndPlan plan = PlanExamEnd(c.score, c.type, c.before, c.grade);
        EXPECT_EQ(std::tuple(plan.countTake, plan.remove, plan.log),
                  std::tuple(c.counts, c.removed, c.type <= 4))
            << c.score << " " << c.type;
    }
}

} // namespace
} // namespace tessera
