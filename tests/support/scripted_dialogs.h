#pragma once
// Answers message and input boxes from a script and records every word shown.

#include "platform/dialogs.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

namespace tessera {

struct ShownMessage {
    QString text;
    QString title;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
};

struct ShownInput {
    QString prompt;
    QString title;
};

class ScriptedDialogs final : public Dialogs {
public:
    // Answers for the coming message boxes, in order.
    void answer(MessageAnswer answer) { m_answers.push_back(answer); }
    // Texts typed into the coming input boxes, in order; an empty text is a cancel.
    void type(const QString& text) { m_typed.push_back(text); }

    // Runs while each coming box stands open, as time passing or a timer looking in.
    void whileOpen(std::function<void()> act) { m_whileOpen = std::move(act); }

    const std::vector<ShownMessage>& messages() const { return m_messages; }
    const std::vector<ShownInput>& inputs() const { return m_inputs; }
    QStringList titles() const;
    // The messages as "Title (icon buttons): text", one a line.
    QString messagesText() const;
    // Boxes shown after the script ran out. An unscripted box gets the answer that leaves
    // a question (Cancel, or Yes to a Yes/No question, and an empty input) so nothing loops.
    int unscripted() const { return m_unscripted; }

protected:
    MessageAnswer showMessage(const QString& text, const QString& title, MessageIcon icon,
                              MessageButtons buttons) override;
    QString showInput(const QString& prompt, const QString& title, const QString& initial) override;

private:
    std::function<void()> m_whileOpen;
    std::deque<MessageAnswer> m_answers;
    std::deque<QString> m_typed;
    std::vector<ShownMessage> m_messages;
    std::vector<ShownInput> m_inputs;
    int m_unscripted = 0;
};

} // namespace tessera
