#pragma once
// Drives a screen from one line of steps, as a user would: "focus Number_5; keys 2+3;
// key Ctrl+M; click Command1_0; fill Text1 85; type 7:30 PM; answer Yes". Controls go by
// object name; type and answer script the coming input and message boxes.

#include "tests/support/screen_fixture.h"
#include "tests/support/scripted_dialogs.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

#include <functional>
#include <map>
#include <string>

namespace tessera {

class ScreenScript {
public:
    using Step = std::function<void(const QString& argument)>;

    // The screen as it stands when each step runs, as a step may open it anew.
    ScreenScript(std::function<QWidget*()> screen, ScriptedDialogs& dialogs) {
        // Keys go where the screen's focus stands, or to the screen while nothing has it.
        const auto focused = [screen] {
            QWidget* focus = screen()->focusWidget();
            return focus != nullptr ? focus : screen();
        };
        m_steps = {
            {"click",
             [screen](const QString& name) { Control<QAbstractButton>(screen(), name)->click(); }},
            {"focus",
             [screen](const QString& name) { Control<QWidget>(screen(), name)->setFocus(); }},
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
                 const QStringList answers = {QStringLiteral("Ok"), QStringLiteral("Cancel"),
                                              QStringLiteral("Yes"), QStringLiteral("No")};
                 dialogs.answer(static_cast<MessageAnswer>(answers.indexOf(answer)));
             }},
        };
    }
    ScreenScript(QWidget& screen, ScriptedDialogs& dialogs)
        : ScreenScript([&screen] { return &screen; }, dialogs) {}

    // A step of the screen's own, or one that replaces a common step.
    ScreenScript& with(const std::string& verb, Step step) {
        m_steps[verb] = std::move(step);
        return *this;
    }
    void run(const std::string& steps) const {
        for (const QString& step : QString::fromStdString(steps).split(u';', Qt::SkipEmptyParts)) {
            const QString trimmed = step.trimmed();
            const auto found = m_steps.find(trimmed.section(u' ', 0, 0).toStdString());
            if (found == m_steps.end())
                qFatal("no step %s", qPrintable(trimmed));
            found->second(trimmed.section(u' ', 1));
        }
    }

private:
    std::map<std::string, Step> m_steps;
};

} // namespace tessera
