#pragma once
// The keys that work alike on every screen, as on any desktop program: Enter presses the
// focused button, and Escape closes a window that holds no work of the candidate's.

#include <QObject>

class QWidget;

namespace tessera {

// Installed once on the application: Enter or Return on a focused, enabled push button
// presses it, as Space does. Held down, it presses once.
class EnterPressesButton final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EnterPressesButton)

public:
    EnterPressesButton() = default;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// Escape closes this window, the same as its close box.
void CloseOnEscape(QWidget* window);

} // namespace tessera
