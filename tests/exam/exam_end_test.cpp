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

    std::unique_ptr<ExamSession> session;
    int refreshed = 0;
};

TEST_F(ExamEndTest, NothingCommittedLeavesNoRecordAndNoResults) {
    Start(5);
    session->pressAnswer(0); // answered, never committed
    const ExamEndOutcome end = Close(true);
    EXPECT_EQ(dialogs.messages().size(), 1u); // "You failed to answer 5 questions."
    EXPECT_FALSE(end.saved);
    EXPECT_FALSE(end.showResults);
    EXPECT_EQ(state.ExamPosition, 0);
    EXPECT_EQ(ProgressRecordCount(), 1);
    EXPECT_EQ(refreshed, 0);
}

TEST_F(ExamEndTest, UncommittedAnswerCountsAsUnansweredAndTheTakeCounterRises) {
    Start(10);
    Answer(8, 0);
    session->pressAnswer(state.ExamKey[state.ExamPosition] - 1); // right, but not committed
    const ExamEndOutcome end = Close(true);
    EXPECT_TRUE(dialogs.messages()[0].text.startsWith(QStringLiteral("You failed to answer 2 ")));
    EXPECT_TRUE(end.showResults);
    EXPECT_FLOAT_EQ(state.ExamScore, 0.8f);
    EXPECT_EQ(state.ExamAnswers[9], 0);
    EXPECT_EQ(state.TakeCounts[10], 1);
    const ProgressHeader header = ReadProgressHeader();
    EXPECT_EQ(header.TakeCounts[10], 1);
    EXPECT_EQ(header.LogCodes[1], 10);
    EXPECT_FLOAT_EQ(header.LogScores[1], 0.8f);
    EXPECT_EQ(header.SuspendedExamRecord, 0);
    EXPECT_EQ(ReadExamRecords().size(), 1u);
    EXPECT_EQ(refreshed, 1);
}

// The log entry and the take go with the record: a save that fails files none of them, and the
// exam finished again files each once.
TEST_F(ExamEndTest, AFailedSaveFilesNeitherLogNorTakeUntilTheExamIsFinishedAgain) {
    Start(10);
    Answer(9, 1);
    {
        FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
        EXPECT_FALSE(Close(true).saved);
    }
    ProgressHeader header = ReadProgressHeader();
    EXPECT_EQ(header.LogCodes[1], 0);
    EXPECT_EQ(header.TakeCounts[10], 0);
    EXPECT_EQ(state.TakeCounts[10], 0);
    EXPECT_EQ(ProgressRecordCount(), 1);

    EXPECT_TRUE(EndExam(state, true, 10, clock.now(), dialogs, {}).showResults);
    header = ReadProgressHeader();
    EXPECT_EQ(header.LogCodes[1], 10);
    EXPECT_EQ(header.LogCodes[2], 0);
    EXPECT_EQ(header.TakeCounts[10], 1);
    EXPECT_EQ(state.TakeCounts[10], 1);
    EXPECT_EQ(ReadExamRecords().size(), 1u);
}

TEST_F(ExamEndTest, BelowThirtyPercentIsRemovedButLoggedAndAReviewTestSurvives) {
    Start(67);
    Answer(5, 0);
    EXPECT_FALSE(Close(false).showResults); // broken off: record 2
    EXPECT_EQ(state.SuspendedExamRecord, 2);
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
    EXPECT_TRUE(end.removed);
    EXPECT_TRUE(end.showResults);
    ASSERT_EQ(dialogs.messages().size(), 2u);
    EXPECT_EQ(dialogs.messages()[1].text,
              QStringLiteral("You answered 29.9% (less than 30%) of the questions correctly. "
                             "Therefore, this exam has not been recorded on your Exam Report "
                             "Card."));
    EXPECT_EQ(dialogs.messages()[1].title, QStringLiteral("Sorry!"));
    EXPECT_EQ(dialogs.messages()[1].icon, MessageIcon::Question);
    EXPECT_TRUE(ReadExamRecords().empty());
    ASSERT_EQ(ReadReviewTestRecords().size(), 1u);
    EXPECT_EQ(state.SuspendedTestRecord, 2);
    EXPECT_EQ(ReadProgressHeader().SuspendedTestRecord, 2);
    EXPECT_EQ(ReadProgressHeader().LogCodes[1], 10);
}

TEST_F(ExamEndTest, BreakingOffTwiceLeavesOneRecordAndResumesInANewRun) {
    Start(6);
    Answer(2, 0);
    Close(false);
    session = std::make_unique<ExamSession>(state, clock, random);
    session->open();
    Answer(1, 1);
    clock.advanceSeconds(90);
    Close(false);
    EXPECT_EQ(ProgressRecordCount(), 2);
    EXPECT_EQ(state.SuspendedExamRecord, 2);

    SessionState next; // a later run of the program
    NewState(next);
    RestoreSuspended(next);
    ASSERT_EQ(next.ExamPosition, 5);
    ExamSession resumed(next, clock, random);
    resumed.open();
    EXPECT_EQ(resumed.list(AnsweredList).rows(), 4);
    EXPECT_EQ(next.ExamPosition, 5);
    dialogs.answer(MessageAnswer::Ok);
    ASSERT_TRUE(resumed.pressFinished(dialogs));
    resumed.beginClosing();
    const ExamEndOutcome end = EndExam(next, true, 4, clock.now(), dialogs, {});
    EXPECT_TRUE(end.showResults);
    EXPECT_FLOAT_EQ(next.ExamScore, 3.0f / 6.0f); // the earlier answers graded against ExamKey
    EXPECT_EQ(CountResults(next).missed, 3);
    EXPECT_EQ(ProgressRecordCount(), 2);
    EXPECT_NEAR(next.ExamElapsed * 1440.0, 1.5, 1e-4);
}

TEST_F(ExamEndTest, ExpiryWithAnUncommittedAnswerSavesTheLimitAndNoAnswer) {
    Start(4);
    Answer(2, 0);
    session->pressAnswer(0);
    clock.advanceSeconds(61 * 60);
    session->tick();
    clock.advanceSeconds(600);
    Close(false);
    const std::vector<ExamRecord> records = ReadExamRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_FLOAT_EQ(records[0].MinutesUsed, 60.0f);
    EXPECT_EQ(records[0].AnsweredCount, 2);
    EXPECT_EQ(records[0].AnswerCodes[3], 0);
    EXPECT_EQ(state.ExamPosition, 0);
}

struct EndCase {
    float score;
    int grade;
    int type;
    int before;
    bool counts;
    bool removed;
};

class EndRule : public ::testing::TestWithParam<EndCase> {};

TEST_P(EndRule, KeepsFromThirtyPercentAndCountsAtTheLowerOfSeventyAndThePassingGrade) {
    const EndCase c = GetParam();
    const ExamEndPlan plan = PlanExamEnd(c.score, c.type, c.before, c.grade);
    EXPECT_EQ(plan.countTake, c.counts);
    EXPECT_EQ(plan.remove, c.removed);
    EXPECT_EQ(plan.log, c.type <= 4);
}

INSTANTIATE_TEST_SUITE_P(
    Table, EndRule,
    ::testing::Values(EndCase{0.70f, 90, 1, 0, true, false}, EndCase{0.69f, 90, 1, 0, false, false},
                      EndCase{0.60f, 60, 3, 1, true, false}, EndCase{0.59f, 60, 3, 1, false, false},
                      EndCase{0.90f, 70, 4, 2, true, false}, EndCase{0.90f, 70, 5, 0, false, false},
                      EndCase{0.90f, 70, 1, 3, false, false}, EndCase{0.20f, 0, 1, 0, false, true},
                      EndCase{3.0f / 10.0f, 70, 1, 0, false, false},
                      EndCase{20.0f / 67.0f, 0, 2, 0, false, true}));

} // namespace
} // namespace tessera
