#include "exam/results.h"

#include "core/picture_window.h"
#include "core/session_state.h"
#include "exam/exam_format.h"
#include "exam/exam_items.h"
#include "exam/results_print.h"
#include "platform/clock.h"
#include "platform/control_names.h"
#include "platform/dialogs.h"
#include "platform/fixed_pitch_font.h"
#include "platform/rich_text_view.h"
#include "platform/text_frame.h"
#include "platform/windows1252.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessera {

Results::Results(ScreenContext& context) : m_context(context) {
    setObjectName(QStringLiteral("Results"));
    m_context.screens.setNavigationEnabled(false);
    buildControls();
    SessionState& s = m_context.state;
    const ResultsTally tally = CountResults(s);
    m_summary = SummaryLines(tally, s.ExamItemCount, s.ExamElapsed);
    for (int i = 0; i < 6; ++i)
        Label1[i]->setText(fromWindows1252(m_summary[i]));
    fillList();
    connect(List1, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            ShowResultItem(row + 1);
        }
    });
    List1->setCurrentRow(0);
    if (List1->currentRow() == 0) {
        ShowResultItem(1);
    }
    Command1[0]->setEnabled(s.ExamScrambled);
    Command1[1]->setEnabled(!s.PrinterProblem);
    resize(780, 540);
}

void Results::buildControls() {
    auto* summary = new QGroupBox(QStringLiteral("Scoring Summary"));
    auto* summaryLayout = new QVBoxLayout(summary);
    for (int i = 0; i < 6; ++i) {
        Label1[i] = new QLabel;
        NameControl(Label1[i], "Label1", i, {});
        Label1[i]->setFont(FixedPitchFont());
        summaryLayout->addWidget(Label1[i]);
    }
    auto* answers = new QGroupBox(QStringLiteral("Answer: Correct  Yours"));
    auto* answersLayout = new QVBoxLayout(answers);
    List1 = new QListWidget;
    NameControl(List1, "List1", -1, QStringLiteral("Items with the correct answer and yours"));
    List1->setFont(FixedPitchFont());
    answersLayout->addWidget(List1);

    RichTextBox1 = new RichTextView;
    RichTextBox1->setCopyOnly(true);
    RichTextBox1->setReadOnly(true);
    NameControl(RichTextBox1, "RichTextBox1", -1, QStringLiteral("Question and explanation"));

    const std::array<const char*, 7> captions{"&Sort", "&Print",      "N&oteBook",    "&Help",
                                              "&Done", "C&alculator", "&View Picture"};
    auto* buttons = new QHBoxLayout;
    for (int i = 0; i < 7; ++i) {
        Command1[i] = MakeCommand("Command1", i, QString::fromLatin1(captions[i]));
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        buttons->addWidget(Command1[i]);
    }
    Command1[2]->setEnabled(m_context.screens.isAvailable(ScreenName::NoteBook));
    Command1[3]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    Command1[5]->setEnabled(m_context.screens.isAvailable(ScreenName::Calculator));

    auto* left = new QVBoxLayout;
    left->addWidget(summary);
    left->addWidget(answers, 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addWidget(TextFrame::around(RichTextBox1, "Shape2"), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(buttons);
    QWidget::setTabOrder(List1, RichTextBox1);
    QWidget::setTabOrder(RichTextBox1, Command1[0]);
}

void Results::fillList() {
    const SessionState& s = m_context.state;
    List1->clear();
    for (int p = 1; p <= s.ExamItemCount; ++p) {
        List1->addItem(fromWindows1252(
            ResultRowText(p, s.ExamKey[p], s.ExamAnswers[p], s.ExamUnsure[p] != 0)));
    }
}

void Results::ShowResultItem(int position) {
    const SessionState& s = m_context.state;
    m_item = RtfVersions::of(ExamExplainedRtf(s, position));
    RichTextBox1->setTextRtf(m_item.forWindow(isMaximized()));
    if (ExamItemPicture(s, position) != 0) {
        showPicture(position);
        Command1[6]->setEnabled(true);
    } else {
        m_context.screens.unload(ScreenName::PictForm);
        Command1[6]->setEnabled(false);
    }
    setWindowTitle(fromWindows1252(s.catalogue.ExamNames[s.ExamKind] + " Results, Item" +
                                   NumberText(position)));
}

void Results::showPicture(int position) {
    const int entry = ExamItemPicture(m_context.state, position);
    if (entry == 0) {
        return;
    }
    const PictureEntry picture = parsePictureEntry(m_context.state.catalogue.PictureItems[entry]);
    ShowPicture(m_context.screens, picture.width, picture.height,
                QString::fromStdString(picture.fileName()));
}

void Results::Command1_Click(int index) {
    SessionState& s = m_context.state;
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0: { // "&Sort": running order, once
        const int row = List1->currentRow();
        const int item = row >= 0 ? s.ExamItems[row + 1] : 0;
        SortResults(s);
        fillList();
        int found = 0;
        for (int p = 1; p <= s.ExamItemCount; ++p) {
            if (s.ExamItems[p] == item) {
                found = p - 1;
            }
        }
        List1->setCurrentRow(found);
        ShowResultItem(found + 1);
        Command1[0]->setEnabled(false);
        List1->setFocus();
        break;
    }
    case 1: // "&Print": once for each opening of the screen
        if (PrintResults(m_context.services.printer,
                         ResultsPrintOf(s, m_summary, m_context.services.clock.now()))) {
            Command1[1]->setEnabled(false);
            Command1[4]->setFocus();
        }
        break;
    case 2:
        if (QWidget* notebook = screens.show(ScreenName::NoteBook)) {
            notebook->showNormal();
        }
        break;
    case 3:
        screens.openHelp(s, HelpTopic::Results);
        break;
    case 4: {
        const auto answer = m_context.services.dialogs.message(
            fromWindows1252(DoneQuestion(s.ExamScore, s.catalogue.CrLf)),
            QStringLiteral("Caution..."), MessageIcon::None, MessageButtons::OkCancel);
        if (answer == MessageAnswer::Ok) {
            s.ExamPosition = 0;
            screens.unload(ScreenName::Results);
        }
        break;
    }
    case 5:
        if (QWidget* calculator = screens.show(ScreenName::Calculator)) {
            calculator->showNormal();
        }
        break;
    case 6:
        if (List1->currentRow() >= 0) {
            showPicture(List1->currentRow() + 1);
        }
        break;
    default:
        break;
    }
}

void Results::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && !m_item.normal.empty()) {
        RichTextBox1->setTextRtf(m_item.forWindow(isMaximized()));
    }
    QWidget::changeEvent(event);
}

void Results::closeEvent(QCloseEvent* event) {
    m_context.screens.unload(ScreenName::PictForm);
    m_context.screens.handBackNavigation(*this);
    event->accept();
}

} // namespace tessera
