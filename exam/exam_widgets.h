#pragma once
// Small helpers the three exam screens share: fonts, texts, and the navigation screen's state.

#include "platform/fixed_pitch_font.h"

#include <QString>

#include <string>

namespace tessera {

class ScreenHost;

// A text of the system, one byte a character, for a widget.
inline QString Text(const std::string& text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// The navigation screen is disabled while an exam screen is open; on closing it is enabled
// again and, if minimised, restored.
void SetNavigationEnabled(ScreenHost& screens, bool enabled);

} // namespace tessera
