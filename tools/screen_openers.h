#pragma once
// How the reading screens open the screens beside them.

#include "core/screen_host.h"

namespace tessera {

struct SessionState;

// Shows the screen and brings it out of a minimised or maximised state.
QWidget* ShowNormal(ScreenHost& screens, ScreenName name);

// Unloads Help, sets the topic and shows it normal.
void OpenHelpAfresh(ScreenHost& screens, SessionState& state, int topic);

// As afresh, but a help window already open on this topic stays as it is.
void OpenHelpComparing(ScreenHost& screens, SessionState& state, int topic);

} // namespace tessera
