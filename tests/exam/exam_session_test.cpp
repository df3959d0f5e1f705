// The exam while it runs: lists, answering, the unsure mark, both approaches, keys, the clock.

#include "exam/exam_session.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// Time passes while a message box is up.
class SlowDialogs final : public Dialogs {
public:
    SlowDialogs(ScriptedDialogs& script, FakeClock& clock) : m_script(script), m_clock(clock) {}
    MessageAnswer showMessage(const QString& text, const QString& title, MessageIcon icon,
                              MessageButtons buttons) override {
        m_clock.advanceSeconds(30);
        return m_script.message(text, title, icon, buttons);
    }
    QString showInput(const QString& prompt, const QString& title,
                      const QString& initial) override {
        return m_script.input(prompt, title, initial);
    }

private:
    ScriptedDialogs& m_script;
    FakeClock& m_clock;
};

class ExamSessionTest : public ::testing::Test, protected StudyFixture {
protected:
    void SetUp() override {
        state.ExamKind = state.ExamType = 1;
        state.ExamScrambled = false;
        state.ExamItemCount = 5;
        state.ExamMinutes = 10;
    }
    ExamSession& open(int structured = 0) {
        state.ExamStructured = static_cast<int16_t>(structured);
        session = std::make_unique<ExamSession>(state, clock, random);
        session->open();
        return *session;
    }
    std::vector<std::string> rows(int list) const {
        std::vector<std::string> texts;
        for (int r = 0; r < session->list(list).rows(); ++r) {
            texts.push_back(session->rowText(list, r));
        }
        return texts;
    }
    std::unique_ptr<ExamSession> session;
};

TEST_F(ExamSessionTest, TraditionalReviewAndSkipMovesItemsBetweenTheLists) {
    ExamSession& s = open();
    EXPECT_EQ(s.windowCaption(), "Screening Exam I, Item 1 of 5");
    EXPECT_EQ(s.countsCaption(), " 0 Answered           5 Remaining");
    EXPECT_EQ(s.breakCaption(), "&Cancel");
    EXPECT_EQ(s.greenList(), RemainingList);
    EXPECT_FALSE(s.enabled(PreviousCommand));
    EXPECT_FALSE(s.list(AnsweredList).enabled);

    s.pressNext(); // skip item 1 unanswered
    EXPECT_EQ(state.ExamPosition, 2);
    s.pressAnswer(2);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  C");
    EXPECT_FALSE(s.enabled(2));
    EXPECT_EQ(s.progress(), 0); // the bar follows when the next item comes up
    s.pressNext();
    EXPECT_EQ(state.ExamPosition, 3); // the row that moved up into the committed place
    EXPECT_EQ(s.progress(), 20);
    EXPECT_EQ(rows(AnsweredList), (std::vector<std::string>{"   2  C"}));
    EXPECT_EQ(rows(RemainingList), (std::vector<std::string>{"   1", "   3", "   4", "   5"}));
    EXPECT_EQ(s.countsCaption(), " 1 Answered           4 Remaining");
    EXPECT_EQ(s.breakCaption(), "&Break");
    EXPECT_EQ(state.ExamAnswered[2], -1);

    // A committed answer can be changed from the answered list; its row follows.
    s.selectRow(AnsweredList, 0);
    EXPECT_EQ(s.greenList(), AnsweredList);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  C");
    s.pressAnswer(0);
    EXPECT_EQ(rows(AnsweredList), (std::vector<std::string>{"   2  A"}));
    EXPECT_EQ(s.list(AnsweredList).selected, 0);

    // Left by way of the list, an answer stays but the item stays remaining.
    s.selectRow(RemainingList, 3);
    s.pressAnswer(3);
    s.selectRow(RemainingList, 0);
    EXPECT_EQ(s.list(RemainingList).rows(), 4);
    s.selectRow(RemainingList, 3);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  D");
    EXPECT_FALSE(s.enabled(3));
}

TEST_F(ExamSessionTest, ThirdAnswerMarksUnsureAndUnsureClearsIt) {
    ExamSession& s = open();
    s.pressAnswer(0);
    s.pressAnswer(1);
    EXPECT_EQ(state.ExamUnsure[1], 0);
    s.pressAnswer(0);
    EXPECT_EQ(state.ExamUnsure[1], 63);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  A?  (Unsure of Answer)");
    s.pressUnsure();
    EXPECT_EQ(state.ExamUnsure[1], 0);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  A");
    s.pressAnswer(2); // the count stays at 3 or more
    EXPECT_EQ(state.ExamUnsure[1], 63);
    s.pressUnsure();
    s.pressUnsure();
    EXPECT_EQ(s.answerLabel(), "Your Answer:  C?   (marked unsure)");
    s.pressNext();
    EXPECT_EQ(rows(AnsweredList), (std::vector<std::string>{"   1  C?"}));

    // Unsure without an answer: the label says so, the remaining row has no mark.
    s.pressUnsure();
    EXPECT_EQ(s.answerLabel(), "Your Answer:    (Unsure of Answer)");
    EXPECT_EQ(s.rowText(RemainingList, 0), "   2");
}

TEST_F(ExamSessionTest, SingleItemExamCommitsAndTheFrameBlinks) {
    state.ExamItemCount = 1;
    ExamSession& s = open();
    EXPECT_FALSE(s.enabled(PreviousCommand));
    EXPECT_TRUE(s.enabled(NextCommand));
    s.pressAnswer(1);
    s.pressNext();
    EXPECT_EQ(s.list(RemainingList).rows(), 0);
    EXPECT_FALSE(s.list(RemainingList).enabled);
    EXPECT_TRUE(s.frameShown());
    EXPECT_TRUE(s.blinking());
    EXPECT_EQ(s.activeList(), AnsweredList);
    EXPECT_EQ(s.list(AnsweredList).selected, 0);
    EXPECT_FALSE(s.enabled(PreviousCommand));
    s.blink();
    EXPECT_EQ(s.frameBorderStyle(), 6);
}

TEST_F(ExamSessionTest, StructuredApproachAnswersNextAndConfirmsInOrder) {
    state.ExamItemCount = 2;
    ExamSession& s = open(1);
    EXPECT_EQ(s.previousCaption(), "Confirm");
    EXPECT_FALSE(s.list(RemainingList).enabled);
    EXPECT_FALSE(s.enabled(NextCommand));
    s.pressAnswer(1);
    EXPECT_TRUE(s.enabled(NextCommand));
    EXPECT_EQ(s.takeFocus(), ExamFocus::Next);
    s.pressNext();
    EXPECT_TRUE(s.enabled(PreviousCommand));
    EXPECT_FALSE(s.enabled(NextCommand));
    s.pressAnswer(2); // an answer after "&Next" takes "Confirm" away again
    EXPECT_FALSE(s.enabled(PreviousCommand));
    s.pressNext();
    s.pressPrevious();
    EXPECT_EQ(state.ExamPosition, 2);
    EXPECT_EQ(s.takeFocus(), ExamFocus::Text);
    EXPECT_EQ(rows(AnsweredList), (std::vector<std::string>{"   1  C"}));
    s.pressAnswer(0);
    s.pressNext();
    s.pressPrevious(); // the last confirmation ends the exam
    EXPECT_TRUE(s.examFinished());
    EXPECT_TRUE(s.closeRequested());
}

TEST_F(ExamSessionTest, KeysAnswerByTheirSourcesRules) {
    ExamSession& s = open();
    EXPECT_EQ(s.answerForKey('b', KeySource::Text), 1);
    EXPECT_EQ(s.answerForKey('E', KeySource::Button), -1);
    s.pressAnswer(1);
    EXPECT_EQ(s.answerForKey('B', KeySource::Button), -1); // its button is disabled
    EXPECT_EQ(s.answerForKey('B', KeySource::List), 1);    // the list looks at "A" only
    s.pressAnswer(0);
    EXPECT_EQ(s.answerForKey('b', KeySource::List), -1);
}

TEST_F(ExamSessionTest, FinishedAsksWithTheRemainingCountAndCancelStopsTheClock) {
    ExamSession& s = open();
    s.pressAnswer(0);
    s.pressNext();
    s.pressAnswer(1); // answered, not committed: still counts as unanswered
    dialogs.answer(MessageAnswer::Cancel);
    dialogs.answer(MessageAnswer::Ok);
    SlowDialogs slow(dialogs, clock);
    clock.advanceSeconds(60);
    EXPECT_FALSE(s.pressFinished(slow));
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_EQ(dialogs.messages()[0].text,
              QStringLiteral("You failed to answer 4 questions.\r\nPress "
                             "O.K. to stop and view scoring results or "
                             "Cancel to keep working."));
    EXPECT_EQ(dialogs.messages()[0].title, QStringLiteral("Caution..."));
    EXPECT_EQ(dialogs.messages()[0].buttons, MessageButtons::OkCancel);
    EXPECT_FALSE(s.examFinished());
    EXPECT_TRUE(s.pressFinished(slow));
    EXPECT_TRUE(s.examFinished());
    s.beginClosing();
    // The first question's half minute is not counted; after OK the clock ran on.
    EXPECT_NEAR(state.ExamElapsed * 86400.0, 90.0, 1e-3);
    s.selectRow(RemainingList, 0); // list clicks do nothing while closing
    EXPECT_EQ(state.ExamPosition, 2);
}

TEST_F(ExamSessionTest, ClockWarnsAtTwoMinutesAndExpiresAtTheLimit) {
    EXPECT_EQ(ReadExamClock(195, 0, 0).label, "Time Remaining: 3:15:00");
    const ExamClockReading two = ReadExamClock(10, 0, 8.0 / 1440);
    EXPECT_EQ(two.label, "Time Remaining: 0:02:00");
    EXPECT_FALSE(two.warning);
    const ExamClockReading warn = ReadExamClock(10, 3.0 / 1440, 5.5 / 1440);
    EXPECT_EQ(warn.label, "2-minute warning! 1:30");
    EXPECT_EQ(warn.minutesLeft, 1);

    ExamSession& s = open();
    s.pressAnswer(3);
    clock.advanceSeconds(9 * 60);
    s.tick();
    EXPECT_TRUE(s.timeLabelRed());
    EXPECT_EQ(s.timeLabel(), "2-minute warning! 1:00");
    clock.advanceSeconds(60.2);
    s.tick();
    EXPECT_TRUE(s.timeExpired());
    EXPECT_TRUE(s.examFinished());
    EXPECT_EQ(s.timeLabel(), "Time has expired!");
    EXPECT_FALSE(s.enabled(0));
    EXPECT_FALSE(s.enabled(BreakCommand));
    EXPECT_TRUE(s.enabled(FinishedCommand));
    EXPECT_TRUE(s.itemRtf().empty());
    EXPECT_EQ(s.takeFocus(), ExamFocus::Finished);
    EXPECT_TRUE(s.pressFinished(dialogs)); // no question once time is up
    EXPECT_TRUE(dialogs.messages().empty());
    clock.advanceSeconds(300);
    s.beginClosing();
    EXPECT_DOUBLE_EQ(state.ExamElapsed, 10 / 1440.0); // exactly the limit
}

TEST_F(ExamSessionTest, RetakeKeepsItsPositionsAndStartsWithNoAnswer) {
    state.ExamType = 5;
    state.ExamItemCount = 2;
    state.ExamItems[1] = 4;
    state.ExamItems[2] = 2;
    state.ExamAnswers[1] = 3;
    state.ExamAnswered[1] = -1;
    ExamSession& s = open();
    EXPECT_EQ(state.ExamItems[1], 4);
    EXPECT_EQ(state.ExamAnswers[1], 0);
    EXPECT_EQ(state.ExamAnswered[1], 0);
    EXPECT_EQ(s.answerLabel(), "Your Answer:  ");
    EXPECT_EQ(s.windowCaption(), "Screening Exam I, Item 1 of 2");
    EXPECT_EQ(state.ExamKey[1], 4); // item 4 of exam I, not position 1's old item
}

TEST_F(ExamSessionTest, ResumeListsCommittedAnswersAndShowsTheFirstRemaining) {
    state.ExamPosition = 4;
    state.ExamElapsed = 2.0 / 1440;
    for (int p = 1; p <= 5; ++p) {
        state.ExamItems[p] = static_cast<int16_t>(p);
    }
    state.ExamAnswers[2] = 2;
    state.ExamAnswers[4] = 3;
    state.ExamUnsure[4] = 63;
    ExamSession& s = open();
    EXPECT_EQ(rows(AnsweredList), (std::vector<std::string>{"   2  B", "   4  C?"}));
    EXPECT_TRUE(s.list(AnsweredList).enabled);
    EXPECT_EQ(state.ExamPosition, 1);
    EXPECT_EQ(state.ExamKey[4], 4); // key letters run A B C D by ordinal
    EXPECT_EQ(state.ExamAnswered[4], -1);
    s.tick();
    EXPECT_EQ(s.timeLabel(), "Time Remaining: 0:08:00");
}

} // namespace
} // namespace tessera
