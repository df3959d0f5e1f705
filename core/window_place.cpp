#include "core/window_place.h"

#include "core/session_state.h"

#include <QWidget>

namespace tessera {

void StoreWindowPlace(SessionState& state, int slot, const QWidget& window) {
    const QPoint place = window.isMaximized() || window.isMinimized()
                             ? window.normalGeometry().topLeft()
                             : window.pos();
    state.WindowLeft[slot] = static_cast<int16_t>(place.x());
    state.WindowTop[slot] = static_cast<int16_t>(place.y());
}

} // namespace tessera
