#include "review/quiz800.h"

#include "core/screen_colours.h"
#include "platform/clock.h"
#include "platform/rich_text_view.h"
#include "platform/sound.h"
#include "review/item_scoring.h"
#include "review/review_gauge.h"
#include "review/review_test.h"
#include "review/review_text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include <cmath>

namespace tessera {

namespace {

QString shown(const std::string& text) {
    // The system breaks lines with CR LF; a label wants plain line feeds.
    QString line = QString::fromLatin1(text);
    line.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return line;
}

} // namespace

Quiz800::Quiz800(ScreenContext& context)
    : m_context(context), m_state(context.state), m_session(context.state, context.services) {
    buildControls();
    if (!m_state.IncludeProgressReport)
        m_gauge->hideScore();
    m_session.start();
    showSession();
    m_context.screens.setNavigationEnabled(false);
}

Quiz800::~Quiz800() = default;

void Quiz800::Timer1_Timer() {
    if (!m_state.TimerActive)
        return;
    Label8->setText(QStringLiteral("Item Time: ") + QString::fromStdString(m_session.itemClock()));
    Label7->setText(QStringLiteral("Elapsed Time: ") +
                    QString::fromStdString(m_session.elapsedClock()));
}

void Quiz800::showSession() {
    const ReviewSession& session = m_session;
    setWindowTitle(QString::fromLatin1(m_state.catalogue.TopicTitles[m_state.CurrentTopic]));
    if (session.itemRevision() != m_shownItem) {
        m_shownItem = session.itemRevision();
        showPicture();
    }
    if (session.documentRevision() != m_shownDocument) {
        m_shownDocument = session.documentRevision();
        showDocument();
    }
    for (int i : {0, 1, 2, 3, 5, 6, 7, 11, 12})
        Command1[static_cast<size_t>(i)]->setEnabled(session.isOpen(i));
    Command1[ReviewCommand::Next]->setText(session.doneCaption() ? QStringLiteral("&Done")
                                                                 : QStringLiteral("&Next"));
    Command1[ReviewCommand::Break]->setText(session.cancellable() ? QStringLiteral("&Cancel")
                                                                  : QStringLiteral("&Break"));
    SetTextColour(Label2, session.feedbackColour());
    Label2->setText(shown(session.feedback()));

    const PerformanceLabels& labels = session.performance();
    Label3->setText(QString::fromStdString(labels.right));
    Label4->setText(QString::fromStdString(labels.wrong));
    Label5->setText(QString::fromStdString(labels.tries));
    if (labels.scored) {
        Label6->setAutoFillBackground(true);
        SetTextColour(Label6, labels.scoreColour);
        Label6->setText(QString::fromStdString(labels.score));
        Label11->setText(QString::fromStdString(labels.wildGuesses));
    }
    if (m_state.IncludeProgressReport)
        m_gauge->showScore(m_state.TestScore, PassesGrade(m_state.TestScore, m_state.PassingGrade));
    ProgressBar1->setValue(session.progressPercent());
    if (!session.timerRunning())
        Timer1->stop();
    else if (!Timer1->isActive())
        Timer1->start();

    switch (m_session.takeFocus()) {
    case ReviewFocus::Text:
        RichTextBox1->setFocus();
        break;
    case ReviewFocus::Next:
        Command1[ReviewCommand::Next]->setFocus();
        break;
    case ReviewFocus::Previous:
        Command1[ReviewCommand::Previous]->setFocus();
        break;
    case ReviewFocus::Unchanged:
        break;
    }
}

void Quiz800::showDocument() {
    RichTextBox1->setTextRtf(m_session.document().forWindow(isMaximized()));
}

void Quiz800::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // Form_Resize: the large version shows while the window is maximised.
    if (event->type() == QEvent::WindowStateChange && RichTextBox1 != nullptr)
        showDocument();
}

void Quiz800::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
}

void Quiz800::keyPressEvent(QKeyEvent* event) {
    if (event->text().size() == 1 &&
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        m_session.formKeyPress(event->text().at(0).unicode());
        showSession();
    }
    QWidget::keyPressEvent(event);
}

bool Quiz800::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Shape4 && event->type() == QEvent::Resize) {
        // The text wraps where the line under it ends, inside the view's frame and scroll bar.
        const int chrome = 2 * RichTextBox1->frameWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, RichTextBox1);
        RichTextBox1->setRightMargin(15 * std::max(Shape4->width() - chrome, 40));
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const bool typed = key->text().size() == 1 && key->text().at(0).isPrint() &&
                       !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!typed)
        return QWidget::eventFilter(watched, event);
    // The form sees a key first, then the control that has the focus.
    const int code = key->text().at(0).unicode();
    m_session.formKeyPress(code);
    m_session.keyAnswer(code);
    showSession();
    // The text view takes no typing; a button has no use for a letter.
    return watched == RichTextBox1 || code != ' ';
}

} // namespace tessera
