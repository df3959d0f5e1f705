#include "core/progress_image.h"

#include "core/progress_file.h"
#include "platform/file_system.h"

#include <algorithm>

namespace tessera {

ProgressImage ProgressImage::load() {
    ProgressImage image;
    image.m_bytes = Files().read(ProgressFile).value_or(std::string());
    return image;
}

int ProgressImage::recordCount() const {
    return static_cast<int>(m_bytes.size() / RecordSize);
}

RecordBytes ProgressImage::read(int n) const {
    RecordBytes bytes{};
    if (n < 1)
        return bytes;
    const std::size_t offset = static_cast<std::size_t>(n - 1) * RecordSize;
    if (offset < m_bytes.size()) {
        const std::size_t length = std::min<std::size_t>(RecordSize, m_bytes.size() - offset);
        std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(offset), length, bytes.begin());
    }
    return bytes;
}

void ProgressImage::write(int n, const RecordBytes& bytes) {
    if (n < 1)
        return;
    const std::size_t offset = static_cast<std::size_t>(n - 1) * RecordSize;
    if (m_bytes.size() < offset + RecordSize)
        m_bytes.resize(offset + RecordSize, '\0');
    std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

bool ProgressImage::commit() const {
    // A record a write, so that a test can stop the machine between any two of them.
    return WriteWhole(Files(), ProgressFile, m_bytes, NewProgressFile, RecordSize);
}

} // namespace tessera
