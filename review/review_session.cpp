#include "review/review_session.h"

#include "core/item_text.h"
#include "core/progress_file.h"
#include "core/run_journal.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "review/coin_toss.h"
#include "review/review_test.h"
#include "review/review_text.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessera {

namespace {

constexpr const char* SaveFailedTitle = "Progress Not Saved";
constexpr const char* SaveFailedMessage =
    "Your progress could not be written to TesseraConfig.MS. Make sure the study folder can be "
    "written to, then resume the test and break off again.";

} // namespace

ReviewSession::ReviewSession(SessionState& state, Services& services)
    : m_state(state), m_services(services) {
    // As the form draws them: answers and Aladdin open, the ways on closed until an answer.
    setOpen({0, 1, 2, 3, ReviewCommand::Aladdin}, true);
}

void ReviewSession::start() {
    if (m_state.TestPosition == 0) {
        m_state.TestTally.fill(0);
        m_state.TestScore = 0;
    }
    updatePerformance();
    if (m_state.TestPosition != 0) {
        // A resumed test or a retake; a retake's first item stays open.
        showItem(m_state.TestPosition);
        if (m_state.TestFurthest == m_state.TestPosition) {
            revealAnswer();
            if (m_state.TestPosition == 1)
                setOpen({ReviewCommand::Previous}, false);
        }
    } else {
        buildAllItemsTest();
    }
    TestFinished = false;
}

void ReviewSession::buildAllItemsTest() {
    BuildAllItemsTest(m_state, m_services.random, m_services.clock.secondsSinceMidnight());
    m_cancellable = true;
    showItem(1);
    // A new test can be cancelled from its first item, and only there.
    setOpen({ReviewCommand::Break}, true);
}

void ReviewSession::showItem(int position) {
    ++m_itemRevision;
    setFeedback(TestHeading(m_state.TestType) + m_state.catalogue.CrLf + "Item" +
                    NumberForm(position) + " of" + NumberForm(m_state.TestItemCount),
                NeutralColour);
    const int item = m_state.TestItems[position];
    const std::string_view text = item >= 1 && item <= ReviewItemLimit
                                      ? m_state.content.ReviewItems[item]
                                      : std::string_view();
    RightAnswer = static_cast<unsigned char>(ItemAnswerLetter(text));
    QuestionRtf = ItemQuestion(text);
    ExplanationRtf = ItemExplanation(text);
    setOpen({ReviewCommand::Picture}, picture().has_value());
    setDocument(QuestionDocument(m_state.content.RtfHeader, QuestionRtf));

    setOpen({0, 1, 2, 3}, true);
    if (position == m_state.TestFurthest || position == 1) {
        setOpen({ReviewCommand::Next, ReviewCommand::Break, ReviewCommand::Previous}, false);
        if (m_state.TimerActive)
            m_timerRunning = true;
    } else {
        m_timerRunning = false;
    }
    if (m_state.WishesLeft[1] != 0 || m_state.WishesLeft[2] != 0 || m_state.WishesLeft[3] != 0)
        setOpen({ReviewCommand::Aladdin}, true);
    ItemStart = now();
}

void ReviewSession::answerCommand(int button) {
    GivenAnswer = FirstLetter + button;
    processAnswer(GivenAnswer, button);
}

void ReviewSession::keyAnswer(int keyCode) {
    // A revealed item takes no answer.
    if (isOpen(ReviewCommand::Next))
        return;
    GivenAnswer = QChar(keyCode).toUpper().unicode();
    const int button = GivenAnswer - FirstLetter;
    if (button >= 0 && button < AnswerCount && isOpen(button))
        processAnswer(GivenAnswer, button);
}

void ReviewSession::formKeyPress(int keyCode) {
    const int button = QChar(keyCode).toUpper().unicode() - FirstLetter;
    if (button < 0 || button >= AnswerCount || !isOpen(button))
        return;
    // This road leaves GivenAnswer alone.
    int letter = FirstLetter + button;
    processAnswer(letter, button);
}

void ReviewSession::processAnswer(int& letter, int button) {
    const AnswerVerdict verdict = JudgeAnswer(m_state, letter, RightAnswer);
    if (!verdict.right) {
        if (m_state.SoundOn)
            m_services.sound.tone(440, 200);
        setOpen({button}, false);
        m_focus = ReviewFocus::Text;
    } else {
        AddElapsed(m_state, now() - ItemStart);
        m_cancellable = false;
    }
    updatePerformance();
    setFeedback(verdict.feedback, verdict.colour);
    if (verdict.right) {
        revealAnswer();
        letter = 0;
        setOpen({ReviewCommand::Aladdin}, false);
        if (m_state.TestPosition == 1) {
            setOpen({ReviewCommand::Previous}, false);
            m_focus = ReviewFocus::Next;
        } else {
            m_focus = isLastPosition() ? ReviewFocus::Previous : ReviewFocus::Next;
        }
    }
    // A crash from here on costs no answer given so far.
    JournalReviewTest(m_state, std::floor(now()));
}

void ReviewSession::revealAnswer() {
    m_timerRunning = false;
    setDocument(
        QuestionWithExplanationDocument(m_state.content.RtfHeader, QuestionRtf, ExplanationRtf));
    // With the expert's advice the item stays open: no button moves.
    if (m_state.ActiveWish == 3)
        return;
    setOpen({ReviewCommand::Next, ReviewCommand::Previous, ReviewCommand::Break}, true);
    m_done = isLastPosition();
    setOpen({0, 1, 2, 3, ReviewCommand::Aladdin}, false);
    if (GivenAnswer == 0) {
        m_feedback += "  (Answer is " + std::string(1, static_cast<char>(RightAnswer)) + ")";
    }
}

bool ReviewSession::nextItem() {
    if (isLastPosition()) {
        endTest();
        return m_closeAsked;
    }
    setFeedback({}, NeutralColour);
    if (m_state.TestPosition >= m_state.TestFurthest) {
        ++m_state.TestPosition;
        m_state.TestFurthest = m_state.TestPosition;
        showItem(m_state.TestPosition);
        m_focus = ReviewFocus::Text;
    } else {
        ++m_state.TestPosition;
        showItem(m_state.TestPosition);
        revealAnswer();
        m_focus = isLastPosition() ? ReviewFocus::Previous : ReviewFocus::Next;
    }
    return false;
}

void ReviewSession::previousItem() {
    if (m_state.TestPosition <= 1)
        return;
    --m_state.TestPosition;
    showItem(m_state.TestPosition);
    revealAnswer();
    if (m_state.TestPosition == 1) {
        m_focus = ReviewFocus::Next;
        setOpen({ReviewCommand::Previous}, false);
    } else {
        m_focus = ReviewFocus::Previous;
    }
}

void ReviewSession::endTest() {
    const bool passed = PassesGrade(m_state.TestScore, m_state.PassingGrade);
    const std::string text =
        FinishedMessageText(passed, MissedPositions(m_state), m_state.catalogue.CrLf);
    const MessageAnswer answer = m_services.dialogs.message(
        QString::fromLatin1(text), QStringLiteral("Finished"),
        passed ? MessageIcon::Exclamation : MessageIcon::Question, MessageButtons::OkCancel);
    if (answer != MessageAnswer::Ok)
        return;
    TestFinished = true;
    m_closeAsked = true;
}

void ReviewSession::applyWish() {
    switch (m_state.ActiveWish) {
    case 1:
        coinToss();
        break;
    case 2:
        setFeedback("Take a Free Guess!");
        break;
    case 3:
        setFeedback("Here's what the expert says!" + m_state.catalogue.CrLf +
                    "(Scroll down as needed.)");
        revealAnswer();
        m_state.ActiveWish = 0;
        break;
    default:
        break;
    }
    if (m_state.WishesLeft[1] + m_state.WishesLeft[2] + m_state.WishesLeft[3] == 0)
        setOpen({ReviewCommand::Aladdin}, false);
}

void ReviewSession::coinToss() {
    const int right = RightAnswer - FirstLetter;
    setFeedback("Now it's a coin toss!");
    std::array<bool, AnswerCount> marks{};
    for (int i = 0; i < AnswerCount; ++i)
        marks[static_cast<size_t>(i)] = i != right && isOpen(i);
    const int survivor = DrawCoinTossSurvivor(marks, m_services.random);
    for (int i = 0; i < AnswerCount; ++i) {
        if (i == right || i == survivor)
            continue;
        setOpen({i}, false);
        CutAnswerText(QuestionRtf, i, m_state.catalogue.CrLf);
    }
    if (survivor >= 0)
        setOpen({survivor}, true);
    m_state.ActiveWish = 0;
    setDocument(QuestionDocument(m_state.content.RtfHeader, QuestionRtf));
}

SaveResult ReviewSession::saveTest() {
    if (!TestFinished)
        return SaveReviewTest(m_state, false, std::floor(now()));
    // The drill is logged and counted by the save that finishes the test: a save that fails
    // leaves the test to be finished again, and then it counts once.
    const int topic = m_state.CurrentTopic;
    const int16_t takes = m_state.TakeCounts[topic];
    std::optional<LogEntry> log;
    if (LogsDrill(m_state.TestType, takes)) {
        log = LogEntry{topic, m_state.TestScore};
        if (DrillCounts(m_state.TestScore, m_state.PassingGrade))
            ++m_state.TakeCounts[topic];
    }
    const SaveResult saved = SaveReviewTest(m_state, true, std::floor(now()), log);
    if (saved.status == SaveStatus::FileFailed)
        m_state.TakeCounts[topic] = takes;
    return saved;
}

void ReviewSession::unload() {
    if (m_unloaded)
        return;
    m_unloaded = true;
    m_timerRunning = false;
    // The item's time is added also when its answer already added it.
    AddElapsed(m_state, now() - ItemStart);
    const UnloadPlan plan =
        PlanUnload(m_cancellable, isOpen(ReviewCommand::Next), m_state.TestFurthest);
    if (!plan.save) {
        m_state.TestPosition = 0; // the test is gone, with any wrong tries it had
        DropJournal();
        return;
    }
    m_state.TestFurthest = plan.furthest;
    m_state.TestPosition = plan.position;
    const SaveResult saved = saveTest();
    // A test that could not be saved keeps its journal for the next start.
    if (saved.status != SaveStatus::FileFailed)
        DropJournal();
    if (saved.status == SaveStatus::SuspendedBeyondHeader) {
        m_services.dialogs.message(QString::fromLatin1(SuspendedBeyondHeaderMessage),
                                   QString::fromLatin1(SuspendedBeyondHeaderTitle),
                                   MessageIcon::Exclamation, MessageButtons::Ok);
    } else if (saved.status == SaveStatus::FileFailed) {
        m_services.dialogs.message(QString::fromLatin1(SaveFailedMessage),
                                   QString::fromLatin1(SaveFailedTitle), MessageIcon::Critical,
                                   MessageButtons::Ok);
    }
}

int ReviewSession::progressPercent() const {
    // The bar shows the furthest point and does not fall on "&Previous".
    const int count = std::max<int>(m_state.TestItemCount, 1);
    return static_cast<int>(std::lround(100.0 * m_state.TestFurthest / count));
}

std::string ReviewSession::itemClock() const {
    return ClockText(now() - ItemStart);
}

std::string ReviewSession::elapsedClock() const {
    return ClockText(m_state.TestElapsed + (now() - ItemStart));
}

std::optional<PictureEntry> ReviewSession::picture() const {
    const int item = m_state.TestItems[m_state.TestPosition];
    const int entry = item >= 1 && item <= ReviewItemLimit ? m_state.content.ItemPicture[item] : 0;
    if (entry < 1 || entry > PictureItemCount)
        return std::nullopt;
    return parsePictureEntry(m_state.catalogue.PictureItems[entry]);
}

int ReviewSession::openAnswers() const {
    return static_cast<int>(std::count(m_open.begin(), m_open.begin() + AnswerCount, true));
}

ReviewFocus ReviewSession::takeFocus() {
    return std::exchange(m_focus, ReviewFocus::Unchanged);
}

void ReviewSession::updatePerformance() {
    const PerformanceLabels labels = UpdatePerformance(m_state);
    if (labels.scored) {
        m_performance = labels;
        return;
    }
    // The score and the wild guesses keep what they showed until an item is scored.
    m_performance.right = labels.right;
    m_performance.wrong = labels.wrong;
    m_performance.tries = labels.tries;
}

void ReviewSession::setFeedback(const std::string& text, int colour) {
    m_feedback = text;
    m_feedbackColour = colour;
}

void ReviewSession::setFeedback(const std::string& text) {
    m_feedback = text;
}

void ReviewSession::setDocument(const std::string& rtf) {
    m_document = RtfVersions::of(rtf);
    ++m_documentRevision;
}

void ReviewSession::setOpen(std::initializer_list<int> commands, bool open) {
    for (int command : commands)
        m_open[static_cast<size_t>(command)] = open;
}

bool ReviewSession::isLastPosition() const {
    return m_state.TestPosition >= m_state.TestItemCount;
}

DateValue ReviewSession::now() const {
    return m_services.clock.now();
}

} // namespace tessera
