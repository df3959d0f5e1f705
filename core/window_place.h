#pragma once
// Where a screen stood, kept in its slot of WindowLeft and WindowTop for the next time it opens.

class QWidget;

namespace tessera {

struct SessionState;

// The window's top left corner; minimised or maximised, the corner it returns to.
void StoreWindowPlace(SessionState& state, int slot, const QWidget& window);

} // namespace tessera
