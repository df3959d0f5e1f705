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
    FaultyFiles(Fault fault, int at);
    ~FaultyFiles() override;
    FaultyFiles(const FaultyFiles&) = delete;
    FaultyFiles& operator=(const FaultyFiles&) = delete;

    int steps() const { return m_steps; }
    int writes() const { return m_writes; }

    std::optional<std::string> read(const std::string& name) const override;
    bool exists(const std::string& name) const override;
    bool remove(const std::string& name) override;
    bool rename(const std::string& from, const std::string& to) override;
    std::unique_ptr<FileOutput> create(const std::string& name,
                                       const std::string& temporary) override;
    bool makeFolder(const std::string& folder) override;
    std::vector<std::string> list(const std::string& folder) const override;

    // One step: false once the machine has stopped, so that nothing more reaches the disk.
    bool step();
    // The bytes a write puts down; -1 for none.
    long long allowWrite(long long size);

private:
    FileSystem& m_real;
    Fault m_fault;
    int m_at;
    int m_steps = 0;
    int m_writes = 0;
    bool m_stopped = false;
};

} // namespace tessera
