#pragma once
// A QTextDocument back to RTF, with what the notebook holds: bold, italic, underline, size,
// font, colour, alignment, indents, tab stops and pictures.

#include <string>

class QTextCursor;
class QTextDocument;

namespace tessera {

std::string writeRtf(const QTextDocument& document);

// The cursor's selection as a document. With no selection it is the prologue in the cursor's
// formats and the closing, "\r\n}\r\n", so that cutting those five characters off leaves an open
// paragraph to write into.
std::string writeRtf(const QTextCursor& selection);

} // namespace tessera
