// The end of an exam in the progress file: no record, break, finish, the rule of 30%, the take
// counter, a failed save, and a resumed exam finished in a later run.

#include "core/progress_file.h"
#include "exam/exam_end.h"
#include "exam/exam_session.h"
#include "exam/results_summary.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// A progress file of its own and an exam I of 80 items, keys A B C D A ...
struct Ending : StudyFixture {
    Ending() {
        ProgressHeader header;
        header.UserName = "Candidate" + std::string(21, ' ');
        WriteProgressHeader(header);
        NewState(state);
    }
    static void NewState(SessionState& s) {
        FillSmallCourse(s, SmallTopicCounts, {80, 10});
        s.PassingGrade = 70;
    }
    // A new unscrambled exam of n items, or the one broken off before when n is 0.
    ExamSession& Start(int n) {
        if (n > 0) {
            state.ExamKind = state.ExamType = 1;
            state.ExamScrambled = false;
            state.ExamItemCount = static_cast<int16_t>(n);
            state.ExamMinutes = 60;
            state.ExamPosition = 0;
        }
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
        return EndExam(state, session->examFinished(), session->list(AnsweredList).rows(),
                       clock.now(), dialogs, [this] { ++refreshed; });
    }
    // What the end said and what the progress file holds after it: the records, the exam records
    // among them, the first two log codes, exam I's take counter, the suspended records, the
    // refreshes and the boxes shown.
    std::string Filed(const ExamEndOutcome& end) const {
        const ProgressHeader h = ReadProgressHeader();
        return std::string(end.saved ? "saved" : "") + (end.removed ? " removed" : "") +
               (end.showResults ? " results" : "") +
               QStringLiteral("|%1 records, %2 exam|log %3 %4|takes %5|suspended %6 %7|%8 %9")
                   .arg(ProgressRecordCount())
                   .arg(ReadExamRecords().size())
                   .arg(h.LogCodes[1])
                   .arg(h.LogCodes[2])
                   .arg(h.TakeCounts[10])
                   .arg(h.SuspendedExamRecord)
                   .arg(h.SuspendedTestRecord)
                   .arg(refreshed)
                   .arg(dialogs.messages().size())
                   .toStdString();
    }

    std::unique_ptr<ExamSession> session;
    int refreshed = 0;
};

TEST(ExamEnd, NothingCommittedLeavesNoRecordAndNoResults) {
    Ending e;
    e.Start(5).pressAnswer(0); // answered, never committed
    EXPECT_EQ(e.Filed(e.Close(true)), "|1 records, 0 exam|log 0 0|takes 0|suspended 0 0|0 1");
    EXPECT_EQ(e.state.ExamPosition, 0);
}

// The log entry and the take go with the record: a save that fails files none of them, and the
// exam finished again files each once. An answer not committed with Next counts as unanswered
// and is gone after the save.
TEST(ExamEnd, AFailedSaveFilesNeitherLogNorTakeUntilTheExamIsFinishedAgain) {
    Ending e;
    e.Start(10);
    e.Answer(8, 0);
    e.session->pressAnswer(e.state.ExamKey[e.state.ExamPosition] - 1);
    ExamEndOutcome end;
    {
        FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
        end = e.Close(true);
    }
    EXPECT_TRUE(e.dialogs.messages()[0].text.startsWith(QStringLiteral("You failed to answer 2 ")));
    EXPECT_EQ(e.Filed(end) + std::to_string(e.state.TakeCounts[10]),
              "|1 records, 0 exam|log 0 0|takes 0|suspended 0 0|1 10");
    end = EndExam(e.state, true, 8, e.clock.now(), e.dialogs, {});
    EXPECT_EQ(e.Filed(end) + std::to_string(e.state.TakeCounts[10]),
              "saved results|2 records, 1 exam|log 10 0|takes 1|suspended 0 0|1 11");
    EXPECT_FLOAT_EQ(ReadProgressHeader().LogScores[1], 0.8f);
    EXPECT_FLOAT_EQ(e.state.ExamScore, 0.8f);
    EXPECT_EQ(e.state.ExamAnswers[9], 0);
}

TEST(ExamEnd, BelowThirtyPercentIsRemovedButLoggedAndAReviewTestSurvives) {
    Ending e;
    e.Start(67);
    e.Answer(5, 0);
    EXPECT_EQ(e.Filed(e.Close(false)), "saved|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|1 0");
    // A review test is broken off behind it, at record 3.
    e.state.CurrentTopic = 2;
    e.state.TestType = 1;
    e.state.TestItemCount = 3;
    e.state.TestPosition = 2;
    ASSERT_EQ(SaveReviewTest(e.state, false, e.clock.now()).recordNumber, 3);

    e.Start(0);
    e.Answer(15, 0); // 20 of 67 right: 29.85%
    EXPECT_EQ(e.Filed(e.Close(true)),
              "saved removed results|2 records, 0 exam|log 10 0|takes 0|suspended 0 2|2 2");
    EXPECT_EQ(e.state.SuspendedTestRecord, 2);
    const ShownMessage& sorry = e.dialogs.messages()[1];
    EXPECT_EQ(sorry.title + sorry.text,
              QStringLiteral("Sorry!You answered 29.9% (less than 30%) of the questions correctly. "
                             "Therefore, this exam has not been recorded on your Exam Report "
                             "Card."));
    EXPECT_EQ(sorry.icon, MessageIcon::Question);
}

TEST(ExamEnd, BreakingOffTwiceLeavesOneRecordAndResumesInANewRun) {
    Ending e;
    e.Start(6);
    e.Answer(2, 0);
    e.Close(false);
    e.Start(0);
    e.Answer(1, 1);
    e.clock.advanceSeconds(90);
    EXPECT_EQ(e.Filed(e.Close(false)), "saved|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|2 0");

    SessionState next; // a later run of the program
    Ending::NewState(next);
    RestoreSuspended(next);
    ExamSession resumed(next, e.clock, e.random);
    resumed.open();
    EXPECT_EQ(resumed.list(AnsweredList).rows() * 10 + next.ExamPosition, 45);
    e.dialogs.answer(MessageAnswer::Ok);
    ASSERT_TRUE(resumed.pressFinished(e.dialogs));
    resumed.beginClosing();
    const ExamEndOutcome end = EndExam(next, true, 4, e.clock.now(), e.dialogs, {});
    EXPECT_EQ(e.Filed(end), "saved results|2 records, 1 exam|log 10 0|takes 0|suspended 0 0|2 1");
    EXPECT_FLOAT_EQ(next.ExamScore, 3.0f / 6.0f); // the earlier answers graded against ExamKey
    EXPECT_EQ(CountResults(next).missed, 3);
    EXPECT_NEAR(next.ExamElapsed * 1440.0, 1.5, 1e-4);
}

TEST(EndRule, KeepsFromThirtyPercentAndCountsAtTheLowerOfSeventyAndThePassingGrade) {
    const struct {
        float score;
        int grade, type, before;
        const char* plan; // counted, removed, logged
    } cases[] = {{0.70f, 90, 1, 0, "c l"},       {0.69f, 90, 1, 0, "  l"}, {0.60f, 60, 3, 1, "c l"},
                 {0.59f, 60, 3, 1, "  l"},       {0.90f, 70, 4, 2, "c l"}, {0.90f, 70, 5, 0, "   "},
                 {0.90f, 70, 1, 3, "  l"},       {0.20f, 0, 1, 0, " rl"},  {0.3f, 70, 1, 0, "  l"},
                 {20.0f / 67.0f, 0, 2, 0, " rl"}};
    for (const auto& c : cases) {
        const ExamEndPlan plan = PlanExamEnd(c.score, c.type, c.before, c.grade);
        EXPECT_EQ(std::string(plan.countTake ? "c" : " ") + (plan.remove ? "r" : " ") +
                      (plan.log ? "l" : " "),
                  c.plan)
            << c.score << " " << c.type;
    }
}

} // namespace
} // namespace tessera
