#include "core/content_file.h"

#include "core/content_format.h"

#include <filesystem>
#include <fstream>

namespace tessera {

namespace {

// The content text addressed by 1-based character positions, as the format counts them.
class ContentText {
public:
    explicit ContentText(std::string_view text) : m_text(text) {}

    int length() const { return static_cast<int>(m_text.size()); }
    // One behind the last character: where a missing marker's section would begin.
    int end() const { return length() + 1; }

    // The first match starting at `from` or later and before `bound`; 0 when there is none.
    int find(std::string_view pattern, int from, int bound) const {
        if (from < 1)
            from = 1;
        if (from > length())
            return 0;
        const size_t at = m_text.find(pattern, static_cast<size_t>(from - 1));
        if (at == std::string_view::npos || static_cast<int>(at) + 1 >= bound)
            return 0;
        return static_cast<int>(at) + 1;
    }
    int find(std::string_view pattern, int from) const { return find(pattern, from, end()); }

    // Characters first to last, both included, clipped to the text.
    std::string_view cut(int first, int last) const {
        first = std::max(first, 1);
        last = std::min(last, length());
        if (last < first)
            return {};
        return m_text.substr(static_cast<size_t>(first - 1), static_cast<size_t>(last - first + 1));
    }

private:
    std::string_view m_text;
};

std::string Closed(std::string_view fragment) {
    std::string closed;
    closed.reserve(fragment.size() + FragmentClosing.size());
    closed += fragment;
    closed += FragmentClosing;
    return closed;
}

class Cutter {
public:
    Cutter(std::string_view text, const CourseCatalogue& catalogue, CourseContent& content)
        : m_text(text), m_catalogue(catalogue), m_content(content) {}

    void run() {
        findSectionMarks();
        cutHeader();
        cutTextSections();
        cutHelpTexts();
        cutItems(mark(9), mark(10), TopicCount, ReviewItemLimit, m_content.ReviewItems, 1);
        setItemPictures();
        cutItems(mark(10), mark(11), 2, ExamItemLimit, m_content.ExamItemTexts, 2);
        cutGlossary();
    }

private:
    // A missing marker stands behind the end of the text, so its section is empty.
    int mark(int i) const {
        if (i > SectionMarkCount)
            return m_text.end();
        return m_content.SectionMarks[i] != 0 ? m_content.SectionMarks[i] : m_text.end();
    }

    void findSectionMarks() {
        for (int i = 1; i <= SectionMarkCount; ++i) {
            const int at = m_text.find(SectionMarker, m_content.SectionMarks[i - 1] + 1);
            if (at == 0)
                return;
            m_content.SectionMarks[i] = at;
        }
    }

    // Up to and including marker 1's backslash, then back to the last "!", which goes too.
    void cutHeader() {
        std::string_view head = m_text.cut(1, m_content.SectionMarks[1]);
        const size_t bang = head.rfind('!');
        m_content.RtfHeader = bang == std::string_view::npos ? std::string() : head.substr(0, bang);
    }

    void cutTextSections() {
        const std::string header = HeaderPattern(1);
        for (int i = 1; i <= TextSectionCount; ++i) {
            const int p = m_text.find(header, mark(i), mark(i + 1));
            if (p == 0)
                continue;
            m_content.TextSections[i] =
                Closed(m_text.cut(p + BodyOffset, mark(i + 1) - TextSectionTail - 1));
        }
    }

    void cutHelpTexts() {
        int p = m_text.find(HeaderPattern(1), mark(11));
        for (int i = 1; i <= HelpTextCount && p != 0; ++i) {
            const int next = i < HelpTextCount ? m_text.find(HeaderPattern(i + 1), p + 1) : 0;
            // The last text, or one whose follower is missing, runs to the text's own end.
            m_content.HelpTexts[i] = next == 0
                                         ? std::string(m_text.cut(p + BodyOffset, m_text.length()))
                                         : Closed(m_text.cut(p + BodyOffset, next - 1));
            p = next;
        }
    }

    // Items of groups 1..groups (topics or exams) between two markers. An item runs from its
    // header to the second character before the next header; the last one to the bound.
    void cutItems(int from, int bound, int groups, int limit, std::vector<std::string>& items,
                  int countColumn) {
        int n = 0;
        int last = 0;
        int search = from;
        for (int g = 1; g <= groups; ++g) {
            const std::string header = HeaderPattern(g);
            int count = 0;
            while (n < limit) {
                const int h = m_text.find(header, search, bound);
                if (h == 0)
                    break;
                ++n;
                ++count;
                if (n > 1)
                    items[n - 1] = Closed(m_text.cut(last, h - 2));
                last = h;
                search = h + 1;
            }
            if (count > 0) {
                const int next = g < groups ? m_text.find(HeaderPattern(g + 1), search, bound) : 0;
                items[n] = Closed(m_text.cut(last, next != 0 ? next - 2 : bound - 1));
            }
            m_content.ItemCounts[g][countColumn] = static_cast<int16_t>(count);
        }
    }

    void setItemPictures() {
        int n = 0;
        for (int t = 1; t <= TopicCount; ++t) {
            for (int j = 1; j <= m_content.ItemCounts[t][1] && n < ReviewItemLimit; ++j) {
                ++n;
                const std::string key = HeaderPattern(t).substr(ParagraphMark.size()) +
                                        static_cast<char>('0' + j / 100 % 10) +
                                        static_cast<char>('0' + j / 10 % 10) +
                                        static_cast<char>('0' + j % 10);
                for (int e = 1; e <= PictureItemCount; ++e)
                    if (m_catalogue.PictureItems[e].compare(0, 5, key) == 0)
                        m_content.ItemPicture[n] = static_cast<int16_t>(e);
            }
        }
    }

    // Entries are separated by empty paragraphs; a section with fewer than 1181 leaves the
    // rest empty.
    void cutGlossary() {
        const int p = m_text.find(HeaderPattern(1), mark(8), mark(9));
        if (p == 0)
            return;
        int start = p + BodyOffset;
        for (int i = 1; i <= GlossaryEntryCount; ++i) {
            const int empty = m_text.find(EmptyParagraph, start, mark(9));
            if (empty == 0)
                return;
            m_content.GlossaryEntries[i] = Closed(m_text.cut(start, empty - 1));
            start = empty + GlossaryEntryGap;
        }
    }

    ContentText m_text;
    const CourseCatalogue& m_catalogue;
    CourseContent& m_content;
};

// A folder opens like a file, but its length is no length of text.
bool Readable(const std::string& fileName) {
    std::error_code error;
    return std::filesystem::is_regular_file(fileName, error) &&
           std::ifstream(fileName, std::ios::binary).good();
}

} // namespace

std::string ReadContentText(const std::string& fileName) {
    std::ifstream in(fileName, std::ios::binary | std::ios::ate);
    if (!Readable(fileName) || !in)
        return {};
    const std::streamoff size = in.tellg();
    if (size <= 0)
        return {};
    // The last byte is not part of the text.
    std::string text(static_cast<size_t>(size - 1), '\0');
    in.seekg(0);
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<size_t>(in.gcount()));
    return text;
}

void CutContent(std::string_view text, const CourseCatalogue& catalogue, CourseContent& content) {
    Cutter(text, catalogue, content).run();
}

bool LoadContent(SessionState& state) {
    const std::string& name = state.catalogue.ContentFileName;
    if (!Readable(name))
        return false;
    const std::string text = ReadContentText(name);
    state.content = CourseContent{};
    CutContent(text, state.catalogue, state.content);
    return true;
}

} // namespace tessera
