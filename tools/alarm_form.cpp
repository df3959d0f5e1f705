#include "tools/alarm_form.h"

#include "core/screen_colours.h"
#include "core/screen_text.h"
#include "core/window_place.h"
#include "platform/clock.h"
#include "platform/control_names.h"
#include "platform/dialogs.h"
#include "platform/sound.h"
#include "tools/alarm_time.h"
#include "tools/desk_pictures.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tessera {

namespace {

const QString TimeRule =
    QStringLiteral("Use any 12-or 24-hour clock time. If AM or PM is omitted from the 12-hour "
                   "clock time, AM is assumed.");
const QString NotValid = QStringLiteral("The time you entered was not valid.\r\nPlease try again.");
const QString GoneBy =
    QStringLiteral("The time you entered has already gone by today.\r\nPlease try again.");

QString prompt(const QString& asked) {
    return TimeRule + QStringLiteral("\r\n\r\n") + asked + QStringLiteral("\r\n(hh:mm).");
}

} // namespace

AlarmForm::AlarmForm(ScreenContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    buildControls();
    // Form_Load: a fresh form has no alarm, so no picture and no "Alarm Setting" yet.
    Option1[0]->setChecked(true);
    Option1[1]->setEnabled(false);
    Image1->hide();
    for (int row = 0; row < AutoSetRows; ++row)
        List1->addItem(AutoSetRowText(row));
    List1->setCurrentRow(0);
    Timer1->start(300);
}

void AlarmForm::Command1_Click(int index) {
    switch (index) {
    case 0:
        setAlarm();
        break;
    case 1:
        setClock();
        break;
    case 2:
        // Closing runs the rest of Done, as closing by the window does.
        close();
        break;
    default:
        autoSet();
        break;
    }
}

void AlarmForm::setAlarm() {
    Dialogs& dialogs = m_context.services.dialogs;
    // The prompt returns until a usable time is entered or the box is cancelled.
    for (;;) {
        m_alarmInput = dialogs.input(prompt(QStringLiteral("Enter alarm setting")),
                                     QStringLiteral("Set Alarm Clock"), Label1->text());
        if (m_alarmInput.isEmpty())
            return;
        const std::optional<int> entered = ParseTimeOfDay(m_alarmInput);
        if (!entered) {
            dialogs.message(NotValid, QStringLiteral("Sorry!"), MessageIcon::Question,
                            MessageButtons::Ok);
            continue;
        }
        if (TimeOfDayNow(m_context.services.clock) > *entered) {
            dialogs.message(GoneBy, QStringLiteral("Sorry!"), MessageIcon::Question,
                            MessageButtons::Ok);
            continue;
        }
        m_alarmTime = *entered;
        alarmWaiting();
        Label1->setText(LongTimeText(*entered));
        storePosition();
        return;
    }
}

void AlarmForm::setClock() {
    Clock& clock = m_context.services.clock;
    Dialogs& dialogs = m_context.services.dialogs;
    const QString answer =
        dialogs.input(prompt(QStringLiteral("Enter current time")),
                      QStringLiteral("Set Computer Clock"), LongTimeText(TimeOfDayNow(clock)));
    if (answer.isEmpty())
        return;
    const std::optional<int> entered = ParseTimeOfDay(answer);
    if (!entered) {
        dialogs.message(NotValid, QStringLiteral("Sorry!"), MessageIcon::Question,
                        MessageButtons::Ok);
        return;
    }
    if (!clock.setTimeOfDay(*entered / 3600, *entered / 60 % 60, *entered % 60))
        dialogs.message(QStringLiteral("The computer's clock could not be set. Setting it may "
                                       "need an administrator's rights."),
                        QStringLiteral("Set Computer Clock"), MessageIcon::Exclamation,
                        MessageButtons::Ok);
    lblTime->setText(LongTimeText(TimeOfDayNow(clock)));
    storePosition();
}

void AlarmForm::autoSet() {
    alarmWaiting();
    const int row = std::max(List1->currentRow(), 0);
    m_alarmTime = AutoSetAlarmTime(m_context.services.clock.now(), row);
    Label1->setText(LongTimeText(*m_alarmTime));
    storePosition();
}

void AlarmForm::alarmWaiting() {
    Option1[1]->setEnabled(true);
    Image1->show();
}

void AlarmForm::storePosition() {
    StoreWindowPlace(m_context.state, AlarmFormSlot, *this);
}

void AlarmForm::Timer1_Timer() {
    const int now = TimeOfDayNow(m_context.services.clock);
    const QString nowText = LongTimeText(now);
    // The rest runs at most once a second while the time shows.
    if (lblTime->text() == nowText)
        return;
    if (m_alarmTime && now >= *m_alarmTime && !m_alarmSounded)
        soundAlarm(now);
    else if (m_alarmTime && now < *m_alarmTime)
        m_alarmSounded = false; // a later setting, or the same one after midnight
    if (!isMinimized()) {
        lblTime->setText(nowText);
        return;
    }
    const std::optional<int> shown = ParseTimeOfDay(windowTitle());
    if (!shown || *shown / 60 % 60 != now / 60 % 60)
        ShowMinimizedTime();
}

void AlarmForm::soundAlarm(int now) {
    m_context.services.sound.tone(1760, 800);
    // The message box holds the ticks back until the candidate closes it.
    m_context.services.dialogs.message(QStringLiteral("Alarm at ") + LongTimeText(now),
                                       QStringLiteral("Hello, ") +
                                           ShownUserName(m_context.state.UserName),
                                       MessageIcon::Exclamation, MessageButtons::Ok);
    m_alarmSounded = true;
    showNormal();
    Image1->hide();
}

void AlarmForm::ShowMinimizedTime() {
    const int now = TimeOfDayNow(m_context.services.clock);
    const bool clock = Option1[0]->isChecked() || !m_alarmTime;
    setWindowTitle(MediumTimeText(clock ? now : *m_alarmTime));
}

void AlarmForm::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) {
        if (isMinimized())
            ShowMinimizedTime();
        else
            setWindowTitle(QStringLiteral("Alarm Clock"));
    }
    QWidget::changeEvent(event);
}

// Any way of closing cancels the alarm, as Done does.
void AlarmForm::closeEvent(QCloseEvent* event) {
    if (isMinimized())
        showNormal();
    storePosition();
    Timer1->stop();
    m_alarmTime.reset();
    m_context.screens.showNavigationNormal();
    event->accept();
}

void AlarmForm::buildControls() {
    setObjectName(QStringLiteral("AlarmForm"));
    setWindowTitle(QStringLiteral("Alarm Clock"));
    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    connect(Timer1, &QTimer::timeout, this, &AlarmForm::Timer1_Timer);
    m_context.services.dialogs.holdBack(Timer1);

    lblTime = new QLabel(this);
    lblTime->setObjectName(QStringLiteral("lblTime"));
    DescribeControl(lblTime, QStringLiteral("Time now"));
    QFont large = lblTime->font();
    large.setPointSizeF(large.pointSizeF() * 2.2);
    large.setBold(true);
    lblTime->setFont(large);
    lblTime->setAlignment(Qt::AlignCenter);
    lblTime->setMinimumWidth(
        lblTime->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00 PM")));
    Image1 = new QLabel(this);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setAccessibleName(QStringLiteral("Alarm waiting"));
    Image1->setPixmap(DrawDeskPicture(DeskPicture::AlarmBell, 40));
    QSizePolicy keepPlace = Image1->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    Image1->setSizePolicy(keepPlace);
    Label1 = new QLabel(this);
    Label1->setObjectName(QStringLiteral("Label1"));
    DescribeControl(Label1, QStringLiteral("Alarm setting"));
    Label1->setAlignment(Qt::AlignCenter);
    QFont setting = Label1->font();
    setting.setPointSizeF(setting.pointSizeF() * 1.4);
    Label1->setFont(setting);
    // The setting in the bell's colour family, so it never reads as the time now.
    SetTextColour(Label1, 0x003C96);

    Frame2 = new QGroupBox(QStringLiteral("Set alarm to sound in:"), this);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    List1 = new QListWidget(Frame2);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(Frame2->title());
    connect(List1, &QListWidget::itemDoubleClicked, this, [this] { Command1[3]->click(); });
    (new QVBoxLayout(Frame2))->addWidget(List1);

    Frame1 = new QGroupBox(QStringLiteral("Time display when minimized"), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    auto* options = new QVBoxLayout(Frame1);
    const std::array<QString, 2> optionCaptions = {QStringLiteral("Clock"),
                                                   QStringLiteral("Alarm Setting")};
    for (size_t i = 0; i < Option1.size(); ++i) {
        Option1[i] = new QRadioButton(optionCaptions[i], Frame1);
        Option1[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
        options->addWidget(Option1[i]);
    }

    const std::array<QString, 4> captions = {QStringLiteral("Set &Alarm"),
                                             QStringLiteral("Set &Clock"), QStringLiteral("&Done"),
                                             QStringLiteral("Auto&Set")};
    for (size_t i = 0; i < Command1.size(); ++i) {
        Command1[i] = new QPushButton(captions[i], this);
        Command1[i]->setObjectName(QStringLiteral("Command1_%1").arg(i));
        const int index = static_cast<int>(i);
        connect(Command1[i], &QPushButton::clicked, this, [this, index] { Command1_Click(index); });
    }

    auto* face = new QGridLayout;
    face->addWidget(lblTime, 0, 1);
    face->addWidget(Image1, 0, 0, 2, 1, Qt::AlignCenter);
    face->addWidget(Label1, 1, 1);
    face->setColumnStretch(1, 1);
    auto* side = new QVBoxLayout;
    side->addWidget(Frame1);
    for (const int i : {0, 3, 1, 2})
        side->addWidget(Command1[static_cast<size_t>(i)]);
    side->addStretch();
    auto* lower = new QHBoxLayout;
    lower->addWidget(Frame2, 1);
    lower->addLayout(side);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(face);
    layout->addLayout(lower, 1);
}

} // namespace tessera
