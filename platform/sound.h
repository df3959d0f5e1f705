#pragma once
// A tone of a pitch and a length; silent where there is no audio device.

namespace tessera {

class Sound {
public:
    virtual ~Sound() = default;
    virtual void tone(int hertz, int milliseconds) = 0;
};

} // namespace tessera
