// Any text as course source: the input holds an item file, a glossary and a text, split at
// NUL bytes. They are compiled into a content file, which the check and the cut then read.

#include "core/content_file.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"

#include <array>
#include <cstdint>
#include <string>

using namespace tessera::course;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::array<std::string, 3> parts;
    size_t start = 0;
    for (std::string& part : parts) {
        const size_t end = std::min(input.find('\0', start), input.size());
        part = input.substr(std::min(start, input.size()), end - std::min(start, input.size()));
        start = end + 1;
    }

    std::vector<SourceError> errors;
    Course course;
    course.prologue = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 !";
    const std::vector<CourseItem> items = ParseItems(parts[0], "topics/1-x.txt", errors);
    for (int t = 1; t <= CourseTopics; ++t)
        course.topics[t] = items;
    for (int e = 1; e <= CourseExams; ++e)
        course.exams[e] = items;
    course.glossary = ParseGlossary(parts[1], "glossary.txt", errors);
    const TextDocument text = ParseText(parts[2], "texts/1-x.txt");
    for (int i = 1; i <= CourseTexts; ++i)
        course.texts[i] = text;
    for (int i = 1; i <= CourseHelpTexts; ++i)
        course.help[i] = text;
    for (const SourceError& error : errors)
        (void)Describe(error);

    const std::string content = WriteContent(course, errors);
    const std::string_view cut = std::string_view(content).substr(0, content.size() - 1);
    (void)OkLine(CheckContent(cut));
    tessera::SessionState state;
    tessera::FillCatalogue(state);
    tessera::CutContent(cut, state.catalogue, state.content);
    return 0;
}
