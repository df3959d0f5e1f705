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
    // One topic, one exam, one text and one help text: the other tables stay empty, so that a
    // run compiles only what the input holds.
    course.topics[1] = ParseItems(parts[0], "topics/1-x.txt", errors);
    course.exams[1] = course.topics[1];
    course.glossary = ParseGlossary(parts[1], "glossary.txt", errors);
    course.texts[1] = ParseText(parts[2], "texts/1-x.txt");
    course.help[1] = course.texts[1];
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
