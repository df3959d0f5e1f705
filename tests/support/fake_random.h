#pragma once
// A random source that gives scripted values first, then a fixed pseudo-random sequence.

#include "platform/random_source.h"

#include <deque>
#include <initializer_list>
#include <random>
#include <vector>

namespace tessera {

class FakeRandom final : public Random {
public:
    double next() override {
        ++m_calls;
        if (m_script.empty())
            return static_cast<double>(m_engine()) / 4294967296.0;
        const double value = m_script.front();
        m_script.pop_front();
        return value;
    }
    void seed(uint32_t value) override {
        m_seeds.push_back(value);
        m_engine.seed(value);
    }

    // Values that the next calls return, in order, before the sequence takes over.
    void script(std::initializer_list<double> values) { m_script.insert(m_script.end(), values); }
    int calls() const { return m_calls; }
    const std::vector<uint32_t>& seeds() const { return m_seeds; }

private:
    std::mt19937 m_engine{1};
    std::deque<double> m_script;
    std::vector<uint32_t> m_seeds;
    int m_calls = 0;
};

} // namespace tessera
