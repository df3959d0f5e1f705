// The controls of Quiz800 and their places: the item on the left, the panel and the gauge on the
// right, the answers, the progress bar and the commands below.

#include "review/quiz800.h"

#include "platform/control_names.h"
#include "platform/dialogs.h"
#include "platform/rich_text_view.h"
#include "review/review_gauge.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tessera {

namespace {

QLabel* makeLabel(QWidget* parent, const char* name, const QString& caption) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(QString::fromLatin1(name));
    // Feedback such as "<B> is not the best choice." is text, not markup.
    label->setTextFormat(Qt::PlainText);
    return label;
}

void enlarge(QWidget* widget, qreal factor, bool bold) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    widget->setFont(font);
}

} // namespace

QPushButton* Quiz800::makeCommand(int index, const QString& caption,
                                  const QString& accessibleName) {
    auto* button = new QPushButton(caption, this);
    NameControl(button, "Command1", index, accessibleName);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, index] { Command1_Click(index); });
    Command1[static_cast<size_t>(index)] = button;
    return button;
}

void Quiz800::buildControls() {
    setObjectName(QStringLiteral("Quiz800"));
    setMinimumSize(760, 520);
    resize(780, 540);

    Label2 = makeLabel(this, "Label2", {});
    DescribeControl(Label2, QStringLiteral("Item and feedback"));
    Label2->setWordWrap(true);
    Label2->setMinimumHeight(2 * Label2->fontMetrics().height() + 8);
    Label2->setTextInteractionFlags(Qt::TextSelectableByMouse);
    enlarge(Label2, 1.15, true);

    RichTextBox1 = new RichTextView(this);
    RichTextBox1->setObjectName(QStringLiteral("RichTextBox1"));
    RichTextBox1->setAccessibleName(QStringLiteral("Question and answers"));
    RichTextBox1->setReadOnly(true);
    RichTextBox1->setCopyOnly(true);
    RichTextBox1->installEventFilter(this);
    Shape4 = new QFrame(this);
    Shape4->setObjectName(QStringLiteral("Shape4"));
    Shape4->setFrameShape(QFrame::HLine);
    Shape4->setFrameShadow(QFrame::Sunken);
    Shape4->setAccessibleName(QStringLiteral("Right margin of the text"));
    Shape4->installEventFilter(this);

    Frame1 = new QGroupBox(QStringLiteral("Performance"), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Label3 = makeLabel(Frame1, "Label3", QStringLiteral("Right:"));
    Label4 = makeLabel(Frame1, "Label4", QStringLiteral("Wrong:"));
    Label5 = makeLabel(Frame1, "Label5", QStringLiteral("Tries:"));
    Label11 = makeLabel(Frame1, "Label11", QStringLiteral("Wild Guesses:"));
    Label6 = makeLabel(Frame1, "Label6", {});
    DescribeControl(Label6, QStringLiteral("Score"));
    Label6->setAlignment(Qt::AlignCenter);
    enlarge(Label6, 1.6, true);
    // The score's pure green and red read best on a dark board, shown once there is a score.
    QPalette board = Label6->palette();
    board.setColor(QPalette::Window, QColor(40, 44, 52));
    Label6->setPalette(board);
    Label6->setMargin(4);
    Label8 = makeLabel(Frame1, "Label8", QStringLiteral("Item Time:"));
    Label7 = makeLabel(Frame1, "Label7", QStringLiteral("Elapsed Time:"));
    auto* panel = new QVBoxLayout(Frame1);
    for (QLabel* label : {Label3, Label4, Label5, Label11})
        panel->addWidget(label);
    panel->addWidget(Label6);
    panel->addWidget(Label8);
    panel->addWidget(Label7);

    m_gauge = new ReviewGauge(this);

    ProgressBar1 = new QProgressBar(this);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setAccessibleName(QStringLiteral("Progress through the test"));
    ProgressBar1->setRange(0, 100);
    ProgressBar1->setValue(0);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(200);
    connect(Timer1, &QTimer::timeout, this, &Quiz800::Timer1_Timer);
    m_context.services.dialogs.holdBack(Timer1);

    // Answers first in the tab order, then the way on, then the desk tools.
    auto* answers = new QHBoxLayout;
    for (int i = 0; i < 4; ++i) {
        const QString letter(QChar(u'A' + i));
        QPushButton* button = makeCommand(i, letter, QStringLiteral("Answer ") + letter);
        button->setMinimumSize(64, 40);
        enlarge(button, 1.3, true);
        answers->addWidget(button);
    }
    answers->addSpacing(16);
    answers->addWidget(makeCommand(ReviewCommand::Aladdin, QStringLiteral("A&laddin"),
                                   QStringLiteral("Aladdin wishes")));
    answers->addStretch();
    answers->addWidget(makeCommand(ReviewCommand::Picture, QStringLiteral("&View Picture"),
                                   QStringLiteral("View Picture")));

    auto* commands = new QHBoxLayout;
    commands->addWidget(makeCommand(ReviewCommand::Previous, QStringLiteral("&Previous"),
                                    QStringLiteral("Previous")));
    commands->addWidget(
        makeCommand(ReviewCommand::Next, QStringLiteral("&Next"), QStringLiteral("Next or Done")));
    commands->addWidget(makeCommand(ReviewCommand::Break, QStringLiteral("&Break"),
                                    QStringLiteral("Break or Cancel")));
    commands->addStretch();
    commands->addWidget(
        makeCommand(ReviewCommand::Help, QStringLiteral("&Help"), QStringLiteral("Help")));
    commands->addWidget(makeCommand(ReviewCommand::NoteBook, QStringLiteral("N&otebook"),
                                    QStringLiteral("Notebook")));
    commands->addWidget(makeCommand(ReviewCommand::Calculator, QStringLiteral("C&alculator"),
                                    QStringLiteral("Calculator")));
    for (int i : {ReviewCommand::Next, ReviewCommand::Break, ReviewCommand::Previous})
        Command1[static_cast<size_t>(i)]->setMinimumWidth(96);

    // Desk tools that this build does not have stay disabled.
    Command1[ReviewCommand::Help]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    Command1[ReviewCommand::NoteBook]->setEnabled(
        m_context.screens.isAvailable(ScreenName::NoteBook));
    Command1[ReviewCommand::Calculator]->setEnabled(
        m_context.screens.isAvailable(ScreenName::Calculator));

    auto* text = new QVBoxLayout;
    text->addWidget(RichTextBox1, 1);
    text->addWidget(Shape4);
    // Wide enough for the longest clock caption, so that the column does not jump as labels grow.
    Frame1->setMinimumWidth(
        Frame1->fontMetrics().horizontalAdvance(QStringLiteral("Elapsed Time: 00:00:00")) + 32);
    auto* side = new QVBoxLayout;
    side->addWidget(Frame1);
    side->addWidget(m_gauge, 1);
    auto* middle = new QHBoxLayout;
    middle->addLayout(text, 1);
    middle->addLayout(side);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label2);
    layout->addLayout(middle, 1);
    layout->addLayout(answers);
    layout->addWidget(ProgressBar1);
    layout->addLayout(commands);

    setTabOrder(RichTextBox1, Command1[0]);
    QWidget* previous = Command1[0];
    for (int i :
         {1, 2, 3, int{ReviewCommand::Aladdin}, int{ReviewCommand::Picture},
          int{ReviewCommand::Previous}, int{ReviewCommand::Next}, int{ReviewCommand::Break},
          int{ReviewCommand::Help}, int{ReviewCommand::NoteBook}, int{ReviewCommand::Calculator}}) {
        setTabOrder(previous, Command1[static_cast<size_t>(i)]);
        previous = Command1[static_cast<size_t>(i)];
    }
}

} // namespace tessera
