#pragma once
// Message and input boxes on the screen, through Qt's standard dialogs.

#include "platform/dialogs.h"

namespace tessera {

class QtDialogs final : public Dialogs {
public:
    MessageAnswer showMessage(const QString& text, const QString& title, MessageIcon icon,
                              MessageButtons buttons) override;
    QString showInput(const QString& prompt, const QString& title, const QString& initial) override;
};

} // namespace tessera
