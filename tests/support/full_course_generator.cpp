#include "tests/support/full_course_generator.h"

#include "course/compiler/content_writer.h"

#include <stdexcept>

namespace tessera {

namespace {

using course::SourceLine;

constexpr const char* Words[] = {
    "property", "title",  "lender", "buyer",    "seller", "deed",    "lease",    "value",
    "broker",   "escrow", "zoning", "easement", "tenant", "closing", "mortgage", "appraisal",
    "contract", "county", "market", "interest", "parcel", "survey",  "license",  "agent"};

// A sentence of n words, the same for the same seed.
std::string Sentence(unsigned seed, int n) {
    std::string text = "The";
    for (int i = 0; i < n; ++i) {
        seed = seed * 1103515245u + 12345u;
        text += ' ';
        text += Words[(seed >> 16) % std::size(Words)];
    }
    return text + ".";
}

course::CourseItem MakeItem(int group, int ordinal, unsigned seed) {
    course::CourseItem item;
    item.place = {"generated", ordinal};
    item.key = static_cast<char>('A' + ordinal % 4);
    item.stem = {{item.place, Sentence(seed, 24) + " Which is **best** for item " +
                                  std::to_string(group) + "-" + std::to_string(ordinal) + "?"}};
    for (int c = 0; c < 4; ++c)
        item.choices[c] = {item.place, Sentence(seed + c + 1, 5)};
    item.explanation = {{item.place, Sentence(seed + 7, 40)}, {item.place, Sentence(seed + 9, 30)}};
    return item;
}

} // namespace

course::Course FullCourse() {
    course::Course c;
    c.prologue = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\n"
                 "{\\colortbl ;\\red0\\green0\\blue0;}\n\\pard\\plain\\f0\\fs24 !\n";
    for (int i = 1; i <= course::CourseTexts; ++i)
        for (int p = 0; p < 40; ++p)
            c.texts[i].paragraphs.push_back({{"generated", p}, Sentence(i * 100 + p, 60)});
    for (int h = 1; h <= course::CourseHelpTexts; ++h)
        for (int p = 0; p < 12; ++p)
            c.help[h].paragraphs.push_back({{"generated", p}, Sentence(h * 50 + p, 40)});
    for (int t = 1; t <= course::CourseTopics; ++t)
        for (int j = 1; j <= FullTopicCounts[t]; ++j)
            c.topics[t].push_back(MakeItem(t, j, t * 1000 + j));
    c.topics[6][7].figure = true;
    c.topics[9][74].figure = true;
    for (int e = 1; e <= course::CourseExams; ++e)
        for (int j = 1; j <= FullExamCount; ++j)
            c.exams[e].push_back(MakeItem(e, j, 50000 + e * 1000 + j));
    // Terms in alphabetical order: a letter, then a running number that sorts as text.
    for (int g = 0; g < 1181; ++g) {
        const std::string number = std::to_string(1000 + g % 46);
        const std::string term = std::string(1, static_cast<char>('A' + g / 46)) + "term " + number;
        c.glossary.push_back({{"generated", g + 1}, term, Sentence(g + 7, 25)});
    }
    return c;
}

std::string FullCourseContent() {
    std::vector<course::SourceError> errors;
    std::string content = course::WriteContent(FullCourse(), errors);
    if (!errors.empty())
        throw std::logic_error("the generated course does not compile: " +
                               course::Describe(errors.front()));
    return content;
}

} // namespace tessera
