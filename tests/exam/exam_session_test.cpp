// The exam while it runs: lists, answering, the unsure mark, both approaches, keys, the clock.

#include "exam/exam_session.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// An unscrambled exam I of ten minutes in a study folder of its own, opened when the test says.
struct Exam : StudyFixture {
    explicit Exam(int items = 5, int structured = 0) {
        state.ExamKind = state.ExamType = 1;
        state.ExamScrambled = false;
        state.ExamItemCount = static_cast<int16_t>(items);
        state.ExamMinutes = 10;
        state.ExamStructured = static_cast<int16_t>(structured);
    }
    ExamSession& open() {
        session.open();
        return session;
    }
    ExamSession session{state, clock, random};
};

// Plays the steps: "A" to "D" answer, "n" next, "p" previous or confirm, "u" unsure, "b" a blink
// of the frame, "a0" or "r3" a click on a row of the answered or the remaining list.
void Play(ExamSession& s, const std::string& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const char step = steps[i];
        if (step >= 'A' && step <= 'D')
            s.pressAnswer(step - 'A');
        else if (step == 'n')
            s.pressNext();
        else if (step == 'p')
            s.pressPrevious();
        else if (step == 'u')
            s.pressUnsure();
        else if (step == 'b')
            s.blink();
        else if (step == 'a' || step == 'r')
            s.selectRow(step == 'a' ? AnsweredList : RemainingList, steps[++i] - '0');
    }
}

// The screen as the session shows it: the item, what follows "Your Answer:" in brackets, both
// lists ('>' before the selected row, '*' behind the green list, '-' behind a disabled one), the
// commands A B C D, Next, Previous or Confirm, Cancel or Break, Finished and Unsure by their
// first letters ('.' when disabled), the bar, the focus asked for and the frame.
std::string Shown(ExamSession& s) {
    std::string text = s.windowCaption().substr(s.windowCaption().find("Item")) + " [" +
                       s.answerLabel().substr(12) + "]";
    for (int l : {AnsweredList, RemainingList}) {
        text += " ";
        for (int r = 0; r < s.list(l).rows(); ++r) {
            std::string row = s.rowText(l, r);
            std::erase(row, ' ');
            text += (r > 0 ? "," : "") + std::string(r == s.list(l).selected ? ">" : "") + row;
        }
        text += std::string(s.greenList() == l ? "*" : "") + (s.list(l).enabled ? "" : "-");
    }
    const std::string letters = std::string("ABCDN") +
                                s.previousCaption()[s.previousCaption()[0] == '&' ? 1 : 0] +
                                s.breakCaption()[1] + "FU";
    const int commands[] = {
        0, 1, 2, 3, NextCommand, PreviousCommand, BreakCommand, FinishedCommand, UnsureCommand};
    text += " ";
    for (int c = 0; c < 9; ++c)
        text += s.enabled(commands[c]) ? letters[c] : '.';
    text += " " + std::to_string(s.progress()) + "%";
    static const char* const focus[] = {"", " @Next", " @Previous", " @Finished", " @Text"};
    text += focus[static_cast<int>(s.takeFocus())];
    text += std::string(s.frameShown() ? " frame" : "") + (s.blinking() ? " blinking" : "") +
            (s.frameBorderStyle() == 6 ? " dark" : "") + (s.examFinished() ? " finished" : "") +
            (s.closeRequested() ? " close" : "");
    return text;
}

TEST(ExamSession, StepsMoveItemsBetweenTheListsMarkThemUnsureAndEndTheExam) {
    const struct {
        int items;
        int structured;
        std::string steps;
        std::string shown;
    } cases[] = {
        {5, 0, "", "Item 1 of 5 [  ] - >1,2,3,4,5* ABCDN.CFU 0%"},
        {5, 0, "n", "Item 2 of 5 [  ]  1,>2,3,4,5* ABCDNPCFU 0% @Next"},
        {5, 0, "nC", "Item 2 of 5 [  C]  1,>2,3,4,5* AB.DNPCFU 0% @Next"},
        {5, 0, "nCn", "Item 3 of 5 [  ] 2C 1,>3,4,5* ABCDNPBFU 20% @Next"},
        {5, 0, "nCna0", "Item 2 of 5 [  C] >2C* 1,>3,4,5 AB.DN.BFU 20% @Next"},
        {5, 0, "nCna0A", "Item 2 of 5 [  A] >2A* 1,>3,4,5 .BCDN.BFU 20% @Next"},
        {5, 0, "nCna0Ar3Dr0r3", "Item 5 of 5 [  D] >2A 1,3,4,>5* ABC..PBFU 20% @Previous"},
        {5, 0, "AB", "Item 1 of 5 [  B] - >1,2,3,4,5* A.CDN.CFU 0% @Next"},
        {5, 0, "ABA", "Item 1 of 5 [  A?  (Unsure of Answer)] - >1,2,3,4,5* .BCDN.CFU 0% @Next"},
        {5, 0, "ABAu", "Item 1 of 5 [  A] - >1,2,3,4,5* .BCDN.CFU 0% @Next"},
        {5, 0, "ABAuCuu", "Item 1 of 5 [  C?   (marked unsure)] - >1,2,3,4,5* AB.DN.CFU 0% @Next"},
        {5, 0, "ABAuCuun", "Item 2 of 5 [  ] 1C? >2,3,4,5* ABCDN.BFU 20% @Next"},
        {5, 0, "ABAuCuunu",
         "Item 2 of 5 [    (Unsure of Answer)] 1C? >2,3,4,5* ABCDN.BFU 20% @Next"},
        {1, 0, "", "Item 1 of 1 [  ] - >1* ABCDN.CFU 0%"},
        {1, 0, "Bn", "Item 1 of 1 [  B] >1B* - A.CDN.BFU 100% @Next frame blinking"},
        {1, 0, "Bnb", "Item 1 of 1 [  B] >1B* - A.CDN.BFU 100% @Next frame blinking dark"},
        {2, 1, "", "Item 1 of 2 [  ] - >1,2*- ABCD..CFU 0%"},
        {2, 1, "B", "Item 1 of 2 [  B] - >1,2*- A.CDN.CFU 0% @Next"},
        {2, 1, "Bn", "Item 1 of 2 [  B] - >1,2*- A.CD.CCFU 0% @Previous"},
        {2, 1, "BnC", "Item 1 of 2 [  C] - >1,2*- AB.DN.CFU 0% @Next"},
        {2, 1, "BnCnp", "Item 2 of 2 [  ] >1C- >2*- ABCD..BFU 50% @Text"},
        {2, 1, "BnCnpAnp",
         "Item 2 of 2 [  A] >1C,2A- *- .BCD..BFU 50% @Text frame blinking finished close"},
    };
    for (const auto& c : cases) {
        Exam exam(c.items, c.structured);
        Play(exam.open(), c.steps);
        EXPECT_EQ(Shown(exam.session), c.shown) << c.steps;
    }
}

TEST(ExamSession, KeysAnswerByTheirSourcesRules) {
    Exam exam;
    ExamSession& s = exam.open();
    EXPECT_EQ(s.answerForKey('b', KeySource::Text), 1);
    EXPECT_EQ(s.answerForKey('E', KeySource::Button), -1);
    s.pressAnswer(1);
    EXPECT_EQ(s.answerForKey('B', KeySource::Button), -1); // its button is disabled
    EXPECT_EQ(s.answerForKey('B', KeySource::List), 1);    // the list looks at "A" only
    s.pressAnswer(0);
    EXPECT_EQ(s.answerForKey('b', KeySource::List), -1);
}

TEST(ExamSession, FinishedAsksWithTheRemainingCountAndCancelStopsTheClock) {
    Exam exam;
    ExamSession& s = exam.open();
    Play(s, "AnB"); // the B not committed: still counted as unanswered
    exam.dialogs.answer(MessageAnswer::Cancel);
    exam.dialogs.answer(MessageAnswer::Ok);
    exam.dialogs.whileOpen([&exam] { exam.clock.advanceSeconds(30); });
    exam.clock.advanceSeconds(60);
    EXPECT_FALSE(s.pressFinished(exam.dialogs));
    ASSERT_EQ(exam.dialogs.messages().size(), 1u);
    const ShownMessage& asked = exam.dialogs.messages()[0];
    EXPECT_EQ(asked.title + asked.text,
              QStringLiteral("Caution...You failed to answer 4 questions.\r\nPress O.K. to stop "
                             "and view scoring results or Cancel to keep working."));
    EXPECT_EQ(asked.buttons, MessageButtons::OkCancel);
    EXPECT_FALSE(s.examFinished());
    EXPECT_TRUE(s.pressFinished(exam.dialogs));
    EXPECT_TRUE(s.examFinished());
    s.beginClosing();
    // The first question's half minute is not counted; after OK the clock ran on.
    EXPECT_NEAR(exam.state.ExamElapsed * 86400.0, 90.0, 1e-3);
    s.selectRow(RemainingList, 0); // list clicks do nothing while closing
    EXPECT_EQ(exam.state.ExamPosition, 2);
}

TEST(ExamSession, ClockWarnsAtTwoMinutesAndExpiresAtTheLimit) {
    EXPECT_EQ(ReadExamClock(195, 0, 0).label, "Time Remaining: 3:15:00");
    const ExamClockReading two = ReadExamClock(10, 0, 8.0 / 1440);
    EXPECT_EQ(two.label + (two.warning ? " warning" : ""), "Time Remaining: 0:02:00");
    const ExamClockReading warn = ReadExamClock(10, 3.0 / 1440, 5.5 / 1440);
    EXPECT_EQ(warn.label + std::to_string(warn.minutesLeft), "2-minute warning! 1:301");

    Exam exam;
    ExamSession& s = exam.open();
    s.pressAnswer(3);
    exam.clock.advanceSeconds(9 * 60);
    s.tick();
    EXPECT_TRUE(s.timeLabelRed());
    EXPECT_EQ(s.timeLabel(), "2-minute warning! 1:00");
    exam.clock.advanceSeconds(60.2);
    s.tick();
    EXPECT_EQ(s.timeLabel(), "Time has expired!");
    EXPECT_TRUE(s.timeExpired() && s.itemRtf().empty());
    EXPECT_EQ(Shown(s), "Item 1 of 5 [  D] - >1,2,3,4,5*- .......F. 0% @Finished frame finished");
    EXPECT_TRUE(s.pressFinished(exam.dialogs)); // no question once time is up
    EXPECT_TRUE(exam.dialogs.messages().empty());
    exam.clock.advanceSeconds(300);
    s.beginClosing();
    EXPECT_DOUBLE_EQ(exam.state.ExamElapsed, 10 / 1440.0); // exactly the limit
}

TEST(ExamSession, ResumeListsCommittedAnswersAndShowsTheFirstRemaining) {
    Exam exam;
    SessionState& state = exam.state;
    state.ExamPosition = 4;
    state.ExamElapsed = 2.0 / 1440;
    state.ExamItems = {0, 1, 2, 3, 4, 5};
    state.ExamAnswers[2] = 2;
    state.ExamAnswers[4] = 3;
    state.ExamUnsure[4] = 63;
    ExamSession& s = exam.open();
    s.tick();
    EXPECT_EQ(Shown(s), "Item 1 of 5 [  ] 2B,4C? >1,3,5* ABCDN.BFU 40%");
    EXPECT_EQ(s.countsCaption(), " 2 Answered           3 Remaining");
    EXPECT_EQ(state.ExamKey[4], 4); // key letters run A B C D by ordinal
    EXPECT_EQ(state.ExamAnswered[4], -1);
    EXPECT_EQ(s.timeLabel(), "Time Remaining: 0:08:00");
}

} // namespace
} // namespace tessera
