#include "tests/support/small_course.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tessera {
namespace {

// The letters that begin terms; each has 49 terms, Z the rest of the 1181.
constexpr std::array<char, 24> Letters = {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H',
                                          'I', 'J', 'K', 'L', 'M', 'N', 'O', 'P',
                                          'R', 'S', 'T', 'U', 'V', 'W', 'Y', 'Z'};
constexpr int TermsPerLetter = GlossaryEntryCount / static_cast<int>(Letters.size());

// The right letter of the item with this ordinal: A, B, C, D, A, ...
char KeyLetter(int ordinal) {
    return static_cast<char>('A' + (ordinal - 1) % 4);
}

// The term at list position p (from 1) of the glossary.
std::string SmallCourseTerm(int position) {
    const int index =
        std::min((position - 1) / TermsPerLetter, static_cast<int>(Letters.size()) - 1);
    char term[32];
    std::snprintf(term, sizeof term, "%cterm %03d", Letters[index],
                  position - index * TermsPerLetter);
    return term;
}

std::string Item(int header, int ordinal) {
    char head[32];
    std::snprintf(head, sizeof head, "\\par %02d%03d%c", header, ordinal, KeyLetter(ordinal));
    const std::string name = std::to_string(header) + "." + std::to_string(ordinal);
    return std::string(head) + "\r\n\\par Question " + name + "\r\n\\par A. one\r\n" +
           "\\par B. two\r\n\\par C. three\r\n\\par D. four\r\n\\par \r\n\\par *\r\n" +
           "\\par Explanation " + name + "\r\n\\par }\r\n";
}

// Items of header h (a topic, or an exam) in running order; column 1 counts topics, 2 exams.
void FillItems(CourseContent& c, int column, const std::vector<int>& counts,
               std::vector<std::string>& texts) {
    int running = 0;
    for (int h = 1; h <= static_cast<int>(counts.size()); ++h) {
        c.ItemCounts[h][column] = static_cast<int16_t>(counts[h - 1]);
        for (int j = 1; j <= counts[h - 1]; ++j)
            texts[++running] = Item(h, j);
    }
}

} // namespace

void FillSmallCourse(SessionState& state, const std::vector<int>& topicCounts,
                     const std::vector<int>& examCounts) {
    FillCatalogue(state);
    CourseContent& c = state.content;
    c.RtfHeader = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\\f0\\fs20 ";
    FillItems(c, 1, topicCounts, c.ReviewItems);
    FillItems(c, 2, examCounts, c.ExamItemTexts);
    for (int k = 1; k <= HelpTextCount; ++k)
        c.HelpTexts[k] = "\\par \\fs24 Help text " + std::to_string(k) + "\r\n\\par }\r\n";
    for (int k = 1; k <= TextSectionCount; ++k)
        c.TextSections[k] =
            "\\par \\fs24 Discussion " + std::to_string(k) + ": read it twice.\r\n\\par }";
    for (int p = 1; p <= GlossaryEntryCount; ++p)
        c.GlossaryEntries[p] = SmallCourseTerm(p) + "\r\n\\par  Meaning number " +
                               std::to_string(p) + (p == 700 ? " with a hidden needle" : "") +
                               ".\r\n\\par }\r\n";
}

} // namespace tessera
