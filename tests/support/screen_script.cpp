#include "tests/support/screen_script.h"

#include "tests/support/screen_fixture.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

ScreenScript::ScreenScript(std::function<QWidget*()> screen, ScriptedDialogs& dialogs) {
    // Keys go where the screen's focus stands, or to the screen while nothing has it.
    const auto focused = [screen] {
        QWidget* focus = screen()->focusWidget();
        return focus != nullptr ? focus : screen();
    };
    m_steps = {
        {"click",
         [screen](const QString& name) { Control<QAbstractButton>(screen(), name)->click(); }},
        {"focus", [screen](const QString& name) { Control<QWidget>(screen(), name)->setFocus(); }},
        {"keys", [focused](const QString& text) { QTest::keyClicks(focused(), text); }},
        {"key",
         [focused](const QString& keys) { QTest::keySequence(focused(), QKeySequence(keys)); }},
        {"fill",
         [screen](const QString& argument) {
             Control<QLineEdit>(screen(), argument.section(u' ', 0, 0))
                 ->setText(argument.section(u' ', 1));
         }},
        {"type", [&dialogs](const QString& text) { dialogs.type(text); }},
        {"answer",
         [&dialogs](const QString& answer) {
             const QStringList answers = {u"Ok"_s, u"Cancel"_s, u"Yes"_s, u"No"_s};
             dialogs.answer(static_cast<MessageAnswer>(answers.indexOf(answer)));
         }},
    };
}

ScreenScript& ScreenScript::with(const std::string& verb, Step step) {
    m_steps[verb] = std::move(step);
    return *this;
}

void ScreenScript::run(const std::string& steps) const {
    for (const QString& step : QString::fromStdString(steps).split(u';', Qt::SkipEmptyParts)) {
        const QString trimmed = step.trimmed();
        const auto found = m_steps.find(trimmed.section(u' ', 0, 0).toStdString());
        if (found == m_steps.end())
            qFatal("no step %s", qPrintable(trimmed));
        found->second(trimmed.section(u' ', 1));
    }
}

} // namespace tessera
