// Any document through the large print rewrite; the sanitizers watch the in-place edits.

#include "core/scale_rtf.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string document(reinterpret_cast<const char*>(data), size);
    tessera::ScaleRtf(document);
    return 0;
}
