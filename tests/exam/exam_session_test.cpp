// The exam while it runs and when it ends: lists, answering, the unsure mark, both approaches,
// keys, the clock; then the progress file: no record, break, finish, the rule of 30%, the take
// counter, a failed save, and a resumed exam finished in a later run.

#include "core/progress_file.h"
#include "exam/exam_end.h"
#include "exam/exam_session.h"
#include "exam/results_summary.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace tessera {
namespace {

// An unscrambled exam I of ten minutes in a study folder and a progress file of its own; the
// course's 80 items of exam I are keyed A B C D A ...
struct Exam : StudyFixture {
    explicit Exam(int items = 5, int structured = 0) {
        WriteProgressHeader(ProgressHeader{});
        NewState(state);
        std::tie(state.ExamKind, state.ExamType, state.ExamScrambled, state.ExamItemCount,
                 state.ExamMinutes, state.ExamStructured) =
            std::tuple(1, 1, false, items, 10, structured);
    }
    static void NewState(SessionState& s) {
        FillSmallCourse(s, SmallTopicCounts, {80, 10});
        s.PassingGrade = 70;
    }
    // Opens a new exam, or the one broken off before.
    ExamSession& open() {
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
        std::ostringstream out;
        out << (end.saved ? "saved" : "") << (end.removed ? " removed" : "")
            << (end.showResults ? " results" : "") << '|' << ProgressRecordCount() << " records, "
            << ReadExamRecords().size() << " exam|log " << +h.LogCodes[1] << ' ' << +h.LogCodes[2]
            << "|takes " << +h.TakeCounts[10] << "|suspended " << +h.SuspendedExamRecord << ' '
            << +h.SuspendedTestRecord << '|' << refreshed << ' ' << dialogs.messages().size();
        return out.str();
    }

    std::unique_ptr<ExamSession> session;
    int refreshed = 0;
};

// Plays the steps: "A" to "D" answer, "n" next, "p" previous or confirm, "u" unsure, "b" a blink
// of the frame, "a0" or "r3" a click on a row of the answered or the remaining list.
void Play(ExamSession& s, const std::string& steps) {
    const std::map<char, void (ExamSession::*)()> presses{{'n', &ExamSession::pressNext},
                                                          {'p', &ExamSession::pressPrevious},
                                                          {'u', &ExamSession::pressUnsure},
                                                          {'b', &ExamSession::blink}};
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const char step = steps[i];
        if (step >= 'A' && step <= 'D')
            s.pressAnswer(step - 'A');
        else if (step == 'a' || step == 'r')
            s.selectRow(step == 'a' ? AnsweredList : RemainingList, steps[++i] - '0');
        else
            (s.*presses.at(step))();
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
    // Items, structured, the steps played and the screen after them.
    const std::tuple<int, int, std::string, std::string> cases[] = {
        {5, 0, "nCn", "Item 3 of 5 [  ] 2C 1,>3,4,5* ABCDNPBFU 20% @Next"},
        {5, 0, "nCna0A", "Item 2 of 5 [  A] >2A* 1,>3,4,5 .BCDN.BFU 20% @Next"},
        {5, 0, "nCnp", "Item 1 of 5 [  ] 2C >1,3,4,5* ABCDN.BFU 20% @Next"},
        {5, 0, "nCna0Ar3Dr0r3", "Item 5 of 5 [  D] >2A 1,3,4,>5* ABC..PBFU 20% @Previous"},
        {5, 0, "ABA", "Item 1 of 5 [  A?  (Unsure of Answer)] - >1,2,3,4,5* .BCDN.CFU 0% @Next"},
        {5, 0, "ABAu", "Item 1 of 5 [  A] - >1,2,3,4,5* .BCDN.CFU 0% @Next"},
        {5, 0, "ABAuCuu", "Item 1 of 5 [  C?   (marked unsure)] - >1,2,3,4,5* AB.DN.CFU 0% @Next"},
        {5, 0, "ABAuCuunu",
         "Item 2 of 5 [    (Unsure of Answer)] 1C? >2,3,4,5* ABCDN.BFU 20% @Next"},
        {1, 0, "Bnb", "Item 1 of 1 [  B] >1B* - A.CDN.BFU 100% @Next frame blinking dark"},
        {2, 1, "", "Item 1 of 2 [  ] - >1,2*- ABCD..CFU 0%"},
        {2, 1, "Bn", "Item 1 of 2 [  B] - >1,2*- A.CD.CCFU 0% @Previous"},
        {2, 1, "BnC", "Item 1 of 2 [  C] - >1,2*- AB.DN.CFU 0% @Next"},
        {2, 1, "BnCnp", "Item 2 of 2 [  ] >1C- >2*- ABCD..BFU 50% @Text"},
        {2, 1, "BnCnpAnp",
         "Item 2 of 2 [  A] >1C,2A- *- .BCD..BFU 50% @Text frame blinking finished close"},
    };
    for (const auto& [items, structured, steps, shown] : cases) {
        Exam exam(items, structured);
        Play(exam.open(), steps);
        EXPECT_EQ(Shown(*exam.session), shown) << steps;
    }
}

// A retake keeps the items the report card chose; the answers of the last sitting go. Closed with
// nothing committed, it leaves no record and no results.
TEST(ExamSession, RetakeKeepsItsItemsClearsTheAnswersAndWithNothingCommittedLeavesNoRecord) {
    Exam exam(3);
    SessionState& s = exam.state;
    s.ExamType = 4;
    s.ExamItems = {0, 11, 12, 13};
    s.ExamAnswers = s.ExamUnsure = s.ExamAnswered = s.ExamAnswerCounts = {0, 1, 1, 1};
    exam.open();
    EXPECT_EQ(std::tuple(s.ExamItems[1], s.ExamItems[3], s.ExamAnswers[1], s.ExamUnsure[2],
                         s.ExamAnswered[3], s.ExamAnswerCounts[3]),
              std::tuple(11, 13, 0, 0, 0, 0));
    exam.session->pressAnswer(0); // answered, never committed
    EXPECT_EQ(exam.Filed(exam.Close(true)), "|1 records, 0 exam|log 0 0|takes 0|suspended 0 0|0 1");
    EXPECT_EQ(s.ExamPosition, 0);
}

TEST(ExamSession, FinishedAsksWithTheRemainingCountAndCancelStopsTheClock) {
    Exam exam;
    ExamSession& s = exam.open();
    Play(s, "AnB"); // the B not committed: still counted as unanswered
    // A key answers when its button is enabled; on a list, when A's is.
    EXPECT_EQ(
        std::tuple(s.answerForKey('b', KeySource::Text), s.answerForKey('E', KeySource::Button),
                   s.answerForKey('c', KeySource::Button), s.answerForKey('B', KeySource::List)),
        std::tuple(-1, -1, 2, 1));
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
    // The half minute under the box answered Cancel is not counted; under OK's the clock ran on.
    EXPECT_NEAR(exam.state.ExamElapsed * 86400.0, 90.0, 1e-3);
    s.selectRow(RemainingList, 0); // list clicks do nothing while closing
    EXPECT_EQ(exam.state.ExamPosition, 2);
}

TEST(ExamEnd, BelowThirtyPercentIsRemovedButLogged) {
    Exam e(67);
    e.open();
    e.Answer(20, 0); // 20 of 67 right: 29.85%
    EXPECT_EQ(e.Filed(e.Close(true)),
              "saved removed results|1 records, 0 exam|log 10 0|takes 0|suspended 0 0|1 2");
    const ShownMessage& sorry = e.dialogs.messages()[1];
    EXPECT_EQ(sorry.title + sorry.text,
              QStringLiteral("Sorry!You answered 29.9% (less than 30%) of the questions correctly. "
                             "Therefore, this exam has not been recorded on your Exam Report "
                             "Card."));
    EXPECT_EQ(sorry.icon, MessageIcon::Question);
}

// Broken off, the exam is resumed in a later run: the earlier answers graded against ExamKey,
// the time of both runs added up. The log entry and the take go with the record: a save that
// fails files none of them, and the exam finished again files each once.
TEST(ExamEnd, BrokenOffResumesInANewRunAndAFailedSaveFilesNothingUntilFinishedAgain) {
    Exam e(6);
    e.open();
    e.Answer(3, 0);
    e.clock.advanceSeconds(90);
    EXPECT_EQ(e.Filed(e.Close(false)), "saved|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|1 0");
    e.state = SessionState{};
    Exam::NewState(e.state);
    RestoreSuspended(e.state);
    EXPECT_EQ(e.open().list(AnsweredList).rows() * 10 + e.state.ExamPosition, 34);
    e.Answer(2, 0);
    e.clock.advanceSeconds(30);
    ExamEndOutcome end;
    {
        FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
        end = e.Close(true);
    }
    EXPECT_EQ(e.Filed(end) + std::to_string(e.state.TakeCounts[10]),
              "|2 records, 1 exam|log 0 0|takes 0|suspended 2 0|2 10");
    end = EndExam(e.state, true, 5, e.clock.now(), e.dialogs, {});
    EXPECT_EQ(e.Filed(end) + std::to_string(e.state.TakeCounts[10]),
              "saved results|2 records, 1 exam|log 10 0|takes 1|suspended 0 0|2 11");
    EXPECT_FLOAT_EQ(ReadProgressHeader().LogScores[1], 5.0f / 6.0f);
    EXPECT_NEAR(e.state.ExamElapsed * 86400.0, 120, 1e-2);
}

TEST(EndRule, KeepsFromThirtyPercentAndCountsAtTheLowerOfSeventyAndThePassingGrade) {
    // Score, passing grade, exam type, takes before: counted, removed, logged.
    const std::tuple<float, int, int, int, std::string> cases[] = {
        {0.70f, 90, 1, 0, "c l"}, {0.69f, 90, 1, 0, "  l"}, {0.60f, 60, 3, 1, "c l"},
        {0.59f, 60, 3, 1, "  l"}, {0.90f, 70, 4, 2, "c l"}, {0.90f, 70, 5, 0, "   "},
        {0.90f, 70, 1, 3, "  l"}, {0.3f, 70, 1, 0, "  l"}};
    for (const auto& [score, grade, type, before, expected] : cases) {
        const ExamEndPlan plan = PlanExamEnd(score, type, before, grade);
        EXPECT_EQ(std::string(plan.countTake ? "c" : " ") + (plan.remove ? "r" : " ") +
                      (plan.log ? "l" : " "),
                  expected)
            << score << " " << type;
    }
}

} // namespace
} // namespace tessera
