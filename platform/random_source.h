#pragma once
// The random source behind scrambling, drawing and the 50:50 wish.

#include <cstdint>

namespace tessera {

class Random {
public:
    virtual ~Random() = default;
    // Uniform in [0, 1).
    virtual double next() = 0;
    virtual void seed(uint32_t value) = 0;
};

} // namespace tessera
