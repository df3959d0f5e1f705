#pragma once
// One source paragraph turned into the RTF that stands behind its "\par ": Windows-1252
// escapes, bold and italic markup, headings and bullets.

#include "course/compiler/course_source.h"

#include <string>
#include <vector>

namespace tessera::course {

enum class ParagraphStyle { Plain, Heading, Bullet };

struct ParagraphRtf {
    ParagraphStyle style = ParagraphStyle::Plain;
    std::string rtf; // the paragraph's text, without "\par " and without paragraph formatting
};

// Inline text: "**bold**", "*italic*", "\*" a literal asterisk; RTF's own characters escaped;
// characters beyond ASCII as \'hh in Windows-1252. Errors name the line.
std::string InlineRtf(const SourceLine& line, std::vector<SourceError>& errors);

// A whole paragraph line: "." empty, "# " heading, "- " bullet, otherwise plain.
ParagraphRtf ParagraphOf(const SourceLine& line, std::vector<SourceError>& errors);

} // namespace tessera::course
