#pragma once
// The notebook that a first run creates: a heading, the user's name, and a place for notes
// under each topic's title.

#include "core/course_catalogue.h"

#include <string>

namespace tessera {

// The whole file, line by line with CR LF, in Windows-1252. The name is the confirmed one,
// as typed less its leading blanks.
std::string NewNoteBookText(const CourseCatalogue& catalogue, const std::string& userName);

// A text as it stands in rich text: backslash and braces escaped, bytes above 127 as \'hh.
std::string RtfEscaped(const std::string& text);

} // namespace tessera
