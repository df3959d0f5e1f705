#include "tools_course.h"

#include <array>
#include <cstdio>

namespace tessera {
namespace {

// The letters that begin terms, and how many terms each has; together 1181 entries.
constexpr std::array<char, 24> Letters = {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H',
                                          'I', 'J', 'K', 'L', 'M', 'N', 'O', 'P',
                                          'R', 'S', 'T', 'U', 'V', 'W', 'Y', 'Z'};
constexpr int TermsPerLetter = GlossaryEntryCount / static_cast<int>(Letters.size()); // 49

} // namespace

std::string ToolsTerm(int position) {
    const int index =
        std::min((position - 1) / TermsPerLetter, static_cast<int>(Letters.size()) - 1);
    const int within = position - 1 - index * TermsPerLetter;
    char term[32];
    std::snprintf(term, sizeof term, "%cterm %03d", Letters[index], within + 1);
    return term;
}

void FillToolsCourse(SessionState& state) {
    FillCatalogue(state);
    CourseContent& c = state.content;
    c.RtfHeader = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\\f0\\fs20 ";
    for (int k = 1; k <= HelpTextCount; ++k)
        c.HelpTexts[k] = "\\par \\fs24 Help text " + std::to_string(k) + "\r\n\\par }\r\n";
    for (int k = 1; k <= TextSectionCount; ++k)
        c.TextSections[k] =
            "\\par \\fs24 Discussion " + std::to_string(k) + ": read it twice.\r\n\\par }";
    for (int p = 1; p <= GlossaryEntryCount; ++p)
        c.GlossaryEntries[p] = ToolsTerm(p) + "\r\n\\par  Meaning number " + std::to_string(p) +
                               (p == 700 ? " with a hidden needle" : "") + ".\r\n\\par }\r\n";
}

} // namespace tessera
