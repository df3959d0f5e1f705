#pragma once
// The course tables cut from the content file at start-up; they live for the whole run.

#include "core/course_catalogue.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

struct CourseContent {
    std::array<int32_t, SectionMarkCount + 1> SectionMarks{};
    std::string RtfHeader;
    std::array<std::string, 12> TextSections;             // entries 1..7 used
    std::array<std::string, HelpTextCount + 1> HelpTexts; // entries 1..17
    std::vector<std::string> ReviewItems = std::vector<std::string>(ReviewItemLimit + 1);
    std::vector<std::string> ExamItemTexts = std::vector<std::string>(ExamItemLimit + 1);
    std::vector<std::string> GlossaryEntries = std::vector<std::string>(GlossaryEntryCount + 1);
    std::array<std::array<int16_t, 3>, TopicCount + 1> ItemCounts{}; // (t,1) topics, (e,2) exams
    std::array<int16_t, ReviewItemLimit + 1> ItemPicture{};
};

} // namespace tessera
