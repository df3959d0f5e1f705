#include "exam/exam_test.h"

#include "core/picture_window.h"
#include "core/run_journal.h"
#include "core/screen_colours.h"
#include "core/session_state.h"
#include "exam/exam_end.h"
#include "platform/clock.h"
#include "platform/fixed_pitch_font.h"
#include "platform/rich_text_view.h"
#include "platform/windows1252.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace tessera {

ExamTest::ExamTest(ScreenContext& context)
    : m_context(context),
      m_session(context.state, context.services.clock, context.services.random) {
    setObjectName(QStringLiteral("ExamTest"));
    m_context.screens.setNavigationEnabled(false);
    buildControls();
    m_session.open();
    showSession();
    wireControls();
    Timer1->start();
    Timer1_Timer();
}

void ExamTest::wireControls() {
    for (int i = 0; i < ExamCommandCount; ++i) {
        if (Command1[i] != nullptr) {
            connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
            Command1[i]->installEventFilter(this);
        }
    }
    for (int index = 0; index < 2; ++index) {
        QListWidget* list = List1[index];
        list->installEventFilter(this);
        connect(list, &QListWidget::currentRowChanged, this, [this, index](int row) {
            if (!m_showing && row >= 0) {
                m_session.selectRow(index, row);
                showSession();
                journal();
            }
        });
        // A click on the row that is selected already, in the list that is not active.
        connect(list, &QListWidget::itemClicked, this, [this, index, list](QListWidgetItem* item) {
            const int row = list->row(item);
            if (m_session.activeList() != index || m_session.list(index).selected != row) {
                m_session.selectRow(index, row);
                showSession();
                journal();
            }
        });
    }
    RichTextBox1->installEventFilter(this);
    connect(Timer1, &QTimer::timeout, this, &ExamTest::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &ExamTest::Timer2_Timer);
}

void ExamTest::journal() {
    // What a break would save, after every answer, so that a crash costs no more than one.
    if (m_session.list(AnsweredList).rows() > 0) {
        JournalExam(m_context.state, m_context.services.clock.now());
    }
}

void ExamTest::Command1_Click(int index) {
    switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
        m_session.pressAnswer(index);
        break;
    case NextCommand:
        m_session.pressNext();
        break;
    case PreviousCommand:
        m_session.pressPrevious();
        break;
    case BreakCommand:
        close();
        return;
    case FinishedCommand:
        if (m_session.pressFinished(m_context.services.dialogs)) {
            close();
        }
        return;
    case 9:
        m_context.screens.openHelp(m_context.state, HelpTopic::ExamTest);
        return;
    case UnsureCommand:
        m_session.pressUnsure();
        break;
    case 11:
        if (QWidget* calculator = m_context.screens.show(ScreenName::Calculator)) {
            calculator->showNormal();
        }
        return;
    case PictureCommand:
        showPicture();
        return;
    default:
        return;
    }
    showSession();
    journal();
    if (m_session.closeRequested()) {
        close();
    }
}

void ExamTest::Timer1_Timer() {
    m_session.tick();
    showSession();
    if (!m_session.clockRunning()) {
        Timer1->stop();
    }
}

void ExamTest::Timer2_Timer() {
    m_session.blink();
    showSession();
}

void ExamTest::showSession() {
    m_showing = true;
    setWindowTitle(fromWindows1252(m_session.windowCaption()));
    for (int i = 0; i < ExamCommandCount; ++i) {
        if (Command1[i] != nullptr) {
            Command1[i]->setEnabled(m_session.enabled(i));
        }
    }
    Command1[PreviousCommand]->setText(fromWindows1252(m_session.previousCaption()));
    Command1[BreakCommand]->setText(fromWindows1252(m_session.breakCaption()));
    Command1[9]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    Command1[11]->setEnabled(m_context.screens.isAvailable(ScreenName::Calculator));
    showLists();
    Label1[0]->setText(fromWindows1252(m_session.answerLabel()));
    Label1[1]->setText(fromWindows1252(m_session.timeLabel()));
    const QColor red = ReadableOn(ColourOf(0x0000FF), Label1[1]->palette().color(QPalette::Window));
    Label1[1]->setStyleSheet(m_session.timeLabelRed() ? QStringLiteral("color: %1;").arg(red.name())
                                                      : QString());
    ProgressBar1->setValue(m_session.progress());
    showItemText();
    // Shape1: a red frame around "&Finished"; its border style 6 is the dark half of the blink.
    const bool solid = m_session.frameShown() && m_session.frameBorderStyle() == 1;
    const bool shown = m_session.frameShown();
    Shape1->setStyleSheet(shown ? (solid ? QStringLiteral("#Shape1 { border: 3px solid #ff0000; }")
                                         : QStringLiteral("#Shape1 { border: 3px solid #800000; }"))
                                : QStringLiteral("#Shape1 { border: 3px solid transparent; }"));
    if (m_session.blinking() && !Timer2->isActive()) {
        Timer2->start();
    }
    if (m_session.itemShowings() != m_picturesShown) {
        m_picturesShown = m_session.itemShowings();
        if (m_session.pictureEntry() != 0) {
            showPicture();
        } else {
            m_context.screens.unload(ScreenName::PictForm);
        }
    }
    applyFocus();
    m_showing = false;
}

void ExamTest::showLists() {
    static const QColor LightGreen(0x90, 0xee, 0x90); // colour 10 of the sixteen, softened
    static const QColor Grey(0xc0, 0xc0, 0xc0);       // colour 7
    for (int index = 0; index < 2; ++index) {
        QListWidget* list = List1[index];
        const ExamList& rows = m_session.list(index);
        if (list->count() != rows.rows()) {
            list->clear();
            for (int r = 0; r < rows.rows(); ++r) {
                list->addItem(fromWindows1252(m_session.rowText(index, r)));
            }
        } else {
            for (int r = 0; r < rows.rows(); ++r) {
                const QString text = fromWindows1252(m_session.rowText(index, r));
                if (list->item(r)->text() != text) {
                    list->item(r)->setText(text);
                }
            }
        }
        list->setCurrentRow(rows.selected);
        if (rows.selected >= 0) {
            list->scrollToItem(list->item(rows.selected));
        }
        list->setEnabled(rows.enabled);
        QPalette palette = list->palette();
        palette.setColor(QPalette::Base, m_session.greenList() == index ? LightGreen : Grey);
        palette.setColor(QPalette::Text, Qt::black);
        list->setPalette(palette);
    }
    Frame1->setTitle(fromWindows1252(m_session.countsCaption()));
}

void ExamTest::showItemText() {
    if (m_session.itemRtf() == m_shownRtf) {
        return;
    }
    m_shownRtf = m_session.itemRtf();
    if (m_shownRtf.empty()) {
        // m_item keeps the last question: a resize after time runs out puts it back.
        RichTextBox1->clear();
        return;
    }
    m_item = RtfVersions::of(m_shownRtf);
    RichTextBox1->setTextRtf(m_item.forWindow(isMaximized()));
}

void ExamTest::showPicture() {
    const int entry = m_session.pictureEntry();
    if (entry == 0) {
        return;
    }
    const PictureEntry picture = parsePictureEntry(m_context.state.catalogue.PictureItems[entry]);
    ShowPicture(m_context.screens, picture.width, picture.height,
                QString::fromStdString(picture.fileName()));
}

void ExamTest::applyFocus() {
    switch (m_session.takeFocus()) {
    case ExamFocus::Next:
        Command1[NextCommand]->setFocus();
        break;
    case ExamFocus::Previous:
        Command1[PreviousCommand]->setFocus();
        break;
    case ExamFocus::Finished:
        Command1[FinishedCommand]->setFocus();
        break;
    case ExamFocus::Text:
        RichTextBox1->setFocus();
        break;
    case ExamFocus::Unchanged:
        break;
    }
}

void ExamTest::changeEvent(QEvent* event) {
    // Form_Resize: the large version while maximised.
    if (event->type() == QEvent::WindowStateChange && !m_item.normal.empty()) {
        RichTextBox1->setTextRtf(m_item.forWindow(isMaximized()));
    }
    QWidget::changeEvent(event);
}

void ExamTest::resizeEvent(QResizeEvent* event) {
    // Form_Resize also refills a text that time running out emptied.
    if (!m_item.normal.empty() && RichTextBox1->document()->isEmpty()) {
        RichTextBox1->setTextRtf(m_item.forWindow(isMaximized()));
    }
    QWidget::resizeEvent(event);
}

bool ExamTest::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const QString text = key->text();
    const bool onList = watched == List1[0] || watched == List1[1];
    const bool onText = watched == RichTextBox1;
    if (text.size() == 1 && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        const KeySource source =
            onList ? KeySource::List : (onText ? KeySource::Text : KeySource::Button);
        const int choice = m_session.answerForKey(text.at(0).toLatin1(), source);
        if (choice >= 0) {
            Command1_Click(choice);
            return true;
        }
        // Any other character is swallowed on the buttons and the lists. Space presses the
        // focused button itself; Enter is pressed through the application's key filter.
        const QChar c = text.at(0);
        if (!onText && c.isPrint() && (onList || c != QLatin1Char(' '))) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ExamTest::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
}

void ExamTest::Form_Unload() {
    if (m_unloaded) {
        return;
    }
    m_unloaded = true;
    m_session.beginClosing();
    Timer1->stop();
    Timer2->stop();
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::PictForm);
    screens.handBackNavigation(*this);
    const int committed = m_session.list(AnsweredList).rows();
    const ExamEndOutcome end = EndExam(m_context.state, m_session.examFinished(), committed,
                                       m_context.services.clock.now(), m_context.services.dialogs,
                                       [&screens] { screens.refreshNavigation(); });
    // An exam that could not be saved keeps its journal for the next start.
    if (end.saved || committed == 0) {
        DropJournal();
    }
    if (end.showResults) {
        screens.unload(ScreenName::Results);
        screens.show(ScreenName::Results);
    }
}

} // namespace tessera
