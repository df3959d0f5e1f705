#pragma once
// A random source that plays back a list of draws and remembers its seed.

#include "platform/random_source.h"

#include <cstddef>
#include <vector>

namespace tessera::testing {

class SequenceRandom final : public Random {
public:
    explicit SequenceRandom(std::vector<double> draws = {}) : m_draws(std::move(draws)) {}
    double next() override { return m_draws.empty() ? 0.0 : m_draws[m_next++ % m_draws.size()]; }
    void seed(uint32_t value) override { seeds.push_back(value); }
    std::vector<uint32_t> seeds;

private:
    std::vector<double> m_draws;
    size_t m_next = 0;
};

} // namespace tessera::testing
