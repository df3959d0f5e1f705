#include "review/quiz_summ.h"

#include "core/progress_file.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "review/quiz_summ_print.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {

constexpr int HelpTopicOfCard = 6;

QString Text(const std::string& text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QuizSumm::QuizSumm(ScreenContext& context) : m_context(context) {
    SessionState& s = m_context.state;
    if (QWidget* menu = m_context.screens.find(ScreenName::ButtonMenu))
        menu->setEnabled(false);
    buildControls();
    if (s.WindowLeft[QuizSummSlot] != 0 || s.WindowTop[QuizSummSlot] != 0)
        move(s.WindowLeft[QuizSummSlot], s.WindowTop[QuizSummSlot]);

    m_rows = LoadCardRows(ReadReviewTestRecords());
    if (!m_rows.empty()) {
        FillList();
        Option1[0]->setChecked(true);
        selectRow(1);
    } else {
        FillList();
        for (int i : {0, 1, 4})
            Command1[i]->setEnabled(false);
        Frame1->setEnabled(false);
        Frame2->setEnabled(false);
    }
    if (s.PrinterProblem)
        Command1[0]->setEnabled(false);
}

void QuizSumm::FillList() {
    for (const CardRow& row : m_rows)
        List1->addItem(Text(CardRowText(row)));
    Label2->setText(Text(CardTotalsText(m_rows)));
    if (m_rows.empty()) {
        Label3->setText(QStringLiteral("Topic Number:"));
        Command1[4]->setEnabled(false);
    }
}

void QuizSumm::selectRow(int row) {
    List1->setCurrentRow(row - 1);
}

void QuizSumm::List1_Click(int row) {
    if (row < 1 || row > static_cast<int>(m_rows.size()))
        return;
    const SessionState& s = m_context.state;
    const CardRow& card = m_rows[static_cast<size_t>(row - 1)];
    const int t = card.record.Topic;
    const bool known = t >= 1 && t <= TopicCount;
    Label3->setText(Text(RelatedTopicText(t, known ? s.catalogue.TopicTitles[t] : "")));
    const auto offered =
        OfferedRetakes(card, known ? s.TakeCounts[t] : 0, known ? s.content.ItemCounts[t][1] : 0);
    for (int i = 0; i < 3; ++i)
        Option2[i]->setEnabled(offered[i]);
    // A choice that the row does not allow cannot start a retake while it stays selected.
    const int choice = selectedChoice();
    Command1[4]->setEnabled(choice >= 0 && offered[choice] && retakePossible());
}

void QuizSumm::Option1_Click(int index) {
    const int row = List1->currentRow();
    const int key = row >= 0 ? m_rows[static_cast<size_t>(row)].key : 0;
    SortCardRows(m_rows, static_cast<CardSort>(index));
    List1->clear();
    FillList();
    for (size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].key == key)
            selectRow(static_cast<int>(i) + 1);
    }
}

void QuizSumm::Option2_Click(int index) {
    if (Option2[index]->isEnabled())
        Command1[4]->setEnabled(retakePossible());
}

// A build without the review test screen cannot start one.
bool QuizSumm::retakePossible() const {
    return m_context.screens.isAvailable(ScreenName::Quiz800);
}

int QuizSumm::selectedChoice() const {
    for (int i = 0; i < 3; ++i) {
        if (Option2[i]->isChecked())
            return i;
    }
    return -1;
}

void QuizSumm::Command1_Click(int index) {
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0:
        printCard();
        break;
    case 1:
        EraseTest();
        break;
    case 2:
        OfferToSave();
        screens.unload(ScreenName::QuizSumm);
        break;
    case 3:
        screens.unload(ScreenName::Help);
        m_context.state.HelpTopic = HelpTopicOfCard;
        if (QWidget* help = screens.show(ScreenName::Help))
            help->showNormal();
        break;
    case 4:
        Retake();
        break;
    default:
        break;
    }
}

void QuizSumm::EraseTest() {
    const int row = List1->currentRow() + 1;
    if (row < 1)
        return;
    CardChanged = true;
    const int next = EraseCardRow(m_rows, row);
    List1->clear();
    FillList();
    if (next == 0) {
        Command1[0]->setEnabled(false);
        Command1[1]->setEnabled(false);
        Frame2->setEnabled(false);
    } else {
        selectRow(next);
    }
}

// Erasures reach the file only here, when the card is left by "&Done" or "&Retake".
void QuizSumm::OfferToSave() {
    if (!CardChanged)
        return;
    CardChanged = false;
    const MessageAnswer answer = m_context.services.dialogs.message(
        QStringLiteral("Save Changes to Report Card?"), QStringLiteral("Data Erased!"),
        MessageIcon::Exclamation, MessageButtons::YesNo);
    if (answer == MessageAnswer::Yes)
        RewriteProgressFile(m_context.state, KeptRecords(m_rows), m_context.services.clock.now());
}

void QuizSumm::Retake() {
    const int row = List1->currentRow();
    const int choice = selectedChoice();
    if (row < 0 || choice < 0)
        return;
    OfferToSave();
    BuildCardRetake(m_context.state, m_rows[static_cast<size_t>(row)],
                    static_cast<RetakeChoice>(choice));
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::QuizSumm);
    if (QWidget* menu = screens.find(ScreenName::ButtonMenu)) {
        if (auto* none = menu->findChild<QRadioButton*>(QStringLiteral("Option1_6")))
            none->click();
    }
    screens.show(ScreenName::Quiz800);
}

void QuizSumm::printCard() {
    const int row = List1->currentRow();
    ReviewCardPrint card;
    card.caption = windowTitle();
    for (int i = 0; i < List1->count(); ++i)
        card.rows << List1->item(i)->text();
    card.totals = Label2->text();
    card.fontName = Text(m_context.state.PrintFontName);
    PrintReviewCard(m_context.services.printer, card);
    List1->setCurrentRow(row);
    Command1[2]->setFocus();
}

void QuizSumm::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && isMaximized()) {
        // Only a maximised window enlarges the figures; nothing sets them back.
        for (QWidget* figures : {static_cast<QWidget*>(List1), static_cast<QWidget*>(Label2)}) {
            QFont font = figures->font();
            font.setPointSize(15);
            figures->setFont(font);
        }
        alignHeads();
    }
    QWidget::changeEvent(event);
}

void QuizSumm::closeEvent(QCloseEvent* event) {
    SessionState& s = m_context.state;
    if (isMinimized())
        showNormal();
    s.WindowLeft[QuizSummSlot] = static_cast<int16_t>(pos().x());
    s.WindowTop[QuizSummSlot] = static_cast<int16_t>(pos().y());
    if (QWidget* menu = m_context.screens.find(ScreenName::ButtonMenu)) {
        menu->setEnabled(true);
        if (menu->isMinimized())
            menu->showNormal();
    }
    event->accept();
}

} // namespace tessera
