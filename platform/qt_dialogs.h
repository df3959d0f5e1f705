#pragma once
// Message and input boxes on the screen, through Qt's standard dialogs.

#include "platform/dialogs.h"

namespace tessera {

class QtDialogs final : public Dialogs {
public:
    MessageAnswer message(const QString& text, const QString& title, MessageIcon icon,
                          MessageButtons buttons) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
};

} // namespace tessera
