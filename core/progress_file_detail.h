#pragma once
// Helpers shared by the progress file's save and rewrite operations.

#include <cstdint>

namespace tessera {

class ProgressImage;

namespace detail {

// The header byte for a suspended record number: 0 when the byte cannot hold it.
uint8_t HeaderByte(int recordNumber);

// True when the record lies behind the header, inside the file, and is of the asked kind.
bool PointsAtRecordOfKind(const ProgressImage& file, int recordNumber, bool exam);

} // namespace detail
} // namespace tessera
