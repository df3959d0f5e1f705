#pragma once
// What every screen owes a keyboard and a screen reader user, as data a test can compare.

#include <QAccessible>
#include <QLabel>
#include <QStringList>

namespace tessera {

// The object names of the screen's named controls that a screen reader would meet nameless.
// Controls are the widgets with an object name; the parts Qt names itself ("qt_...") are not,
// nor are shapes (bare frames the keyboard never reaches), which only draw a border.
inline QStringList ControlsWithoutNames(const QWidget& screen) {
    QStringList nameless;
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
        const bool shape = qobject_cast<QFrame*>(widget) != nullptr &&
                           qobject_cast<QLabel*>(widget) == nullptr &&
                           widget->focusPolicy() == Qt::NoFocus;
        if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_") || shape)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible == nullptr || accessible->text(QAccessible::Name).isEmpty())
            nameless << widget->objectName();
    }
    return nameless;
}

} // namespace tessera
