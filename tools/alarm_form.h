#pragma once
// AlarmForm, the alarm clock: shows the time, sounds one alarm at a time of day, and sets the
// computer's clock. The alarm lives only as long as the form.

#include "core/screen_context.h"

#include <QWidget>

#include <array>
#include <optional>

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTimer;

namespace tessera {

class AlarmForm final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AlarmForm)

public:
    explicit AlarmForm(ScreenContext& context, QWidget* parent = nullptr);

    // 0 Set Alarm, 1 Set Clock, 2 Done, 3 Auto Set.
    void Command1_Click(int index);
    // Runs every 300 ms while the form is loaded.
    void Timer1_Timer();
    void ShowMinimizedTime();

    // The setting in seconds since midnight; nothing when no alarm is set.
    std::optional<int> alarmTime() const { return m_alarmTime; }

    std::array<QPushButton*, 4> Command1{};
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    std::array<QRadioButton*, 2> Option1{};
    QListWidget* List1 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* Image1 = nullptr;
    QTimer* Timer1 = nullptr;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void setAlarm();
    void setClock();
    void autoSet();
    void alarmWaiting();
    void storePosition();
    void soundAlarm(int now);

    ScreenContext& m_context;
    QString m_alarmInput;
    std::optional<int> m_alarmTime;
    bool m_alarmSounded = false;
};

} // namespace tessera
