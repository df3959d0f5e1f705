#include "reports/scoring.h"

#include "core/progress_file.h"
#include "platform/card_print.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/windows1252.h"
#include "reports/scoring_print.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {

constexpr int16_t HelpTopicOfCard = 13;

} // namespace

Scoring::Scoring(ScreenContext& context) : m_context(context) {
    setNavigationEnabled(false);
    buildControls();
    m_rows = LoadScoringRows(ReadExamRecords());
    FillExamList();
    if (!m_rows.empty()) {
        Option1[0]->setChecked(true);
        selectRow(1);
    } else {
        for (int i : {0, 1, 4, 5})
            Command1[i]->setEnabled(false);
        Frame2->setEnabled(false);
        Frame1->setEnabled(false);
    }
    if (m_context.state.PrinterProblem)
        Command1[0]->setEnabled(false);
    Command1[3]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
}

void Scoring::FillExamList() {
    List1->clear();
    for (const ScoringRow& row : m_rows)
        List1->addItem(fromWindows1252(ScoringRowText(row)));
    Label1[10]->setText(fromWindows1252(ScoringTotalsText(m_rows)));
    if (m_rows.empty()) {
        Label1[8]->setText(fromWindows1252(TopicsCoveredText(nullptr)));
        Command1[4]->setEnabled(false);
    }
}

void Scoring::selectRow(int row) {
    List1->setCurrentRow(row - 1);
}

const ScoringRow* Scoring::selectedRow() const {
    const int row = List1->currentRow();
    return row >= 0 && row < static_cast<int>(m_rows.size()) ? &m_rows[static_cast<size_t>(row)]
                                                             : nullptr;
}

int Scoring::chosenRetake() const {
    for (int i = 0; i < 3; ++i) {
        if (Option2[i]->isChecked())
            return i;
    }
    return -1;
}

void Scoring::List1_Click(int row) {
    if (row < 1 || row > static_cast<int>(m_rows.size()))
        return;
    const SessionState& s = m_context.state;
    const ScoringRow& card = m_rows[static_cast<size_t>(row - 1)];
    Label1[8]->setText(fromWindows1252(TopicsCoveredText(&card)));
    const int kind = card.record.Kind;
    const int exam = kind - 9;
    const int fullLength = exam < 3 ? s.content.ItemCounts[exam][2] : 0;
    const auto offered = OfferedExamRetakes(card, s.TakeCounts[kind], fullLength);
    for (int i = 0; i < 3; ++i)
        Option2[i]->setEnabled(offered[i]);
    // A choice that the row blocks cannot start a retake while it stays chosen.
    const int choice = chosenRetake();
    Command1[4]->setEnabled(choice >= 0 && offered[choice] &&
                            m_context.screens.isAvailable(ScreenName::ExamTest));
}

void Scoring::Option1_Click(int index) {
    const ScoringRow* selected = selectedRow();
    const int loaded = selected != nullptr ? selected->loaded : 0;
    SortScoringRows(m_rows, static_cast<ScoringSort>(index));
    FillExamList();
    for (size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].loaded == loaded)
            selectRow(static_cast<int>(i) + 1);
    }
}

void Scoring::Option2_Click(int index) {
    if (Option2[index]->isEnabled())
        Command1[4]->setEnabled(m_context.screens.isAvailable(ScreenName::ExamTest));
}

void Scoring::Command1_Click(int index) {
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0:
        printCard();
        break;
    case 1:
        EraseExam();
        break;
    case 2:
        if (ReportChanged)
            SaveChanges();
        screens.unload(ScreenName::Scoring);
        break;
    case 3:
        screens.unload(ScreenName::Help);
        m_context.state.HelpTopic = HelpTopicOfCard;
        if (QWidget* help = screens.show(ScreenName::Help))
            help->showNormal();
        break;
    case 4:
        RetakeExam();
        break;
    case 5:
        ViewResults();
        break;
    default:
        break;
    }
}

void Scoring::EraseExam() {
    const int row = List1->currentRow() + 1;
    if (row < 1)
        return;
    ReportChanged = true;
    const int next = EraseScoringRow(m_rows, row);
    FillExamList();
    if (next == 0) {
        for (int i : {0, 1, 4, 5})
            Command1[i]->setEnabled(false);
        Frame2->setEnabled(false);
    } else {
        selectRow(next);
    }
}

// Erasures reach the file only here, when the card is left by "&Done", "&Retake Exam" or
// "&View Results"; the question comes once, whatever the answer.
void Scoring::SaveChanges() {
    ReportChanged = false;
    Dialogs& dialogs = m_context.services.dialogs;
    const MessageAnswer answer = dialogs.message(QStringLiteral("Save Changes to Report Card?"),
                                                 QStringLiteral("Exam Data Erased!"),
                                                 MessageIcon::Exclamation, MessageButtons::YesNo);
    if (answer != MessageAnswer::Yes)
        return;
    if (RewriteProgressFile(m_context.state, KeptExamRecords(m_rows),
                            m_context.services.clock.now()) == SaveStatus::FileFailed)
        dialogs.message(QStringLiteral("The report card could not be saved; the progress file "
                                       "keeps the exams it had."),
                        QStringLiteral("Report Card Not Saved"), MessageIcon::Critical,
                        MessageButtons::Ok);
}

void Scoring::ViewResults() {
    const ScoringRow* row = selectedRow();
    if (row == nullptr)
        return;
    const ScoringRow chosen = *row;
    if (ReportChanged)
        SaveChanges();
    LoadStoredExam(m_context.state, chosen);
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::Scoring);
    screens.unload(ScreenName::Results);
    screens.show(ScreenName::Results);
}

void Scoring::RetakeExam() {
    const ScoringRow* row = selectedRow();
    const int choice = chosenRetake();
    if (row == nullptr || choice < 0)
        return;
    const ScoringRow chosen = *row;
    if (ReportChanged)
        SaveChanges();
    BuildExamRetake(m_context.state, chosen, static_cast<ExamRetake>(choice));
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::Scoring);
    if (QWidget* menu = screens.find(ScreenName::ButtonMenu)) {
        if (auto* none = menu->findChild<QRadioButton*>(QStringLiteral("Option1_6")))
            none->click();
    }
    screens.unload(ScreenName::ExamTest);
    screens.show(ScreenName::ExamTest);
}

void Scoring::printCard() {
    const int row = List1->currentRow();
    PrintCard(m_context.services.printer, ScoringPaper(m_rows, m_context.state.PrintFontName));
    List1->setCurrentRow(row);
    Command1[2]->setFocus();
}

// The navigation screen waits while the card is open; on closing it comes back, restored if
// it was minimised.
void Scoring::setNavigationEnabled(bool enabled) {
    QWidget* menu = m_context.screens.find(ScreenName::ButtonMenu);
    if (menu == nullptr)
        return;
    menu->setEnabled(enabled);
    if (enabled && menu->isMinimized())
        menu->showNormal();
}

void Scoring::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && isMaximized()) {
        // Only a maximised window enlarges the figures; nothing sets them back.
        for (QWidget* figures : {static_cast<QWidget*>(List1), static_cast<QWidget*>(Label1[10])}) {
            QFont font = figures->font();
            font.setPointSize(15);
            figures->setFont(font);
        }
        alignHeads();
    }
    QWidget::changeEvent(event);
}

// Closing the window past "&Done" drops any erasures; the application object keeps the
// window's place in slot 14.
void Scoring::closeEvent(QCloseEvent* event) {
    if (isMinimized())
        showNormal();
    setNavigationEnabled(true);
    event->accept();
}

} // namespace tessera
