// Quiz800 at the grain of the whole test: moving on and back, the end, closing, and the wishes.

#include "review/quiz800.h"

#include "core/button_menu.h"
#include "core/progress_file.h"
#include "core/run_journal.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/picture_window.h"
#include "platform/rich_text_view.h"
#include "review/aladdin.h"
#include "review/coin_toss.h"
#include "review/item_scoring.h"
#include "review/review_test.h"

#include <QPushButton>
#include <QTimer>

#include <cmath>

namespace tessera {

namespace {
constexpr const char* SaveFailedTitle = "Progress Not Saved";
constexpr const char* SaveFailedMessage =
    "Your progress could not be written to TesseraConfig.MS. Make sure the study folder can be "
    "written to, then resume the test and break off again.";
} // namespace

void Quiz800::BuildAllItemsTest() {
    tessera::BuildAllItemsTest(m_state, m_context.services.random,
                               m_context.services.clock.secondsSinceMidnight());
    Command1[7]->setText(QStringLiteral("&Cancel"));
    ShowItem(1);
    // A new test can be cancelled from its first item, and only there.
    Command1[7]->setEnabled(true);
}

void Quiz800::Command1_Click(int index) {
    switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
        GivenAnswer = FirstLetter + index;
        ProcessAnswer(GivenAnswer, index);
        break;
    case 5:
        OpenAladdin();
        break;
    case 6:
        NextItem();
        break;
    case 7:
        close();
        break;
    case 8:
        m_context.screens.unload(ScreenName::Help);
        m_state.HelpTopic = 5;
        openBeside(ScreenName::Help);
        break;
    case 9:
        openBeside(ScreenName::NoteBook);
        break;
    case 10:
        openBeside(ScreenName::Calculator);
        break;
    case 11:
        PreviousItem();
        break;
    case 12:
        showPicture(m_state.TestItems[m_state.TestPosition]);
        break;
    default:
        break;
    }
}

void Quiz800::openBeside(ScreenName name) {
    if (QWidget* screen = m_context.screens.show(name))
        screen->setWindowState(screen->windowState() &
                               ~(Qt::WindowMinimized | Qt::WindowMaximized));
}

void Quiz800::NextItem() {
    if (isLastPosition()) {
        EndTest();
        return;
    }
    setFeedback({}, NeutralColour);
    if (m_state.TestPosition >= m_state.TestFurthest) {
        ++m_state.TestPosition;
        m_state.TestFurthest = m_state.TestPosition;
        ShowItem(m_state.TestPosition);
        RichTextBox1->setFocus();
    } else {
        ++m_state.TestPosition;
        ShowItem(m_state.TestPosition);
        RevealAnswer();
        Command1[isLastPosition() ? 11 : 6]->setFocus();
    }
}

void Quiz800::PreviousItem() {
    if (m_state.TestPosition <= 1)
        return;
    --m_state.TestPosition;
    ShowItem(m_state.TestPosition);
    RevealAnswer();
    if (m_state.TestPosition == 1) {
        Command1[6]->setFocus();
        Command1[11]->setEnabled(false);
    } else {
        Command1[11]->setFocus();
    }
}

void Quiz800::EndTest() {
    const bool passed = PassesGrade(m_state.TestScore, m_state.PassingGrade);
    const std::string text =
        FinishedMessageText(passed, MissedPositions(m_state), m_state.catalogue.CrLf);
    const MessageAnswer answer = m_context.services.dialogs.message(
        QString::fromLatin1(text), QStringLiteral("Finished"),
        passed ? MessageIcon::Exclamation : MessageIcon::Question, MessageButtons::OkCancel);
    if (answer != MessageAnswer::Ok)
        return;
    TestFinished = true;
    close();
}

SaveResult Quiz800::SaveTest() {
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

void Quiz800::Form_Unload() {
    if (m_unloaded)
        return;
    m_unloaded = true;
    Timer1->stop();
    // The item's time is added also when its answer already added it.
    AddElapsed(m_state, now() - ItemStart);
    m_context.screens.unload(ScreenName::PictForm);
    if (QWidget* menu = m_context.screens.find(ScreenName::ButtonMenu))
        menu->setEnabled(true);

    const UnloadPlan plan = PlanUnload(Command1[7]->text() == QStringLiteral("&Cancel"),
                                       Command1[6]->isEnabled(), m_state.TestFurthest);
    if (!plan.save) {
        m_state.TestPosition = 0; // the test is gone, with any wrong tries it had
        DropJournal();
    } else {
        m_state.TestFurthest = plan.furthest;
        m_state.TestPosition = plan.position;
        const SaveResult saved = SaveTest();
        // A test that could not be saved keeps its journal for the next start.
        if (saved.status != SaveStatus::FileFailed)
            DropJournal();
        if (saved.status == SaveStatus::SuspendedBeyondHeader) {
            m_context.services.dialogs.message(QString::fromLatin1(SuspendedBeyondHeaderMessage),
                                               QString::fromLatin1(SuspendedBeyondHeaderTitle),
                                               MessageIcon::Exclamation, MessageButtons::Ok);
        } else if (saved.status == SaveStatus::FileFailed) {
            m_context.services.dialogs.message(QString::fromLatin1(SaveFailedMessage),
                                               QString::fromLatin1(SaveFailedTitle),
                                               MessageIcon::Critical, MessageButtons::Ok);
        }
    }
    RefreshNavigation(m_context.screens);
}

void Quiz800::OpenAladdin() {
    {
        Aladdin dialog(m_state, m_context.screens, enabledAnswers(), this);
        dialog.exec();
    }
    switch (m_state.ActiveWish) {
    case 1:
        CoinToss();
        break;
    case 2:
        setFeedback("Take a Free Guess!", NeutralColour);
        break;
    case 3:
        setFeedback("Here's what the expert says!" + m_state.catalogue.CrLf +
                        "(Scroll down as needed.)",
                    NeutralColour);
        RevealAnswer();
        m_state.ActiveWish = 0;
        break;
    default:
        break;
    }
    if (m_state.WishesLeft[1] + m_state.WishesLeft[2] + m_state.WishesLeft[3] == 0)
        Command1[5]->setEnabled(false);
}

void Quiz800::CoinToss() {
    const int right = RightAnswer - FirstLetter;
    setFeedback("Now it's a coin toss!", NeutralColour);
    std::array<bool, AnswerCount> marks{};
    for (int i = 0; i < AnswerCount; ++i)
        marks[static_cast<size_t>(i)] = i != right && Command1[i]->isEnabled();
    const int survivor = DrawCoinTossSurvivor(marks, m_context.services.random);
    for (int i = 0; i < AnswerCount; ++i) {
        if (i == right || i == survivor)
            continue;
        Command1[i]->setEnabled(false);
        CutAnswerText(QuestionRtf, i, m_state.catalogue.CrLf);
    }
    if (survivor >= 0)
        Command1[survivor]->setEnabled(true);
    m_state.ActiveWish = 0;
    ItemRtf = RtfVersions::of(QuestionDocument(m_state.content.RtfHeader, QuestionRtf));
    showDocument();
}

void Quiz800::showPicture(int item) {
    const int entry = item >= 1 && item <= ReviewItemLimit ? m_state.content.ItemPicture[item] : 0;
    if (entry >= 1 && entry <= PictureItemCount) {
        const PictureEntry picture = parsePictureEntry(m_state.catalogue.PictureItems[entry]);
        ShowPicture(m_context.screens, picture.width, picture.height,
                    QString::fromStdString(picture.fileName()));
        Command1[12]->setEnabled(true);
    } else {
        m_context.screens.unload(ScreenName::PictForm);
        Command1[12]->setEnabled(false);
    }
}

} // namespace tessera
