// QuizSumm's controls: heads over the list, the list and its totals, the two frames of options
// and the row of commands. The window scales them through its layouts.

#include "platform/card_layout.h"
#include "platform/control_names.h"
#include "review/quiz_summ.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tessera {

namespace {

constexpr std::array<ColumnHead, 8> HeadPlaces = {{
    {0, "", 0, "Test Type"},
    {21, "Date", 20, "Taken"},
    {26, "Percent", 26, "Correct"},
    {34, "Questions", 35, "Asked"},
    {45, "Wild", 42, "Guesses"},
    {54, "Tries", 54, "Ratio"},
    {60, "Scrambled", 62, "Order"},
    {70, "Time Used", 72, "(h:m:s)"},
}};
// Label2's figures start this many characters to the right of the rows' own.
constexpr int TotalsIndent = 15;

} // namespace

void QuizSumm::buildControls() {
    setObjectName(QStringLiteral("QuizSumm"));
    setWindowTitle(QStringLiteral("Review Test Scoring Report Card"));

    const QStringList heads = {
        QStringLiteral("Test Type"),       QStringLiteral("Date Taken"),
        QStringLiteral("Percent Correct"), QStringLiteral("Questions Asked"),
        QStringLiteral("Wild Guesses"),    QStringLiteral("Tries Ratio"),
        QStringLiteral("Scrambled Order"), QStringLiteral("Time Used (h:m:s)")};
    m_heads = new QWidget;
    for (int i = 0; i < 8; ++i) {
        Label1[i] = new QLabel(m_heads);
        NameControl(Label1[i], "Label1", i, heads[i]);
        SetColumnHead(Label1[i], HeadPlaces[static_cast<size_t>(i)]);
    }

    List1 = new QListWidget;
    NameControl(List1, QStringLiteral("List1"), QStringLiteral("Review tests"));
    List1->setFont(FixedPitchFont());
    List1->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(List1, &QListWidget::currentRowChanged, this,
            [this](int row) { List1_Click(row + 1); });

    Label2 = new QLabel(QStringLiteral("Total:"));
    NameControl(Label2, QStringLiteral("Label2"), QStringLiteral("Totals"));
    Label2->setFont(FixedPitchFont());
    Label2->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Label3 = new QLabel(QStringLiteral("Topic Number:"));
    NameControl(Label3, QStringLiteral("Label3"), QStringLiteral("Topic of the selected test"));
    auto* label4 = new QLabel(
        QStringLiteral("Note: You may take three complete drills of any topic review test."));
    NameControl(label4, QStringLiteral("Label4"), label4->text());
    label4->setWordWrap(true);

    Frame1 = MakeOptionFrame(QStringLiteral("Sort List By:"), "Option1",
                             {QStringLiteral("Earliest &Date Taken"),
                              QStringLiteral("&Latest Date Taken"),
                              QStringLiteral("Percent &Correct"), QStringLiteral("&Topic Sequence"),
                              QStringLiteral("Percent &Wild Guesses")},
                             Option1);
    NameControl(Frame1, QStringLiteral("Frame1"), QStringLiteral("Sort List By"));
    Frame2 = MakeOptionFrame(QStringLiteral("Include"), "Option2",
                             {QStringLiteral("&All Questions"), QStringLiteral("&Missed Questions"),
                              QStringLiteral("Wild &Guesses")},
                             Option2);
    NameControl(Frame2, QStringLiteral("Frame2"), QStringLiteral("Include in a retake"));
    Option2[0]->setChecked(true);
    for (int i = 0; i < 5; ++i) {
        connect(Option1[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                Option1_Click(i);
        });
    }
    for (int i = 0; i < 3; ++i)
        connect(Option2[i], &QRadioButton::clicked, this, [this, i] { Option2_Click(i); });

    const std::array<const char*, 5> captions{"&Print", "&Erase Test", "&Done", "&Help", "&Retake"};
    auto* commands = new QVBoxLayout;
    for (int i = 0; i < 5; ++i) {
        Command1[i] = new QPushButton(QString::fromLatin1(captions[i]));
        NameControl(Command1[i], "Command1", i, Command1[i]->text().remove(QLatin1Char('&')));
        Command1[i]->setAutoDefault(false);
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        commands->addWidget(Command1[i]);
    }
    commands->addStretch(1);
    Command1[3]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));

    auto* below = new QHBoxLayout;
    auto* notes = new QVBoxLayout;
    notes->addWidget(Label3);
    notes->addWidget(label4);
    notes->addStretch(1);
    below->addLayout(notes, 1);
    below->addWidget(Frame1);
    below->addWidget(Frame2);
    below->addLayout(commands);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_heads);
    layout->addWidget(List1, 1);
    layout->addWidget(Label2);
    layout->addLayout(below);
    alignHeads();
    resize(760, 520);
}

// The heads stand over their columns in whatever size the list's font has.
void QuizSumm::alignHeads() {
    AlignColumnHeads(m_heads, Label1, HeadPlaces, List1, 80);
    Label2->setIndent(ColumnOffset(List1, TotalsIndent));
}

} // namespace tessera
