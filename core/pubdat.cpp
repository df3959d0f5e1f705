#include "core/pubdat.h"

#include "core/screen_text.h"
#include "core/start_up.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/windows1252.h"

#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int TimerInterval = 200;
constexpr int UnpaintedFinish = 500; // milliseconds

// Three type sizes only: each further face costs the title time before it first shows.
enum class Type { Plain, Heading, Title };

void styleLabel(QLabel* label, Type type) {
    if (type != Type::Plain) {
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * (type == Type::Title ? 2.0 : 1.5));
        font.setBold(true);
        label->setFont(font);
    }
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
}

} // namespace

Pubdat::Pubdat(ScreenContext& context)
    : m_context(context), m_startUp(std::make_unique<StartUp>(context.state, context.services)) {
    setObjectName(QStringLiteral("Pubdat"));
    buildControls();
    if (m_startUp->beforeTitle() == StartUpOutcome::Ended) {
        m_context.screens.endProgram();
        return;
    }
    setCaptions();
}

Pubdat::~Pubdat() = default;

void Pubdat::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // A window that is never painted, as a minimised one, still finishes its start-up.
    QTimer::singleShot(UnpaintedFinish, this, &Pubdat::finishStartUp);
}

void Pubdat::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    // The slow steps wait until the title stands on the screen.
    if (!m_finishQueued) {
        m_finishQueued = true;
        QTimer::singleShot(0, this, &Pubdat::finishStartUp);
    }
}

void Pubdat::finishStartUp() {
    if (m_startUp == nullptr)
        return;
    const StartUpOutcome outcome = m_startUp->afterTitle();
    m_startUp.reset();
    if (outcome == StartUpOutcome::Ended) {
        m_context.screens.endProgram();
        return;
    }
    m_startTime = m_context.services.clock.secondsSinceMidnight();
    Timer1->start();
}

void Pubdat::buildControls() {
    setWindowTitle(QStringLiteral("Tessera"));
    setFocusPolicy(Qt::StrongFocus);
    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(40, 28, 40, 24);
    root->setSpacing(10);
    for (size_t i = 0; i < Label1.size(); ++i) {
        Label1[i] = new QLabel(this);
        Label1[i]->setObjectName(QStringLiteral("Label1_%1").arg(i));
    }
    // Top to bottom: author, publisher, the title and its subtitle, edition, the user, maker.
    for (const int plain : {0, 2, 5, 6, 7})
        styleLabel(Label1[plain], Type::Plain);
    styleLabel(Label1[1], Type::Title);
    styleLabel(Label1[3], Type::Heading);
    styleLabel(Label1[4], Type::Heading);
    Label1[7]->setForegroundRole(QPalette::PlaceholderText);
    Label1[5]->setForegroundRole(QPalette::PlaceholderText);

    root->addWidget(Label1[0]);
    root->addStretch(1);
    root->addWidget(Label1[2]);
    root->addSpacing(6);
    root->addWidget(Label1[1]);
    root->addWidget(Label1[3]);
    root->addWidget(Label1[6]);
    root->addStretch(1);
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    root->addWidget(line);
    root->addWidget(Label1[7]);
    root->addWidget(Label1[4]);
    root->addStretch(1);
    root->addWidget(Label1[5]);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(TimerInterval);
    connect(Timer1, &QTimer::timeout, this, &Pubdat::Timer1_Timer);
    m_context.services.dialogs.holdBack(Timer1);
    resize(640, 440);
}

void Pubdat::setCaptions() {
    const CourseCatalogue& catalogue = m_context.state.catalogue;
    Label1[0]->setText(fromWindows1252(catalogue.AuthorLine));
    Label1[0]->setVisible(!catalogue.AuthorLine.empty());
    Label1[1]->setText(fromWindows1252(catalogue.FirstTitleLine));
    Label1[2]->setText(fromWindows1252(catalogue.PublisherLine));
    Label1[3]->setText(fromWindows1252(catalogue.SecondTitleLine));
    Label1[4]->setText(ShownUserName(m_context.state.UserName));
    Label1[5]->setText(QStringLiteral("Tessera Review Software Engineered by Ferrowick Labs"));
    Label1[6]->setText(fromWindows1252(catalogue.EditionLine));
    Label1[7]->setText(QStringLiteral("Prepared for"));
    setAccessibleDescription(QStringLiteral("Press any key or click to continue."));
}

void Pubdat::Timer1_Timer() {
    if (m_startTime &&
        m_context.services.clock.secondsSinceMidnight() - *m_startTime > TitleSeconds)
        leave();
}

void Pubdat::keyPressEvent(QKeyEvent*) {
    leave();
}

void Pubdat::mousePressEvent(QMouseEvent*) {
    leave();
}

void Pubdat::closeEvent(QCloseEvent* event) {
    // Closing the title is one more way of going on to the navigation screen.
    if (!m_leaving && m_startTime) {
        m_leaving = true;
        Timer1->stop();
        m_context.screens.show(ScreenName::ButtonMenu);
    }
    event->accept();
}

void Pubdat::leave() {
    if (!m_startTime || m_leaving)
        return;
    m_leaving = true;
    Timer1->stop();
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::Pubdat);
    screens.show(ScreenName::ButtonMenu);
}

} // namespace tessera
