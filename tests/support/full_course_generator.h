#pragma once
// A full-size course made up for tests and benchmarks: every table filled to the size it was
// made for (796 review items, 150 + 150 exam items, 1181 glossary entries, 7 texts, 17 help).

#include "course/compiler/course_source.h"

#include <array>
#include <string>

namespace tessera {

inline constexpr std::array<int, 10> FullTopicCounts = {0, 90, 70, 100, 85, 100, 90, 95, 66, 100};
inline constexpr int FullExamCount = 150;

// The course model, with answer letters A to D in turn and the two picture items marked.
course::Course FullCourse();

// The content file compiled from it, byte for byte as tessera-course writes it.
std::string FullCourseContent();

} // namespace tessera
