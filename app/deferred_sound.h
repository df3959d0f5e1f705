#pragma once
// The tone, its module loaded at the first tone: the audio stack is slow to load, and the
// title screen should not wait for it. Silent where the module or the audio device is missing.

#include "platform/sound.h"

#include <QLibrary>

#include <memory>

namespace tessera {

class DeferredSound final : public Sound {
public:
    DeferredSound() = default;
    Q_DISABLE_COPY_MOVE(DeferredSound)

    void tone(int hertz, int milliseconds) override;
    // Loads the module if it has not been tried yet; false when it can't be loaded.
    bool load();

private:
    bool m_tried = false;
    QLibrary m_module; // stays loaded until the process ends
    std::unique_ptr<Sound> m_sound;
};

} // namespace tessera
