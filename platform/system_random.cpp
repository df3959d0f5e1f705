#include "platform/system_random.h"

namespace tessera {

SystemRandom::SystemRandom() : m_engine(std::random_device{}()) {}

double SystemRandom::next() {
    // 53 random bits scaled by 2^-53: always below 1, which a distribution may not promise.
    return static_cast<double>(m_engine() >> 11) * 0x1.0p-53;
}

void SystemRandom::seed(uint32_t value) {
    m_engine.seed(value);
}

} // namespace tessera
