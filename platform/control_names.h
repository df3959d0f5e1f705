#pragma once
// How every screen names its controls: the object name the screens and tests find a control
// by, and the name a screen reader speaks.

#include <QString>

class QWidget;

namespace tessera {

void NameControl(QWidget* control, const QString& objectName, const QString& accessibleName);

// A member of a control array, List1(0) as "List1_0"; a negative index names a lone control.
void NameControl(QWidget* control, const char* array, int index, const QString& accessibleName);

} // namespace tessera
