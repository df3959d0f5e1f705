// The controls of ExamTest and their places: the item on the left with the answer buttons
// below it, the two lists, the clock and the commands on the right.

#include "exam/exam_test.h"

#include "platform/control_names.h"
#include "platform/dialogs.h"
#include "platform/fixed_pitch_font.h"
#include "platform/rich_text_view.h"
#include "platform/text_frame.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tessera {

void ExamTest::buildControls() {
    RichTextBox1 = new RichTextView;
    RichTextBox1->setCopyOnly(true);
    RichTextBox1->setReadOnly(true);
    NameControl(RichTextBox1, "RichTextBox1", -1, QStringLiteral("Question"));

    Label1[0] = new QLabel(QStringLiteral("Your Answer: "));
    NameControl(Label1[0], "Label1", 0, QStringLiteral("Your Answer"));
    QFont answerFont = Label1[0]->font();
    answerFont.setBold(true);
    answerFont.setPointSizeF(answerFont.pointSizeF() * 1.15);
    Label1[0]->setFont(answerFont);

    auto* answers = new QHBoxLayout;
    const QString letters = QStringLiteral("ABCD");
    for (int i = 0; i < 4; ++i) {
        Command1[i] =
            MakeCommand("Command1", i, letters.mid(i, 1), QStringLiteral("Answer ") + letters[i]);
        Command1[i]->setFont(answerFont);
        Command1[i]->setMinimumSize(56, 40);
        answers->addWidget(Command1[i]);
    }
    answers->addSpacing(16);
    answers->addWidget(Label1[0], 1);

    Command1[PreviousCommand] = MakeCommand(
        "Command1", PreviousCommand, QStringLiteral("&Previous"), QStringLiteral("Previous"));
    Command1[NextCommand] =
        MakeCommand("Command1", NextCommand, QStringLiteral("&Next"), QStringLiteral("Next"));
    Command1[UnsureCommand] =
        MakeCommand("Command1", UnsureCommand, QStringLiteral("&Unsure"), QStringLiteral("Unsure"));
    Command1[PictureCommand] =
        MakeCommand("Command1", PictureCommand, QStringLiteral("&View Picture"),
                    QStringLiteral("View Picture"));
    auto* moves = new QHBoxLayout;
    moves->addWidget(Command1[PreviousCommand]);
    moves->addWidget(Command1[NextCommand]);
    moves->addSpacing(16);
    moves->addWidget(Command1[UnsureCommand]);
    moves->addWidget(Command1[PictureCommand]);
    moves->addStretch();

    auto* item = new QVBoxLayout;
    item->addWidget(TextFrame::around(RichTextBox1, "Shape3"), 1);
    item->addLayout(answers);
    item->addLayout(moves);

    auto* layout = new QHBoxLayout(this);
    layout->addLayout(item, 3);
    layout->addWidget(buildSidePanel(), 0);

    // Tab order: the answers, the moves, the lists, then the commands of the side panel.
    QWidget* order[] = {Command1[0],
                        Command1[1],
                        Command1[2],
                        Command1[3],
                        Command1[PreviousCommand],
                        Command1[NextCommand],
                        Command1[UnsureCommand],
                        Command1[PictureCommand],
                        List1[0],
                        List1[1],
                        Command1[BreakCommand],
                        Command1[FinishedCommand],
                        Command1[9],
                        Command1[11],
                        RichTextBox1};
    for (std::size_t i = 1; i < std::size(order); ++i) {
        QWidget::setTabOrder(order[i - 1], order[i]);
    }

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(200);
    Timer2 = new QTimer(this);
    Timer2->setObjectName(QStringLiteral("Timer2"));
    Timer2->setInterval(300);
    m_context.services.dialogs.holdBack(Timer1);
    m_context.services.dialogs.holdBack(Timer2);
    resize(780, 540);
}

QWidget* ExamTest::buildSidePanel() {
    auto* panel = new QWidget;
    auto* side = new QVBoxLayout(panel);
    side->setContentsMargins(0, 0, 0, 0);

    // Its title, the counts, comes with the first showing; it is spoken as it stands.
    Frame1 = new QGroupBox(QStringLiteral("Answered and remaining items"));
    NameControl(Frame1, "Frame1", -1, Frame1->title());
    auto* lists = new QGridLayout(Frame1);
    const std::array<QString, 2> headings{QStringLiteral("Answered"), QStringLiteral("Remaining")};
    for (int i = 0; i < 2; ++i) {
        List1[i] = new QListWidget;
        NameControl(List1[i], "List1", i, headings[i] + QStringLiteral(" items"));
        List1[i]->setFont(FixedPitchFont());
        const int rowWidth = List1[i]->fontMetrics().horizontalAdvance(QStringLiteral("0000  A?"));
        List1[i]->setMinimumWidth(rowWidth + 28);
        List1[i]->setMaximumWidth(rowWidth + 60);
        auto* heading = new QLabel(headings[i]);
        heading->setBuddy(List1[i]);
        lists->addWidget(heading, 0, i);
        lists->addWidget(List1[i], 1, i);
    }
    side->addWidget(Frame1, 1);

    Label1[1] = new QLabel(QStringLiteral("Time Remaining: "));
    NameControl(Label1[1], "Label1", 1, QStringLiteral("Time Remaining"));
    Label1[1]->setFont(FixedPitchFont());
    side->addWidget(Label1[1]);
    ProgressBar1 = new QProgressBar;
    NameControl(ProgressBar1, "ProgressBar1", -1, QStringLiteral("Items answered"));
    ProgressBar1->setRange(0, 100);
    side->addWidget(ProgressBar1);

    Command1[BreakCommand] =
        MakeCommand("Command1", BreakCommand, QStringLiteral("&Break"), QStringLiteral("Break"));
    Command1[FinishedCommand] = MakeCommand(
        "Command1", FinishedCommand, QStringLiteral("&Finished"), QStringLiteral("Finished"));
    Command1[9] = MakeCommand("Command1", 9, QStringLiteral("&Help"), QStringLiteral("Help"));
    Command1[11] =
        MakeCommand("Command1", 11, QStringLiteral("C&alculator"), QStringLiteral("Calculator"));
    Shape1 = new QFrame;
    Shape1->setObjectName(QStringLiteral("Shape1"));
    auto* shapeLayout = new QVBoxLayout(Shape1);
    shapeLayout->setContentsMargins(3, 3, 3, 3);
    shapeLayout->addWidget(Command1[FinishedCommand]);
    auto* commands = new QGridLayout;
    commands->addWidget(Command1[BreakCommand], 0, 0);
    commands->addWidget(Shape1, 0, 1);
    commands->addWidget(Command1[9], 1, 0);
    commands->addWidget(Command1[11], 1, 1);
    side->addLayout(commands);
    return panel;
}

} // namespace tessera
