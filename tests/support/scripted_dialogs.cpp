#include "tests/support/scripted_dialogs.h"

namespace tessera {

namespace {

MessageAnswer unscriptedAnswer(MessageButtons buttons) {
    if (buttons == MessageButtons::Ok)
        return MessageAnswer::Ok;
    return buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Cancel;
}

} // namespace

MessageAnswer ScriptedDialogs::showMessage(const QString& text, const QString& title,
                                           MessageIcon icon, MessageButtons buttons) {
    m_messages.push_back({text, title, icon, buttons});
    if (m_whileOpen)
        m_whileOpen();
    if (m_answers.empty()) {
        ++m_unscripted;
        return unscriptedAnswer(buttons);
    }
    const MessageAnswer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

QString ScriptedDialogs::showInput(const QString& prompt, const QString& title, const QString&) {
    m_inputs.push_back({prompt, title});
    if (m_whileOpen)
        m_whileOpen();
    if (m_typed.empty()) {
        ++m_unscripted;
        return {};
    }
    QString text = m_typed.front();
    m_typed.pop_front();
    return text;
}

QStringList ScriptedDialogs::titles() const {
    QStringList result;
    for (const ShownMessage& shown : m_messages)
        result.append(shown.title);
    return result;
}

QString ScriptedDialogs::messagesText() const {
    static const char* icons[] = {"", "critical ", "question ", "exclamation ", "information "};
    static const char* buttons[] = {"ok", "ok/cancel", "yes/no", "yes/no/cancel"};
    QStringList shown;
    for (const ShownMessage& m : m_messages)
        shown << QStringLiteral("%1 (%2%3): %4")
                     .arg(m.title, QLatin1String(icons[int(m.icon)]),
                          QLatin1String(buttons[int(m.buttons)]), m.text);
    return shown.join(u'\n');
}

} // namespace tessera
