#pragma once
// Answers message and input boxes from a script and records every word shown.

#include "platform/dialogs.h"

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
    QStringList titles() const {
        QStringList result;
        for (const ShownMessage& shown : m_messages)
            result.append(shown.title);
        return result;
    }
    // The messages as "Title (icon buttons): text", one a line.
    QString messagesText() const {
        static const char* icons[] = {"", "critical ", "question ", "exclamation ", "information "};
        static const char* buttons[] = {"ok", "ok/cancel", "yes/no", "yes/no/cancel"};
        QStringList shown;
        for (const ShownMessage& m : m_messages)
            shown << QStringLiteral("%1 (%2%3): %4")
                         .arg(m.title, QLatin1String(icons[int(m.icon)]),
                              QLatin1String(buttons[int(m.buttons)]), m.text);
        return shown.join(u'\n');
    }
    // Boxes shown after the script ran out. An unscripted box gets the answer that leaves
    // a question (Cancel, or Yes to a Yes/No question, and an empty input) so nothing loops.
    int unscripted() const { return m_unscripted; }

protected:
    MessageAnswer showMessage(const QString& text, const QString& title, MessageIcon icon,
                              MessageButtons buttons) override {
        m_messages.push_back({text, title, icon, buttons});
        const MessageAnswer unscripted = buttons == MessageButtons::Ok      ? MessageAnswer::Ok
                                         : buttons == MessageButtons::YesNo ? MessageAnswer::Yes
                                                                            : MessageAnswer::Cancel;
        return next(m_answers, unscripted);
    }
    QString showInput(const QString& prompt, const QString& title, const QString&) override {
        m_inputs.push_back({prompt, title});
        return next(m_typed, QString());
    }

private:
    template <class T> T next(std::deque<T>& script, T unscripted) {
        if (m_whileOpen)
            m_whileOpen();
        if (script.empty()) {
            ++m_unscripted;
            return unscripted;
        }
        T value = script.front();
        script.pop_front();
        return value;
    }

    std::function<void()> m_whileOpen;
    std::deque<MessageAnswer> m_answers;
    std::deque<QString> m_typed;
    std::vector<ShownMessage> m_messages;
    std::vector<ShownInput> m_inputs;
    int m_unscripted = 0;
};

} // namespace tessera
