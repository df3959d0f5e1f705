#pragma once
// The progress file in memory for the length of one operation: read whole, changed record by
// record, and written whole through NewConfig, so that a crash leaves the old file or the new.

#include "core/records.h"

#include <string>

namespace tessera {

class ProgressImage final {
public:
    // The progress file as it stands; a missing or unreadable file is empty.
    static ProgressImage load();
    // No records: what a rewrite starts from.
    ProgressImage() = default;

    // Whole records only: the bytes of a cut-off last record do not count.
    int recordCount() const;
    // Record n, 1-based; what lies past the end reads as zeros.
    RecordBytes read(int n) const;
    // Writes record n, filling any gap before it with zeros.
    void write(int n, const RecordBytes& bytes);
    // Writes the image over the progress file, whole or not at all.
    bool commit() const;

private:
    std::string m_bytes;
};

} // namespace tessera
