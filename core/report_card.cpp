#include "core/report_card.h"

#include "core/progress_file.h"
#include "platform/control_names.h"
#include "platform/dialogs.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessera {

ReportCard::ReportCard(ScreenContext& context, Design design, std::vector<QLabel*> heads,
                       QLabel* totals, QLabel* topic, const std::vector<QLabel*>& notes)
    : m_context(context), m_design(std::move(design)), m_heads(std::move(heads)), m_totals(totals),
      m_topic(topic) {
    m_context.screens.setNavigationEnabled(false);
    setWindowTitle(QString::fromLatin1(m_design.caption));
    buildLayout(notes);
}

void ReportCard::buildLayout(const std::vector<QLabel*>& notes) {
    m_headStrip = new QWidget;
    for (size_t i = 0; i < m_heads.size(); ++i) {
        m_heads[i]->setParent(m_headStrip);
        SetColumnHead(m_heads[i], m_design.headPlaces[i]);
    }
    List1 = new QListWidget;
    NameControl(List1, QStringLiteral("List1"), QString::fromLatin1(m_design.caption));
    List1->setFont(FixedPitchFont());
    connect(List1, &QListWidget::currentRowChanged, this,
            [this](int row) { List1_Click(row + 1); });
    m_totals->setFont(FixedPitchFont());
    m_totals->setTextInteractionFlags(Qt::TextSelectableByMouse);

    Frame1 =
        MakeOptionFrame(QStringLiteral("Sort List By:"), "Option1", m_design.sortCaptions, Option1);
    NameControl(Frame1, QStringLiteral("Frame1"), QStringLiteral("Sort List By:"));
    Frame2 =
        MakeOptionFrame(QStringLiteral("Include"), "Option2", m_design.includeCaptions, Option2);
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

    Command1.resize(static_cast<size_t>(m_design.commandCaptions.size()));
    auto* commands = new QVBoxLayout;
    for (int i : m_design.commandOrder) {
        auto* button = MakeCommand("Command1", i, m_design.commandCaptions[i]);
        connect(button, &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        commands->addWidget(button);
        Command1[static_cast<size_t>(i)] = button;
    }
    commands->addStretch(1);
    Command1[HelpCommand]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));

    auto* left = new QVBoxLayout;
    left->addWidget(m_topic);
    for (QLabel* note : notes) {
        note->setWordWrap(true);
        left->addWidget(note);
    }
    left->addStretch(1);
    auto* below = new QHBoxLayout;
    below->addLayout(left, 1);
    below->addWidget(Frame1);
    below->addWidget(Frame2);
    below->addLayout(commands);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_headStrip);
    layout->addWidget(List1, 1);
    layout->addWidget(m_totals);
    layout->addLayout(below);
    alignHeads();
}

// The heads stand over their columns in whatever size the list's font has.
void ReportCard::alignHeads() {
    AlignColumnHeads(m_headStrip, m_heads, m_design.headPlaces, List1, m_design.rowColumns);
    m_totals->setIndent(ColumnOffset(List1, m_design.totalsIndent));
}

void ReportCard::showLoadedRows() {
    FillList();
    if (rowCount() > 0) {
        Option1[0]->setChecked(true);
        List1->setCurrentRow(0);
    } else {
        for (int i : m_design.rowCommands)
            Command1[static_cast<size_t>(i)]->setEnabled(false);
        Frame2->setEnabled(false);
        Frame1->setEnabled(false);
    }
    if (m_context.state.PrinterProblem)
        Command1[PrintCommand]->setEnabled(false);
}

void ReportCard::FillList() {
    List1->clear();
    for (int row = 1; row <= rowCount(); ++row)
        List1->addItem(rowText(row));
    m_totals->setText(totalsText());
    if (rowCount() == 0) {
        m_topic->setText(topicText(0));
        Command1[RetakeCommand]->setEnabled(false);
    }
}

int ReportCard::selectedRow() const {
    const int row = List1->currentRow() + 1;
    return row >= 1 && row <= rowCount() ? row : 0;
}

int ReportCard::chosenChoice() const {
    for (int i = 0; i < 3; ++i) {
        if (Option2[i]->isChecked())
            return i;
    }
    return -1;
}

void ReportCard::List1_Click(int row) {
    if (row < 1 || row > rowCount())
        return;
    m_topic->setText(topicText(row));
    const std::array<bool, 3> offered = offeredChoices(row);
    for (int i = 0; i < 3; ++i)
        Option2[i]->setEnabled(offered[i]);
    // A choice that the row does not allow cannot start a retake while it stays chosen.
    const int choice = chosenChoice();
    Command1[RetakeCommand]->setEnabled(choice >= 0 && offered[choice] &&
                                        m_context.screens.isAvailable(m_design.retakeScreen));
}

void ReportCard::Option1_Click(int index) {
    const int row = selectedRow();
    const int key = row != 0 ? rowKey(row) : 0;
    sortRows(index);
    FillList();
    for (int i = 1; i <= rowCount(); ++i) {
        if (rowKey(i) == key)
            List1->setCurrentRow(i - 1);
    }
}

void ReportCard::Option2_Click(int index) {
    if (Option2[index]->isEnabled())
        Command1[RetakeCommand]->setEnabled(m_context.screens.isAvailable(m_design.retakeScreen));
}

void ReportCard::Command1_Click(int index) {
    switch (index) {
    case PrintCommand:
        print();
        break;
    case EraseCommand:
        Erase();
        break;
    case DoneCommand:
        SaveChanges();
        m_context.screens.unload(m_design.screen);
        break;
    case HelpCommand:
        m_context.screens.openHelp(m_context.state, m_design.helpTopic);
        break;
    case RetakeCommand:
        Retake();
        break;
    default:
        break;
    }
}

// Only the rows in memory go; the file follows when the card is left and the candidate agrees.
void ReportCard::Erase() {
    const int row = selectedRow();
    if (row == 0)
        return;
    m_changed = true;
    const int next = eraseRow(row);
    FillList();
    if (next == 0) {
        for (int i : m_design.rowCommands)
            Command1[static_cast<size_t>(i)]->setEnabled(false);
        Frame2->setEnabled(false);
    } else {
        List1->setCurrentRow(next - 1);
    }
}

void ReportCard::SaveChanges() {
    if (!m_changed)
        return;
    m_changed = false;
    Dialogs& dialogs = m_context.services.dialogs;
    const MessageAnswer answer = dialogs.message(QStringLiteral("Save Changes to Report Card?"),
                                                 QString::fromLatin1(m_design.erasedTitle),
                                                 MessageIcon::Exclamation, MessageButtons::YesNo);
    if (answer == MessageAnswer::Yes && rewriteRows() == SaveStatus::FileFailed)
        dialogs.message(QStringLiteral("The report card could not be saved; the progress file "
                                       "keeps what it held before."),
                        QStringLiteral("Report Card Not Saved"), MessageIcon::Critical,
                        MessageButtons::Ok);
}

void ReportCard::Retake() {
    const int row = selectedRow();
    const int choice = chosenChoice();
    if (row == 0 || choice < 0)
        return;
    // The save may not move the rows: it writes them in the card's order.
    SaveChanges();
    buildRetake(row, choice);
    ScreenHost& screens = m_context.screens;
    screens.unload(m_design.screen);
    screens.chooseNoNavigationOption();
    if (m_design.retakeAfresh)
        screens.unload(m_design.retakeScreen);
    screens.show(m_design.retakeScreen);
}

void ReportCard::print() {
    // Cancel or a failing printer ends the command where it stands.
    const int row = List1->currentRow();
    if (!printRows())
        return;
    List1->setCurrentRow(row);
    Command1[DoneCommand]->setFocus();
}

void ReportCard::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && isMaximized()) {
        // Only a maximised window enlarges the figures; nothing sets them back.
        for (QWidget* figures : {static_cast<QWidget*>(List1), static_cast<QWidget*>(m_totals)}) {
            QFont font = figures->font();
            font.setPointSize(15);
            figures->setFont(font);
        }
        alignHeads();
    }
    QWidget::changeEvent(event);
}

// Closing the window past "&Done" drops any erasures. The application object keeps the
// window's place in its slot.
void ReportCard::closeEvent(QCloseEvent* event) {
    m_context.screens.handBackNavigation(*this);
    event->accept();
}

} // namespace tessera
