#pragma once
// Message and input boxes: the exact words, title, icon and buttons the user sees.

#include <QString>

namespace tessera {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual MessageAnswer message(const QString& text, const QString& title, MessageIcon icon,
                                  MessageButtons buttons) = 0;
    // Empty when the user cancels or leaves the box empty; the system treats both alike.
    virtual QString input(const QString& prompt, const QString& title,
                          const QString& initial = {}) = 0;
};

} // namespace tessera
