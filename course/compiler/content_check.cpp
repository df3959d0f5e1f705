#include "course/compiler/content_check.h"

#include "core/content_file.h"
#include "core/content_format.h"

#include <algorithm>
#include <numeric>

namespace tessera::course {

namespace {

struct Line {
    int number;
    std::string_view text;
};

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The number of a line that starts with "\par " and two digits, else 0.
int HeaderDigits(std::string_view text) {
    if (!StartsWith(text, ParagraphMark) || text.size() < 7 || !IsDigit(text[5]) ||
        !IsDigit(text[6]))
        return 0;
    return (text[5] - '0') * 10 + (text[6] - '0');
}

class Checker {
public:
    explicit Checker(std::string_view text) { split(text); }

    ContentSummary run() {
        std::vector<int> markers;
        for (size_t i = 0; i < m_lines.size(); ++i)
            if (m_lines[i].text == SectionMarker)
                markers.push_back(static_cast<int>(i));
        for (size_t m = SectionMarkCount; m < markers.size(); ++m)
            violation(m_lines[markers[m]].number, "section marker beyond the eleventh");
        if (markers.size() < SectionMarkCount)
            violation(lastLine(),
                      std::to_string(markers.size()) + " section markers; the format has 11");
        markers.resize(std::min<size_t>(markers.size(), SectionMarkCount));

        const int prologueEnd = markers.empty() ? static_cast<int>(m_lines.size()) : markers[0];
        bool bang = false;
        for (int i = 0; i < prologueEnd; ++i)
            bang = bang || m_lines[i].text.find('!') != std::string_view::npos;
        if (!bang)
            violation(1, "no \"!\" ends the prologue in front of the first marker");

        for (size_t s = 0; s < markers.size(); ++s) {
            const int from = markers[s] + 1;
            const int to =
                s + 1 < markers.size() ? markers[s + 1] : static_cast<int>(m_lines.size());
            const int section = static_cast<int>(s) + 1;
            if (section <= 7)
                textSection(section, from, to);
            else if (section == 8)
                glossary(from, to);
            else if (section == 9)
                items(from, to, 9, m_summary.topicItems.data());
            else if (section == 10)
                items(from, to, 2, m_summary.examItems.data());
            else
                help(from, to);
        }
        std::sort(m_summary.violations.begin(), m_summary.violations.end(),
                  [](const Violation& a, const Violation& b) { return a.line < b.line; });
        return std::move(m_summary);
    }

private:
    void split(std::string_view text) {
        int number = 1;
        size_t start = 0;
        while (start < text.size()) {
            size_t end = text.find(CrLfText, start);
            if (end == std::string_view::npos)
                end = text.size();
            const std::string_view line = text.substr(start, end - start);
            if (line.find('\n') != std::string_view::npos)
                violation(number, "a line break without its CR");
            m_lines.push_back({number++, line});
            start = end + CrLfText.size();
        }
    }

    int lastLine() const { return m_lines.empty() ? 1 : m_lines.back().number; }

    void violation(int line, std::string message) {
        m_summary.violations.push_back({line, std::move(message)});
    }

    bool paragraphLine(const Line& line) {
        if (StartsWith(line.text, ParagraphMark))
            return true;
        violation(line.number, R"(line does not begin with "\par ")");
        return false;
    }

    bool expectHeader(int from, int to, const std::string& what) {
        if (from < to && m_lines[from].text == HeaderPattern(1))
            return true;
        violation(from < to ? m_lines[from].number : lastLine(), what + ": header 01 missing");
        return false;
    }

    void textSection(int section, int from, int to) {
        const std::string what = "text " + std::to_string(section);
        if (!expectHeader(from, to, what))
            return;
        for (int i = from; i < to; ++i)
            paragraphLine(m_lines[i]);
        if (to - from < 2 || m_lines[to - 1].text != ParagraphMark)
            violation(m_lines[to - 1].number, what + " must end with an empty paragraph");
        ++m_summary.texts;
    }

    void glossary(int from, int to) {
        if (!expectHeader(from, to, "glossary"))
            return;
        int i = from + 1;
        while (i < to) {
            const Line& term = m_lines[i++];
            if (!paragraphLine(term))
                continue;
            if (term.text == ParagraphMark || term.text[5] == ' ') {
                violation(term.number, "glossary entry without a term");
                continue;
            }
            ++m_summary.glossaryEntries;
            if (i < to && StartsWith(m_lines[i].text, "\\par  "))
                ++i;
            else
                violation(term.number, "glossary entry without a definition");
            if (i < to && m_lines[i].text == ParagraphMark)
                ++i;
            else
                violation(term.number, "glossary entry not followed by an empty paragraph");
        }
        if (m_summary.glossaryEntries > GlossaryEntryCount)
            violation(m_lines[to - 1].number, std::to_string(m_summary.glossaryEntries) +
                                                  " glossary entries; the table holds 1181");
    }

    // Items of groups 1..groups, in order, each from its header to the next.
    void items(int from, int to, int groups, int* counts) {
        int group = 0;
        int start = -1;
        for (int i = from; i < to; ++i) {
            const Line& line = m_lines[i];
            if (!paragraphLine(line))
                continue;
            const int digits = HeaderDigits(line.text);
            if (digits < 1 || digits > groups) {
                if (start < 0)
                    violation(line.number, "text in front of the first item");
                continue;
            }
            if (start >= 0)
                item(start, i);
            start = i;
            if (line.text.size() != 11 || !IsDigit(line.text[7]) || !IsDigit(line.text[8]) ||
                !IsDigit(line.text[9]))
                violation(line.number, "a header line inside an item, or a broken item header");
            else if (line.text[10] < 'A' || line.text[10] > 'D')
                violation(line.number,
                          "answer letter \"" + std::string(1, line.text[10]) + "\" outside A to D");
            if (digits < group)
                violation(line.number, "item of " + std::to_string(digits) + " behind items of " +
                                           std::to_string(group));
            group = std::max(group, digits);
            ++counts[digits];
        }
        if (start >= 0)
            item(start, to);
        const int total = std::accumulate(counts + 1, counts + groups + 1, 0);
        const int limit = groups == 9 ? ReviewItemLimit : ExamItemLimit;
        if (total > limit)
            violation(m_lines[to - 1].number,
                      std::to_string(total) + " items; the table holds " + std::to_string(limit));
    }

    void item(int header, int end) {
        const int number = m_lines[header].number;
        int marker = -1;
        for (int i = header + 1; i < end && marker < 0; ++i)
            if (m_lines[i].text == ExplanationMarker)
                marker = i;
        if (marker < 0) {
            violation(number, "item without its explanation marker");
            marker = end;
        }
        int choice = header;
        for (char letter = 'A'; letter <= 'D'; ++letter) {
            const std::string prefix = std::string(ParagraphMark) + letter + ".";
            int found = -1;
            for (int i = choice + 1; i < marker && found < 0; ++i)
                if (StartsWith(m_lines[i].text, prefix))
                    found = i;
            if (found < 0) {
                violation(number, std::string("item without choice ") + letter);
                return;
            }
            choice = found;
        }
        if (choice + 1 >= marker)
            violation(m_lines[choice].number, R"(no "\par " behind the last choice)");
    }

    void help(int from, int to) {
        int expected = 1;
        for (int i = from; i < to; ++i) {
            const Line& line = m_lines[i];
            if (HeaderDigits(line.text) == expected && expected <= HelpTextCount) {
                if (line.text.size() != 7)
                    violation(line.number,
                              "a help text line that reads as header " + std::to_string(expected));
                ++expected;
            } else if (i == from) {
                violation(line.number, "help: header 01 missing");
            }
        }
        m_summary.helpTexts = expected - 1;
        if (expected <= HelpTextCount)
            violation(lastLine(), "help text " + std::to_string(expected) + " missing");
    }

    std::vector<Line> m_lines;
    ContentSummary m_summary;
};

// The program's own cut must find what the lines hold.
void CompareWithCut(std::string_view text, ContentSummary& summary) {
    SessionState state;
    FillCatalogue(state);
    CourseContent content;
    CutContent(text, state.catalogue, content);
    for (int t = 1; t <= TopicCount; ++t)
        if (content.ItemCounts[t][1] != std::min(summary.topicItems[t], ReviewItemLimit))
            summary.violations.push_back({0, "the cut finds " +
                                                 std::to_string(content.ItemCounts[t][1]) +
                                                 " items of topic " + std::to_string(t)});
    for (int e = 1; e <= 2; ++e)
        if (content.ItemCounts[e][2] != std::min(summary.examItems[e], ExamItemLimit))
            summary.violations.push_back({0, "the cut finds " +
                                                 std::to_string(content.ItemCounts[e][2]) +
                                                 " items of exam " + std::to_string(e)});
    const int entries = static_cast<int>(
        std::count_if(content.GlossaryEntries.begin(), content.GlossaryEntries.end(),
                      [](const std::string& entry) { return !entry.empty(); }));
    if (entries != std::min(summary.glossaryEntries, GlossaryEntryCount))
        summary.violations.push_back(
            {0, "the cut finds " + std::to_string(entries) + " glossary entries"});
}

} // namespace

ContentSummary CheckContent(std::string_view text) {
    ContentSummary summary = Checker(text).run();
    if (summary.violations.empty())
        CompareWithCut(text, summary);
    return summary;
}

std::string OkLine(const ContentSummary& s) {
    std::string topics;
    for (int t = 1; t <= 9; ++t)
        topics += (t > 1 ? " " : "") + std::to_string(s.topicItems[t]);
    const int review = std::accumulate(s.topicItems.begin() + 1, s.topicItems.end(), 0);
    return "ok: " + std::to_string(review) + " review items (" + topics + "), " +
           std::to_string(s.examItems[1] + s.examItems[2]) + " exam items (" +
           std::to_string(s.examItems[1]) + " " + std::to_string(s.examItems[2]) + "), " +
           std::to_string(s.glossaryEntries) + " glossary entries, " + std::to_string(s.texts) +
           " texts, " + std::to_string(s.helpTexts) + " help texts";
}

} // namespace tessera::course
