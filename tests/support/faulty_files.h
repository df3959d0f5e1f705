#pragma once
// The real files of the test's folder with one fault at a chosen step: the machine stops there
// (a crash), a write puts down only part of its bytes, or the disk is full from there on; or no
// file can be removed at all.

#include "platform/file_system.h"

namespace tessera {

class FaultyFiles final : public FileSystem {
public:
    enum class Fault { None, Crash, ShortWrite, DiskFull, RemoveRefused };

    // A crash strikes at step `at`, 1-based, counting every write, flush, rename, removal and
    // new folder; a short write and a full disk strike at write `at`.
    FaultyFiles(Fault fault, int at) : m_real(Files()), m_fault(fault), m_at(at) { UseFiles(this); }
    ~FaultyFiles() override { UseFiles(nullptr); }
    FaultyFiles(const FaultyFiles&) = delete;
    FaultyFiles& operator=(const FaultyFiles&) = delete;

    int steps() const { return m_steps; }
    int writes() const { return m_writes; }

    std::optional<std::string> read(const std::string& name) const override {
        return m_real.read(name);
    }
    bool exists(const std::string& name) const override { return m_real.exists(name); }
    bool remove(const std::string& name) override {
        return step() && m_fault != Fault::RemoveRefused && m_real.remove(name);
    }
    bool rename(const std::string& from, const std::string& to) override {
        return step() && m_real.rename(from, to);
    }
    std::unique_ptr<FileOutput> create(const std::string& name,
                                       const std::string& temporary) override {
        return std::make_unique<Output>(*this, m_real.create(name, temporary));
    }
    bool makeFolder(const std::string& folder) override {
        return step() && m_real.makeFolder(folder);
    }
    std::vector<std::string> list(const std::string& folder) const override {
        return m_real.list(folder);
    }

private:
    class Output final : public FileOutput {
    public:
        Output(FaultyFiles& files, std::unique_ptr<FileOutput> real)
            : m_files(files), m_real(std::move(real)) {}
        long long write(std::string_view bytes) override {
            const long long allowed = m_files.allowWrite(static_cast<long long>(bytes.size()));
            return allowed <= 0 ? -1
                                : m_real->write(bytes.substr(0, static_cast<std::size_t>(allowed)));
        }
        bool flush() override { return m_files.step() && m_real->flush(); }
        bool rename() override { return m_files.step() && m_real->rename(); }

    private:
        FaultyFiles& m_files;
        std::unique_ptr<FileOutput> m_real;
    };

    // One step: false once the machine has stopped, so that nothing more reaches the disk.
    bool step() {
        if (m_stopped)
            return false;
        ++m_steps;
        m_stopped = m_fault == Fault::Crash && m_steps == m_at;
        return !m_stopped;
    }
    // The bytes a write puts down; -1 for none.
    long long allowWrite(long long size) {
        const bool crashesHere = m_fault == Fault::Crash && m_steps + 1 == m_at;
        if (!step()) // a crash in the middle of a write leaves part of it on the disk
            return crashesHere ? size / 2 : -1;
        ++m_writes;
        if (m_writes == m_at && m_fault == Fault::ShortWrite)
            return size / 2;
        return m_writes >= m_at && m_fault == Fault::DiskFull ? -1 : size;
    }

    FileSystem& m_real;
    Fault m_fault;
    int m_at;
    int m_steps = 0;
    int m_writes = 0;
    bool m_stopped = false;
};

} // namespace tessera
