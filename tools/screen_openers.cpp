#include "tools/screen_openers.h"

#include "core/session_state.h"

#include <QWidget>

namespace tessera {

QWidget* ShowNormal(ScreenHost& screens, ScreenName name) {
    QWidget* screen = screens.show(name);
    if (screen != nullptr)
        screen->setWindowState(screen->windowState() &
                               ~(Qt::WindowMinimized | Qt::WindowMaximized));
    return screen;
}

void OpenHelpAfresh(ScreenHost& screens, SessionState& state, int topic) {
    screens.unload(ScreenName::Help);
    state.HelpTopic = static_cast<int16_t>(topic);
    ShowNormal(screens, ScreenName::Help);
}

void OpenHelpComparing(ScreenHost& screens, SessionState& state, int topic) {
    if (state.HelpTopic != topic)
        screens.unload(ScreenName::Help);
    state.HelpTopic = static_cast<int16_t>(topic);
    ShowNormal(screens, ScreenName::Help);
}

} // namespace tessera
