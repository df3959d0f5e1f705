#pragma once
// Our RTF reader: what a word processor saves, into a QTextDocument.

#include <QString>

#include <string_view>

class QTextDocument;

namespace tessera {

// Replaces the document's contents with the rich text read from `rtf`. Text behind the first
// balanced closing brace is not read. Input that is not RTF at all is taken as plain text in
// Windows-1252. Malformed input is read as far as it goes.
void readRtf(std::string_view rtf, QTextDocument& document);

// Text as Qt keeps it, made plain: a paragraph or line break is '\n', a no-break space ' '.
QString plainChars(QString text);

// The plain text of a document, one character for each cursor position; a picture is U+FFFC.
QString plainTextOf(const QTextDocument& document);

// Twips to the document's units (pixels at 96 dots an inch) and back.
inline double twipsToPixels(double twips) {
    return twips / 15.0;
}
inline int pixelsToTwips(double pixels) {
    return static_cast<int>(pixels * 15.0 + (pixels < 0 ? -0.5 : 0.5));
}

} // namespace tessera
