#include "core/record_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessera {

RecordFile::RecordFile(const std::string& name, bool create)
    : m_fd(::open(name.c_str(), O_RDWR | O_CLOEXEC | (create ? O_CREAT : 0), 0644)) {}

RecordFile::~RecordFile() {
    if (m_fd >= 0)
        ::close(m_fd);
}

int RecordFile::recordCount() const {
    struct stat info {};
    if (m_fd < 0 || ::fstat(m_fd, &info) != 0)
        return 0;
    return static_cast<int>(info.st_size / RecordSize);
}

RecordBytes RecordFile::read(int n) const {
    RecordBytes bytes{};
    if (m_fd < 0 || n < 1)
        return bytes;
    const off_t offset = static_cast<off_t>(n - 1) * RecordSize;
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t got = ::pread(m_fd, bytes.data() + done, bytes.size() - done, offset + done);
        if (got <= 0)
            break;
        done += static_cast<size_t>(got);
    }
    return bytes;
}

bool RecordFile::write(int n, const RecordBytes& bytes) {
    if (m_fd < 0 || n < 1)
        return false;
    const off_t offset = static_cast<off_t>(n - 1) * RecordSize;
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t put = ::pwrite(m_fd, bytes.data() + done, bytes.size() - done, offset + done);
        if (put <= 0)
            return false;
        done += static_cast<size_t>(put);
    }
    return true;
}

bool RecordFile::truncate(int n) {
    return m_fd >= 0 && ::ftruncate(m_fd, static_cast<off_t>(n) * RecordSize) == 0;
}

bool RecordFile::sync() {
    return m_fd >= 0 && ::fsync(m_fd) == 0;
}

} // namespace tessera
