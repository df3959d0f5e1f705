#pragma once
// Writes a course into the content file Tessera, byte for byte in its format: marker
// paragraphs, headers, one "\par " line a paragraph, CR LF, Windows-1252.

#include "course/compiler/course_source.h"

#include <string>
#include <vector>

namespace tessera::course {

// The whole content file. Source errors (markup, characters, counts beyond the tables) are
// added to errors; the file is written as far as it goes.
std::string WriteContent(const Course& course, std::vector<SourceError>& errors);

} // namespace tessera::course
