#pragma once
// Drives a screen from one line of steps, as a user would: "focus Number_5; keys 2+3;
// key Ctrl+M; click Command1_0; fill Text1 85; type 7:30 PM; answer Yes". Controls go by
// object name; type and answer script the coming input and message boxes.

#include "tests/support/scripted_dialogs.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <string>

namespace tessera {

class ScreenScript {
public:
    using Step = std::function<void(const QString& argument)>;

    // The screen as it stands when each step runs, as a step may open it anew.
    ScreenScript(std::function<QWidget*()> screen, ScriptedDialogs& dialogs);
    ScreenScript(QWidget& screen, ScriptedDialogs& dialogs)
        : ScreenScript([&screen] { return &screen; }, dialogs) {}
    // A step of the screen's own, or one that replaces a common step.
    ScreenScript& with(const std::string& verb, Step step);
    void run(const std::string& steps) const;

private:
    std::map<std::string, Step> m_steps;
};

} // namespace tessera
