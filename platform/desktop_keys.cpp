#include "platform/desktop_keys.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>

namespace tessera {

bool EnterPressesButton::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    auto* button = qobject_cast<QPushButton*>(watched);
    if (button == nullptr || !button->isEnabled() || !button->isVisible())
        return false;
    if (!key->isAutoRepeat())
        button->click();
    return true;
}

void CloseOnEscape(QWidget* window) {
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), window);
    escape->setContext(Qt::WindowShortcut);
    QObject::connect(escape, &QShortcut::activated, window, &QWidget::close);
}

} // namespace tessera
