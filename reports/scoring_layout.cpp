// Scoring's controls: heads over the list, the list and its totals, the topics and the note,
// the two frames of options and the column of commands. The window scales them through its
// layouts; the tab order is the order in which they stand.

#include "platform/card_layout.h"
#include "platform/control_names.h"
#include "reports/scoring.h"
#include "reports/scoring_print.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessera {

namespace {

// Label1(0) to (7), then Label1(11), "Exam Title", over the rows' 83 columns.
constexpr std::array<ColumnHead, 9> HeadPlaces = {{
    {16, "Date", 16, "Taken"},
    {23, "Percent", 23, "Correct"},
    {31, "Questions", 32, "Asked"},
    {41, "Number", 38, "Answered"},
    {49, "Unsure", 48, "Answers"},
    {56, "Scrambled", 58, "Order"},
    {66, "Allotted", 64, "Time (min.)"},
    {75, "Time Used", 76, "(h:m:s)"},
    {0, "", 0, "Exam Title"},
}};
constexpr int RowColumns = 84;
// From the top: what a selected row leads to, then the card as a whole, then leaving.
constexpr std::array<int, 6> CommandOrder = {5, 4, 1, 0, 3, 2};
// Label1(10) stands this many characters to the right of the rows' first.
constexpr int TotalsIndent = 13;

} // namespace

void Scoring::buildControls() {
    setObjectName(QStringLiteral("Scoring"));
    setWindowTitle(QString::fromLatin1(ScoringCaption));

    const QStringList captions = {
        QStringLiteral("Date Taken"),
        QStringLiteral("Percent Correct"),
        QStringLiteral("Questions Asked"),
        QStringLiteral("Number Answered"),
        QStringLiteral("Unsure Answers"),
        QStringLiteral("Scrambled Order"),
        QStringLiteral("Allotted Time (min.)"),
        QStringLiteral("Time Used (h:m:s)"),
        QStringLiteral("Topics Covered: "),
        QStringLiteral("Note: The list includes only exams with at least 30% answered correctly, "
                       "and you may take three complete drills of any screening exam."),
        QStringLiteral("Total:"),
        QStringLiteral("Exam Title")};
    m_heads = new QWidget;
    for (int i = 0; i < 12; ++i) {
        Label1[i] = new QLabel(captions[i]);
        NameControl(Label1[i], "Label1", i, captions[i].trimmed());
    }
    for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 11}) {
        Label1[i]->setParent(m_heads);
        SetColumnHead(Label1[i], HeadPlaces[static_cast<size_t>(i == 11 ? 8 : i)]);
    }

    List1 = new QListWidget;
    NameControl(List1, QStringLiteral("List1"), QStringLiteral("Screening exams"));
    List1->setFont(FixedPitchFont());
    connect(List1, &QListWidget::currentRowChanged, this,
            [this](int row) { List1_Click(row + 1); });
    Label1[10]->setFont(FixedPitchFont());
    Label1[10]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Label1[9]->setWordWrap(true);

    Frame1 =
        MakeOptionFrame(QStringLiteral("Sort List By:"), "Option1",
                        {QStringLiteral("Earliest Date &Taken"),
                         QStringLiteral("&Latest Date Taken"), QStringLiteral("Percent &Correct"),
                         QStringLiteral("&Questions Asked"), QStringLiteral("Percent &Unsure")},
                        Option1);
    NameControl(Frame1, QStringLiteral("Frame1"), QStringLiteral("Sort List By:"));
    Frame2 = MakeOptionFrame(QStringLiteral("Include"), "Option2",
                             {QStringLiteral("&All Questions"), QStringLiteral("&Missed Questions"),
                              QStringLiteral("U&nsure Questions")},
                             Option2);
    NameControl(Frame2, QStringLiteral("Frame2"), QStringLiteral("Include"));
    Option2[0]->setChecked(true);
    for (int i = 0; i < 5; ++i) {
        connect(Option1[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                Option1_Click(i);
        });
    }
    for (int i = 0; i < 3; ++i)
        connect(Option2[i], &QRadioButton::clicked, this, [this, i] { Option2_Click(i); });

    auto* notes = new QVBoxLayout;
    notes->addWidget(Label1[8]);
    notes->addWidget(Label1[9]);
    notes->addStretch(1);
    auto* below = new QHBoxLayout;
    below->addLayout(notes, 1);
    below->addWidget(Frame1);
    below->addWidget(Frame2);
    below->addLayout(buildCommands());

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_heads);
    layout->addWidget(List1, 1);
    layout->addWidget(Label1[10]);
    layout->addLayout(below);
    QWidget* previous = Option2[2];
    for (int i : CommandOrder) {
        setTabOrder(previous, Command1[i]);
        previous = Command1[i];
    }
    alignHeads();
    resize(820, 540);
}

QLayout* Scoring::buildCommands() {
    const std::array<const char*, 6> captions{"&Print", "&Erase Exam",  "&Done",
                                              "&Help",  "&Retake Exam", "&View Results"};
    for (int i = 0; i < 6; ++i) {
        Command1[i] = new QPushButton(QString::fromLatin1(captions[i]));
        NameControl(Command1[i], "Command1", i, Command1[i]->text().remove(QLatin1Char('&')));
        Command1[i]->setAutoDefault(false);
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
    }
    auto* commands = new QVBoxLayout;
    for (int i : CommandOrder)
        commands->addWidget(Command1[i]);
    commands->addStretch(1);
    return commands;
}

// The heads stand over their columns in whatever size the list's font has.
void Scoring::alignHeads() {
    const std::array<QLabel*, 9> heads = {Label1[0], Label1[1], Label1[2], Label1[3], Label1[4],
                                          Label1[5], Label1[6], Label1[7], Label1[11]};
    AlignColumnHeads(m_heads, heads, HeadPlaces, List1, RowColumns);
    Label1[10]->setIndent(ColumnOffset(List1, TotalsIndent));
}

} // namespace tessera
