#include "course/compiler/content_writer.h"

#include "core/content_format.h"
#include "core/course_catalogue.h"
#include "course/compiler/rtf_text.h"

#include <cstdio>

namespace tessera::course {

namespace {

class ContentWriter {
public:
    explicit ContentWriter(std::vector<SourceError>& errors) : m_errors(errors) {}

    std::string finish() { return std::move(m_out); }

    void line(std::string_view text) {
        m_out += text;
        m_out += CrLfText;
    }

    // The prologue as its file holds it, with CR LF line ends, up to and including its "!".
    void prologue(const std::string& source) {
        std::string text;
        for (char c : source) {
            if (c == '\n' && (text.empty() || text.back() != '\r'))
                text += '\r';
            text += c;
        }
        const size_t bang = text.rfind('!');
        if (bang == std::string::npos) {
            m_errors.push_back({{"prologue.rtf", 0}, "the prologue must end with \"!\""});
            text += '!';
        } else {
            text.erase(bang + 1);
        }
        line(text);
    }

    void marker() { line(SectionMarker); }
    void header(int number) { line(HeaderPattern(number)); }
    void emptyParagraph() { line(ParagraphMark); }

    // One source paragraph on its line. Paragraph formatting carries over in RTF, so the first
    // plain paragraph after a heading or bullet resets it.
    void paragraph(const SourceLine& source) {
        const ParagraphRtf p = ParagraphOf(source, m_errors);
        std::string text(ParagraphMark);
        switch (p.style) {
        case ParagraphStyle::Heading:
            text += R"(\pard\qc\b )" + p.rtf + R"(\b0 )";
            break;
        case ParagraphStyle::Bullet:
            text += R"(\pard\fi-240\li360 \'95\tab )" + p.rtf;
            break;
        case ParagraphStyle::Plain:
            if (m_formatted)
                text += "\\pard ";
            text += Guarded(p.rtf);
            break;
        }
        m_formatted = p.style != ParagraphStyle::Plain;
        line(text);
    }

    void document(const TextDocument& document) {
        for (const SourceLine& p : document.paragraphs)
            paragraph(p);
        m_formatted = false;
    }

    void item(int group, int ordinal, const CourseItem& item) {
        char header[16];
        std::snprintf(header, sizeof header, "%02d%03d%c", group % 100, ordinal % 1000, item.key);
        line(std::string(ParagraphMark) + header);
        for (const SourceLine& p : item.stem)
            paragraph(p);
        // The choices must stand as "\par A." exactly, so none can reset a heading's format.
        if (m_formatted)
            m_errors.push_back({item.stem.back().place,
                                "a heading or bullet cannot stand right in front of the choices"});
        for (int c = 0; c < 4; ++c) {
            const std::string letter(1, static_cast<char>('A' + c));
            line(std::string(ParagraphMark) + letter + ". " + InlineRtf(item.choices[c], m_errors));
        }
        emptyParagraph(); // the cut that removes a choice needs a "\par " behind the last one
        line(ExplanationMarker);
        for (const SourceLine& p : item.explanation)
            paragraph(p);
        m_formatted = false;
    }

    void glossaryEntry(const GlossaryEntry& entry) {
        const SourceLine term{entry.place, entry.term};
        const SourceLine definition{entry.place, entry.definition};
        // Terms are listed as they stand, so only a term that would read as a marker is guarded.
        const std::string termRtf = InlineRtf(term, m_errors);
        line(std::string(ParagraphMark) + (termRtf.rfind('^', 0) == 0 ? "{}" : "") + termRtf);
        line(std::string(ParagraphMark) + " " + InlineRtf(definition, m_errors));
        emptyParagraph();
    }

private:
    // A paragraph must never read as a header, a marker or a glossary definition: one that
    // starts with a digit, "^", "*" or a blank gets an empty group in front.
    static std::string Guarded(const std::string& rtf) {
        if (rtf.empty())
            return rtf;
        const char first = rtf[0];
        if ((first >= '0' && first <= '9') || first == '^' || first == '*' || first == ' ')
            return "{}" + rtf;
        return rtf;
    }

    std::string m_out;
    std::vector<SourceError>& m_errors;
    bool m_formatted = false;
};

void CheckCount(size_t count, int limit, const std::string& what,
                std::vector<SourceError>& errors) {
    if (count > static_cast<size_t>(limit))
        errors.push_back({{what, 0},
                          std::to_string(count) + " " + what + ", more than the " +
                              std::to_string(limit) + " the tables hold"});
}

} // namespace

std::string WriteContent(const Course& course, std::vector<SourceError>& errors) {
    size_t reviewItems = 0;
    for (int t = 1; t <= CourseTopics; ++t)
        reviewItems += course.topics[t].size();
    CheckCount(reviewItems, ReviewItemLimit, "review items", errors);
    CheckCount(course.exams[1].size() + course.exams[2].size(), ExamItemLimit, "exam items",
               errors);
    CheckCount(course.glossary.size(), GlossaryEntryCount, "glossary entries", errors);

    ContentWriter out(errors);
    out.prologue(course.prologue);
    for (int i = 1; i <= CourseTexts; ++i) {
        out.marker();
        out.header(1);
        out.document(course.texts[i]);
        out.emptyParagraph(); // the nine characters in front of the next marker
    }
    out.marker();
    out.header(1);
    for (const GlossaryEntry& entry : course.glossary)
        out.glossaryEntry(entry);
    out.marker();
    for (int t = 1; t <= CourseTopics; ++t)
        for (size_t j = 0; j < course.topics[t].size(); ++j)
            out.item(t, static_cast<int>(j) + 1, course.topics[t][j]);
    out.marker();
    for (int e = 1; e <= CourseExams; ++e)
        for (size_t j = 0; j < course.exams[e].size(); ++j)
            out.item(e, static_cast<int>(j) + 1, course.exams[e][j]);
    out.marker();
    for (int h = 1; h <= CourseHelpTexts; ++h) {
        out.header(h);
        out.document(course.help[h]);
    }
    out.line("\\par }");
    return out.finish();
}

} // namespace tessera::course
