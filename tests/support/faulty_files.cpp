#include "tests/support/faulty_files.h"

namespace tessera {

namespace {

class FaultyOutput final : public FileOutput {
public:
    FaultyOutput(FaultyFiles& files, std::unique_ptr<FileOutput> real)
        : m_files(files), m_real(std::move(real)) {}

    long long write(std::string_view bytes) override {
        const long long allowed = m_files.allowWrite(static_cast<long long>(bytes.size()));
        if (allowed <= 0)
            return -1;
        return m_real->write(bytes.substr(0, static_cast<std::size_t>(allowed)));
    }
    bool flush() override { return m_files.step() && m_real->flush(); }
    bool rename() override { return m_files.step() && m_real->rename(); }

private:
    FaultyFiles& m_files;
    std::unique_ptr<FileOutput> m_real;
};

} // namespace

FaultyFiles::FaultyFiles(Fault fault, int at) : m_real(Files()), m_fault(fault), m_at(at) {
    UseFiles(this);
}

FaultyFiles::~FaultyFiles() {
    UseFiles(nullptr);
}

bool FaultyFiles::step() {
    if (m_stopped)
        return false;
    ++m_steps;
    if (m_fault == Fault::Crash && m_steps == m_at)
        m_stopped = true;
    return !m_stopped;
}

long long FaultyFiles::allowWrite(long long size) {
    const bool crashesHere = m_fault == Fault::Crash && m_steps + 1 == m_at;
    if (!step()) {
        // A crash in the middle of a write leaves part of it on the disk.
        return crashesHere ? size / 2 : -1;
    }
    ++m_writes;
    if (m_writes == m_at && m_fault == Fault::ShortWrite)
        return size / 2;
    if (m_writes >= m_at && m_fault == Fault::DiskFull)
        return -1;
    return size;
}

std::optional<std::string> FaultyFiles::read(const std::string& name) const {
    return m_real.read(name);
}

bool FaultyFiles::exists(const std::string& name) const {
    return m_real.exists(name);
}

bool FaultyFiles::remove(const std::string& name) {
    return step() && m_fault != Fault::RemoveRefused && m_real.remove(name);
}

bool FaultyFiles::rename(const std::string& from, const std::string& to) {
    return step() && m_real.rename(from, to);
}

std::unique_ptr<FileOutput> FaultyFiles::create(const std::string& name,
                                                const std::string& temporary) {
    return std::make_unique<FaultyOutput>(*this, m_real.create(name, temporary));
}

bool FaultyFiles::makeFolder(const std::string& folder) {
    return step() && m_real.makeFolder(folder);
}

std::vector<std::string> FaultyFiles::list(const std::string& folder) const {
    return m_real.list(folder);
}

} // namespace tessera
