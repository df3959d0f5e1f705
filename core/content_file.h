#pragma once
// Cutting the content file Tessera into the course tables, at fixed character patterns.

#include "core/course_content.h"
#include "core/session_state.h"

#include <string>
#include <string_view>

namespace tessera {

// The text of a content file as the cut sees it: the whole file but its last byte. Empty when
// the file cannot be read.
std::string ReadContentText(const std::string& fileName);

// Cuts a content text into the tables. A text that breaks the format is cut as far as it goes:
// a missing marker or header ends the step that looks for it, and nothing is read outside the
// text. Tables the text does not reach stay empty.
void CutContent(std::string_view text, const CourseCatalogue& catalogue, CourseContent& content);

// Start-up: reads the content file Tessera (ContentFileName of the catalogue, filled first) from
// the current directory and cuts it into state.content. False when the file cannot be read.
bool LoadContent(SessionState& state);

} // namespace tessera
