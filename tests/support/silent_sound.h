#pragma once
// Records each tone instead of playing it.

#include "platform/sound.h"

#include <vector>

namespace tessera {

struct Tone {
    int hertz = 0;
    int milliseconds = 0;
    bool operator==(const Tone&) const = default;
};

class SilentSound final : public Sound {
public:
    void tone(int hertz, int milliseconds) override { m_tones.push_back({hertz, milliseconds}); }
    const std::vector<Tone>& tones() const { return m_tones; }
    void clear() { m_tones.clear(); }

private:
    std::vector<Tone> m_tones;
};

} // namespace tessera
