#pragma once
// The fixed-pitch font in which the system shows its lists and figures, whatever the machine
// has.

#include <QFont>

namespace tessera {

QFont FixedPitchFont();

} // namespace tessera
