#pragma once
// The large print version of a document: four control words rewritten by the factor 16/11.

#include <string>

namespace tessera {

// Rewrites "\fs", "\tx", "\li" and "\fi" behind the first "\par" in place, reading at most 2, 4,
// 4 and 4 characters of each number and rounding towards minus infinity.
void ScaleRtf(std::string& document);

} // namespace tessera
