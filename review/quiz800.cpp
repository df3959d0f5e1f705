#include "review/quiz800.h"

#include "core/run_journal.h"

#include "core/item_text.h"
#include "platform/clock.h"
#include "platform/rich_text_view.h"
#include "platform/sound.h"
#include "review/item_scoring.h"
#include "review/review_gauge.h"
#include "review/review_test.h"
#include "review/review_text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include <cmath>

namespace tessera {

namespace {

QColor colourOf(int value) {
    // Colour values are 0xBBGGRR.
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

void setTextColour(QLabel* label, int colour) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colourOf(colour));
    label->setPalette(palette);
}

QString shown(const std::string& text) {
    // The system breaks lines with CR LF; a label wants plain line feeds.
    QString line = QString::fromLatin1(text);
    line.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return line;
}

} // namespace

Quiz800::Quiz800(ScreenContext& context) : m_context(context), m_state(context.state) {
    buildControls();

    if (m_state.TestPosition == 0) {
        m_state.TestTally.fill(0);
        m_state.TestScore = 0;
    }
    UpdatePerformance();
    if (m_state.IncludeProgressReport) {
        m_gauge->setPassingGrade(m_state.PassingGrade);
        updateGauge();
    } else {
        m_gauge->hide();
    }

    if (m_state.TestPosition != 0) {
        // A resumed test or a retake; a retake's first item stays open.
        ShowItem(m_state.TestPosition);
        if (m_state.TestFurthest == m_state.TestPosition) {
            RevealAnswer();
            if (m_state.TestPosition == 1)
                Command1[11]->setEnabled(false);
        }
    } else {
        BuildAllItemsTest();
    }

    TestFinished = false;
    if (QWidget* menu = m_context.screens.find(ScreenName::ButtonMenu))
        menu->setEnabled(false);
}

Quiz800::~Quiz800() = default;

DateValue Quiz800::now() const {
    return m_context.services.clock.now();
}

void Quiz800::ShowItem(int position) {
    setWindowTitle(QString::fromLatin1(m_state.catalogue.TopicTitles[m_state.CurrentTopic]));
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

    showPicture(item);

    ItemRtf = RtfVersions::of(QuestionDocument(m_state.content.RtfHeader, QuestionRtf));
    showDocument();

    for (int i = 0; i < AnswerCount; ++i) {
        Command1[i]->setVisible(true);
        Command1[i]->setEnabled(true);
    }
    if (position == m_state.TestFurthest || position == 1) {
        for (int i : {6, 7, 11})
            Command1[i]->setEnabled(false);
        if (m_state.TimerActive)
            Timer1->start();
    } else {
        Timer1->stop();
    }
    if (m_state.WishesLeft[1] != 0 || m_state.WishesLeft[2] != 0 || m_state.WishesLeft[3] != 0)
        Command1[5]->setEnabled(true);
    // The bar shows the furthest point and does not fall on "&Previous".
    const int count = std::max<int>(m_state.TestItemCount, 1);
    ProgressBar1->setValue(static_cast<int>(std::lround(100.0 * m_state.TestFurthest / count)));
    ItemStart = now();
}

void Quiz800::ProcessAnswer(int& letter, int button) {
    const AnswerVerdict verdict = JudgeAnswer(m_state, letter, RightAnswer);
    if (!verdict.right) {
        if (m_state.SoundOn)
            m_context.services.sound.tone(440, 200);
        Command1[button]->setEnabled(false);
        RichTextBox1->setFocus();
    } else {
        AddElapsed(m_state, now() - ItemStart);
        Command1[7]->setText(QStringLiteral("&Break"));
    }
    UpdatePerformance();
    setFeedback(verdict.feedback, verdict.colour);
    if (verdict.right) {
        RevealAnswer();
        letter = 0;
        Command1[5]->setEnabled(false);
        if (m_state.TestPosition == 1) {
            Command1[11]->setEnabled(false);
            Command1[6]->setFocus();
        } else if (isLastPosition()) {
            Command1[11]->setFocus();
        } else {
            Command1[6]->setFocus();
        }
    }
    if (m_state.IncludeProgressReport)
        updateGauge();
    // A crash from here on costs no answer given so far.
    JournalReviewTest(m_state, std::floor(now()));
}

void Quiz800::KeyAnswer(int keyCode) {
    // A revealed item takes no answer.
    if (Command1[6]->isEnabled())
        return;
    GivenAnswer = QChar(keyCode).toUpper().unicode();
    const int button = GivenAnswer - FirstLetter;
    if (button >= 0 && button < AnswerCount && Command1[button]->isEnabled())
        ProcessAnswer(GivenAnswer, button);
}

void Quiz800::Form_KeyPress(int keyCode) {
    const int button = QChar(keyCode).toUpper().unicode() - FirstLetter;
    if (button < 0 || button >= AnswerCount || !Command1[button]->isEnabled())
        return;
    // This road leaves GivenAnswer alone.
    int letter = FirstLetter + button;
    ProcessAnswer(letter, button);
}

void Quiz800::RevealAnswer() {
    Timer1->stop();
    ItemRtf = RtfVersions::of(
        QuestionWithExplanationDocument(m_state.content.RtfHeader, QuestionRtf, ExplanationRtf));
    showDocument();
    // With the expert's advice the item stays open: no button moves.
    if (m_state.ActiveWish != 3) {
        for (int i : {6, 11, 7})
            Command1[i]->setEnabled(true);
        Command1[6]->setText(isLastPosition() ? QStringLiteral("&Done") : QStringLiteral("&Next"));
        for (int i : {0, 1, 2, 3, 5})
            Command1[i]->setEnabled(false);
        if (GivenAnswer == 0)
            appendFeedback("  (Answer is " + std::string(1, static_cast<char>(RightAnswer)) + ")");
    }
}

void Quiz800::UpdatePerformance() {
    const PerformanceLabels labels = tessera::UpdatePerformance(m_state);
    Label3->setText(QString::fromStdString(labels.right));
    Label4->setText(QString::fromStdString(labels.wrong));
    Label5->setText(QString::fromStdString(labels.tries));
    if (!labels.scored)
        return;
    Label6->setAutoFillBackground(true);
    setTextColour(Label6, labels.scoreColour);
    Label6->setText(QString::fromStdString(labels.score));
    Label11->setText(QString::fromStdString(labels.wildGuesses));
}

void Quiz800::Timer1_Timer() {
    if (!m_state.TimerActive)
        return;
    const DateValue itemTime = now() - ItemStart;
    Label8->setText(QStringLiteral("Item Time: ") + QString::fromStdString(ClockText(itemTime)));
    Label7->setText(QStringLiteral("Elapsed Time: ") +
                    QString::fromStdString(ClockText(m_state.TestElapsed + itemTime)));
}

void Quiz800::updateGauge() {
    m_gauge->showScore(m_state.TestScore, PassesGrade(m_state.TestScore, m_state.PassingGrade));
}

void Quiz800::setFeedback(const std::string& text, int colour) {
    m_feedback = text;
    setTextColour(Label2, colour);
    Label2->setText(shown(m_feedback));
}

void Quiz800::appendFeedback(const std::string& text) {
    m_feedback += text;
    Label2->setText(shown(m_feedback));
}

void Quiz800::showDocument() {
    RichTextBox1->setTextRtf(ItemRtf.forWindow(isMaximized()));
}

int Quiz800::enabledAnswers() const {
    int count = 0;
    for (int i = 0; i < AnswerCount; ++i)
        count += Command1[i]->isEnabled() ? 1 : 0;
    return count;
}

bool Quiz800::isLastPosition() const {
    return m_state.TestPosition >= m_state.TestItemCount;
}

void Quiz800::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // Form_Resize: the large version shows while the window is maximised.
    if (event->type() == QEvent::WindowStateChange && RichTextBox1 != nullptr)
        showDocument();
}

void Quiz800::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
}

void Quiz800::keyPressEvent(QKeyEvent* event) {
    if (event->text().size() == 1 &&
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        Form_KeyPress(event->text().at(0).unicode());
    QWidget::keyPressEvent(event);
}

bool Quiz800::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Shape4 && event->type() == QEvent::Resize) {
        // The text wraps where the line under it ends, inside the view's frame and scroll bar.
        const int chrome = 2 * RichTextBox1->frameWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, RichTextBox1);
        RichTextBox1->setRightMargin(15 * std::max(Shape4->width() - chrome, 40));
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const bool typed = key->text().size() == 1 && key->text().at(0).isPrint() &&
                       !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!typed)
        return QWidget::eventFilter(watched, event);
    // The form sees a key first, then the control that has the focus.
    const int code = key->text().at(0).unicode();
    Form_KeyPress(code);
    KeyAnswer(code);
    // The text view takes no typing; a button has no use for a letter.
    return watched == RichTextBox1 || code != ' ';
}

} // namespace tessera
