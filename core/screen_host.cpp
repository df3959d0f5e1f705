#include "core/screen_host.h"

#include "core/session_state.h"

#include <QWidget>

namespace tessera {

QWidget* ScreenHost::showNormal(ScreenName name) {
    QWidget* screen = show(name);
    if (screen != nullptr)
        screen->setWindowState(screen->windowState() &
                               ~(Qt::WindowMinimized | Qt::WindowMaximized));
    return screen;
}

QWidget* ScreenHost::showAfresh(ScreenName name) {
    unload(name);
    return show(name);
}

void ScreenHost::refreshNavigation() {
    if (auto* menu = dynamic_cast<NavigationScreen*>(find(ScreenName::ButtonMenu)))
        menu->RefreshNavigation();
}

void ScreenHost::setNavigationEnabled(bool enabled) {
    if (QWidget* menu = find(ScreenName::ButtonMenu))
        menu->setEnabled(enabled);
}

void ScreenHost::handBackNavigation(QWidget& closing) {
    if (closing.isMinimized())
        closing.showNormal();
    setNavigationEnabled(true);
    QWidget* menu = find(ScreenName::ButtonMenu);
    if (menu != nullptr && menu->isMinimized())
        menu->showNormal();
}

void ScreenHost::showNavigationNormal() {
    if (QWidget* menu = find(ScreenName::ButtonMenu))
        menu->showNormal();
}

void ScreenHost::chooseNoNavigationOption() {
    if (auto* menu = dynamic_cast<NavigationScreen*>(find(ScreenName::ButtonMenu)))
        menu->ChooseNoOption();
}

void ScreenHost::prepareHelp(SessionState& state, HelpTopic topic, HelpOpening opening) {
    const auto number = static_cast<int16_t>(topic);
    if (opening == HelpOpening::Afresh || state.HelpTopic != number)
        unload(ScreenName::Help);
    state.HelpTopic = number;
}

void ScreenHost::openHelp(SessionState& state, HelpTopic topic, HelpOpening opening) {
    prepareHelp(state, topic, opening);
    showNormal(ScreenName::Help);
}

void ScreenHost::openHelpModal(SessionState& state, HelpTopic topic, HelpOpening opening) {
    prepareHelp(state, topic, opening);
    showModal(ScreenName::Help);
}

} // namespace tessera
