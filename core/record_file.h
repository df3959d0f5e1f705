#pragma once
// A file of 940-byte records opened by bare name for the length of one operation.

#include "core/records.h"

#include <string>

namespace tessera {

class RecordFile final {
public:
    // Opens for reading and writing, creating the file when asked; isOpen() tells the outcome.
    RecordFile(const std::string& name, bool create);
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    bool isOpen() const { return m_fd >= 0; }
    // Whole records only: the bytes of a cut-off last record do not count.
    int recordCount() const;
    // Record n, 1-based; what lies past the end of the file reads as zeros.
    RecordBytes read(int n) const;
    bool write(int n, const RecordBytes& bytes);
    // Cuts the file to exactly n records.
    bool truncate(int n);
    // Flushes what was written to the disk itself.
    bool sync();

private:
    int m_fd = -1;
};

} // namespace tessera
