#include "platform/control_names.h"

#include <QWidget>

namespace tessera {

void NameControl(QWidget* control, const QString& objectName, const QString& accessibleName) {
    control->setObjectName(objectName);
    control->setAccessibleName(accessibleName);
}

void NameControl(QWidget* control, const char* array, int index, const QString& accessibleName) {
    const QString name = QString::fromLatin1(array);
    NameControl(control, index < 0 ? name : name + QLatin1Char('_') + QString::number(index),
                accessibleName);
}

} // namespace tessera
