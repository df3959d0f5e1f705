#pragma once
// A seedable uniform random source, seeded from the machine at construction.

#include "platform/random_source.h"

#include <random>

namespace tessera {

class SystemRandom final : public Random {
public:
    SystemRandom();
    double next() override;
    void seed(uint32_t value) override;

private:
    std::mt19937_64 m_engine;
};

} // namespace tessera
