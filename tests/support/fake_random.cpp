#include "tests/support/fake_random.h"

namespace tessera {

double FakeRandom::next() {
    ++m_calls;
    if (!m_script.empty()) {
        const double value = m_script.front();
        m_script.pop_front();
        return value;
    }
    return static_cast<double>(m_engine()) / 4294967296.0;
}

void FakeRandom::seed(uint32_t value) {
    m_seeds.push_back(value);
    m_engine.seed(value);
}

} // namespace tessera
