#include "tests/support/screen_checks.h"

#include <QAccessible>
#include <QLabel>

namespace tessera {

QStringList ControlsWithoutNames(const QWidget& screen) {
    QStringList nameless;
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() ||
            widget->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        // A shape (a bare frame the keyboard never reaches) only draws a border.
        const bool shape = qobject_cast<QFrame*>(widget) != nullptr &&
                           qobject_cast<QLabel*>(widget) == nullptr &&
                           widget->focusPolicy() == Qt::NoFocus;
        if (shape)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible == nullptr || accessible->text(QAccessible::Name).isEmpty())
            nameless << widget->objectName();
    }
    return nameless;
}

} // namespace tessera
