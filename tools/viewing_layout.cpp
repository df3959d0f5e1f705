#include "platform/control_names.h"
#include "platform/rich_text_view.h"
#include "platform/text_frame.h"
#include "platform/twips.h"
#include "tools/viewing.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessera {
void Viewing::buildControls() {
    Label1 = new QLabel;
    NameControl(Label1, "Label1", -1, {});
    QFont heading = Label1->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.2);
    Label1->setFont(heading);

    Shape1 = new TextFrame;
    RichTextBox2 = MakeReadOnlyView("RichTextBox2", QStringLiteral("Term"));
    RichTextBox1 = MakeReadOnlyView("RichTextBox1", QStringLiteral("Text"));
    auto* frameLayout = new QVBoxLayout(Shape1);
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->addWidget(RichTextBox2);
    frameLayout->addWidget(RichTextBox1, 1);
    Shape1->follow(RichTextBox1);
    Shape1->follow(RichTextBox2);

    List1 = new QListWidget;
    NameControl(List1, "List1", -1, QStringLiteral("Terms"));
    // Its designed height is what the window gives it at the opening size; on a small display
    // it yields some, so that the glossary still fits.
    List1->setMinimumSize(6750 / TwipsPerPixel, 3700 / TwipsPerPixel / 2);

    const std::array<const char*, 7> captions = {"&Print",     "N&otebook", "&Done", "&Help",
                                                 "&Find Next", "&Cancel",   "&Find"};
    for (int i = 0; i < 7; ++i) {
        Command1[i] = MakeCommand("Command1", i, QString::fromLatin1(captions[i]));
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
    }
    auto* commands = new QHBoxLayout;
    for (int i : {6, 0, 1, 3, 2})
        commands->addWidget(Command1[i]);
    commands->insertStretch(1, 1);

    buildLetterButtons();
    buildFindPanel();

    auto* lower = new QHBoxLayout;
    lower->addWidget(List1, 3);
    lower->addWidget(Frame1, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addWidget(Shape1, 1);
    layout->addWidget(Frame2);
    layout->addLayout(lower);
    layout->addLayout(commands);
}

void Viewing::buildLetterButtons() {
    Frame2 = new QGroupBox;
    NameControl(Frame2, "Frame2", -1, QStringLiteral("Jump to a letter"));
    auto* grid = new QGridLayout(Frame2);
    grid->setSpacing(2);
    for (int i = 0; i < LetterCount; ++i) {
        const QChar letter(QLatin1Char(static_cast<char>('A' + i)));
        Command3[i] =
            MakeCommand("Command3", i, QString(letter), QStringLiteral("Letter %1").arg(letter));
        Command3[i]->setEnabled(false);
        Command3[i]->setMinimumWidth(Command3[i]->fontMetrics().horizontalAdvance(letter) * 3);
        Command3[i]->installEventFilter(this);
        connect(Command3[i], &QPushButton::clicked, this, [this, i] { Command3_Click(i); });
        grid->addWidget(Command3[i], i / 13, i % 13);
    }
}

void Viewing::buildFindPanel() {
    Frame1 = new QGroupBox(QStringLiteral("Find What?"));
    NameControl(Frame1, "Frame1", -1, QStringLiteral("Find What?"));
    Text2 = new QLineEdit;
    NameControl(Text2, "Text2", -1, QStringLiteral("Find what"));
    Check1 = new QCheckBox(QStringLiteral("Match Case"));
    NameControl(Check1, "Check1", -1, QStringLiteral("Match Case"));
    const std::array<const char*, 3> options = {"Search Terms", "Search Definitions",
                                                "Search Both"};
    auto* panel = new QVBoxLayout;
    panel->addWidget(Text2);
    panel->addWidget(Check1);
    for (int i = 0; i < 3; ++i) {
        Option1[i] = new QRadioButton(QString::fromLatin1(options[i]));
        NameControl(Option1[i], "Option1", i, Option1[i]->text());
        panel->addWidget(Option1[i]);
    }
    Option1[0]->setChecked(true);
    connect(Text2, &QLineEdit::textChanged, this,
            [this](const QString& text) { Command1[4]->setEnabled(!text.isEmpty()); });
    // Enter in the box presses Find Next.
    connect(Text2, &QLineEdit::returnPressed, this, [this] {
        if (Command1[4]->isEnabled())
            Command1[4]->click();
    });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command1[4]);
    buttons->addWidget(Command1[5]);
    panel->addLayout(buttons);
    panel->addStretch(1);
    Frame1->setLayout(panel);
    Frame1->hide();
}

} // namespace tessera
