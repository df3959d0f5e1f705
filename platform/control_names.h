#pragma once
// How every screen names its controls: the object name the screens and tests find a control
// by, and what a screen reader speaks.

#include <QString>

class QPushButton;
class QWidget;

namespace tessera {

// A control that shows a caption or a figure (button, option, check box, label, frame) is
// spoken as what it shows at that moment, so its name never goes stale; the words given
// describe it. Any other control (a text view, a list, a bar, a picture) is spoken as the
// words given.
void DescribeControl(QWidget* control, const QString& words);

void NameControl(QWidget* control, const QString& objectName, const QString& accessibleName);

// A member of a control array, List1(0) as "List1_0"; a negative index names a lone control.
void NameControl(QWidget* control, const char* array, int index, const QString& accessibleName);

// A command button of a control array, described by `words` (its caption without the "&" when
// none are given). It is no default button: Enter presses whichever button has the focus.
QPushButton* MakeCommand(const char* array, int index, const QString& caption,
                         const QString& words = {});

} // namespace tessera
