#pragma once
// A QTextDocument back to RTF, with what the notebook holds: bold, italic, underline, size,
// font, colour, alignment, indents, tab stops and pictures.

#include <string>

class QTextDocument;

namespace tessera {

std::string writeRtf(const QTextDocument& document);

} // namespace tessera
