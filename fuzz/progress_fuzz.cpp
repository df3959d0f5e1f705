// Any bytes as a progress file: every record decoded by its first byte, encoded back to the
// same 940 bytes, and restored into the session as start-up restores a suspended one.

#include "core/records.h"
#include "core/session_state.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

tessera::RecordBytes Record(const uint8_t* data, size_t size, size_t n) {
    tessera::RecordBytes bytes{};
    const size_t start = n * tessera::RecordSize;
    if (start < size)
        std::copy_n(data + start, std::min<size_t>(tessera::RecordSize, size - start),
                    bytes.begin());
    return bytes;
}

void Expect(bool same) {
    if (!same)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tessera::SessionState state;
    tessera::FillCatalogue(state);
    const tessera::RecordBytes first = Record(data, size, 0);
    const tessera::ProgressHeader header = tessera::DecodeHeader(first);
    Expect(tessera::EncodeHeader(header) == first);
    tessera::ApplyHeader(header, state);
    // A cut-off last record reads as zeros behind the file's end, as the record file reads it.
    const size_t records = (size + tessera::RecordSize - 1) / tessera::RecordSize;
    for (size_t n = 1; n < records; ++n) {
        const tessera::RecordBytes bytes = Record(data, size, n);
        if (tessera::IsReviewTestByte(bytes[0])) {
            const tessera::ReviewTestRecord record = tessera::DecodeReviewTest(bytes);
            Expect(tessera::EncodeReviewTest(record) == bytes);
            tessera::RestoreReviewTest(record, state);
        } else {
            const tessera::ExamRecord record = tessera::DecodeExam(bytes);
            Expect(tessera::EncodeExam(record) == bytes);
            tessera::RestoreExam(record, state);
        }
    }
    return 0;
}
