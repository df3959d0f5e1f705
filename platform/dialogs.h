#pragma once
// Message and input boxes: the exact words, title, icon and buttons the user sees.

#include <QPointer>
#include <QString>
#include <QTimer>

#include <vector>

namespace tessera {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

// Every box is modal, and a modal box holds the timers back: a timer handed to holdBack()
// stands still while any box is open and runs on when the last one closes.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    MessageAnswer message(const QString& text, const QString& title, MessageIcon icon,
                          MessageButtons buttons) {
        const HeldTimers held(*this);
        return showMessage(text, title, icon, buttons);
    }
    // Empty when the user cancels or leaves the box empty; the system treats both alike.
    QString input(const QString& prompt, const QString& title, const QString& initial = {}) {
        const HeldTimers held(*this);
        return showInput(prompt, title, initial);
    }

    void holdBack(QTimer* timer) { m_timers.emplace_back(timer); }
    bool boxOpen() const { return m_openBoxes > 0; }

protected:
    virtual MessageAnswer showMessage(const QString& text, const QString& title, MessageIcon icon,
                                      MessageButtons buttons) = 0;
    virtual QString showInput(const QString& prompt, const QString& title,
                              const QString& initial) = 0;

private:
    // Stops the running timers for the life of one box; only the outermost box restarts them.
    class HeldTimers {
    public:
        explicit HeldTimers(Dialogs& dialogs) : m_dialogs(dialogs) {
            if (m_dialogs.m_openBoxes++ > 0)
                return;
            std::erase_if(m_dialogs.m_timers, [](const QPointer<QTimer>& t) { return t.isNull(); });
            for (const QPointer<QTimer>& timer : m_dialogs.m_timers) {
                if (timer->isActive()) {
                    timer->stop();
                    m_stopped.push_back(timer);
                }
            }
        }
        ~HeldTimers() {
            if (--m_dialogs.m_openBoxes > 0)
                return;
            for (const QPointer<QTimer>& timer : m_stopped) {
                if (timer)
                    timer->start();
            }
        }
        HeldTimers(const HeldTimers&) = delete;
        HeldTimers& operator=(const HeldTimers&) = delete;

    private:
        Dialogs& m_dialogs;
        std::vector<QPointer<QTimer>> m_stopped;
    };

    std::vector<QPointer<QTimer>> m_timers;
    int m_openBoxes = 0;
};

} // namespace tessera
