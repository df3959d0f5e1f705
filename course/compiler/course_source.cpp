#include "course/compiler/course_source.h"

#include "core/session_state.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

namespace tessera::course {

namespace fs = std::filesystem;

namespace {

struct RawLine {
    int number;
    std::string text;
};

// The lines that make something: blank lines and ";" comments are for the eye only.
std::vector<RawLine> MeaningfulLines(const std::string& text) {
    std::vector<RawLine> lines;
    size_t start = 0;
    for (int number = 1; start <= text.size(); ++number) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string line = text.substr(start, end - start);
        while (!line.empty() && (line.back() == '\r' || line.back() == ' ' || line.back() == '\t'))
            line.pop_back();
        if (!line.empty() && line[0] != ';')
            lines.push_back({number, std::move(line)});
        start = end + 1;
    }
    return lines;
}

std::string ReadWhole(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool StartsWith(const std::string& text, std::string_view prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

class ItemReader {
public:
    ItemReader(const std::string& file, std::vector<SourceError>& errors)
        : m_file(file), m_errors(errors) {}

    void line(const RawLine& raw) {
        const SourceLine source{{m_file, raw.number}, raw.text};
        if (StartsWith(raw.text, "===")) {
            finish();
            open(raw);
            return;
        }
        if (!m_open) {
            error(raw.number, "text outside an item; an item starts with \"=== X\"");
            return;
        }
        switch (m_part) {
        case Part::Stem:
            if (StartsWith(raw.text, "A. ")) {
                choice(source);
            } else if (raw.text == "---") {
                error(raw.number, "\"---\" before the four choices");
                m_part = Part::Explanation;
            } else {
                m_item.stem.push_back(source);
            }
            break;
        case Part::Choices:
            if (raw.text == "---")
                m_part = Part::Explanation; // fewer than four choices is told at the item's end
            else if (m_choice < 4)
                choice(source);
            else
                error(raw.number, "expected \"---\" behind choice D");
            break;
        case Part::Explanation:
            m_item.explanation.push_back(source);
            break;
        }
    }

    std::vector<CourseItem> finishAll() {
        finish();
        return std::move(m_items);
    }

private:
    enum class Part { Stem, Choices, Explanation };

    void open(const RawLine& raw) {
        m_open = true;
        m_part = Part::Stem;
        m_choice = 0;
        m_item = CourseItem{};
        m_item.place = {m_file, raw.number};
        std::string rest = raw.text.substr(3);
        rest.erase(0, rest.find_first_not_of(' '));
        if (rest.size() >= 7 && rest.compare(rest.size() - 7, 7, " figure") == 0) {
            m_item.figure = true;
            rest.erase(rest.size() - 7);
        }
        if (rest.size() != 1 || rest[0] < 'A' || rest[0] > 'D')
            error(raw.number, "answer letter \"" + rest + "\" is not one of A to D");
        else
            m_item.key = rest[0];
    }

    void choice(const SourceLine& source) {
        const char letter = static_cast<char>('A' + m_choice);
        const std::string prefix = std::string(1, letter) + ". ";
        if (!StartsWith(source.text, prefix)) {
            error(source.place.line, "expected choice \"" + prefix + "\"");
            return;
        }
        m_item.choices[m_choice] = {source.place, source.text.substr(prefix.size())};
        ++m_choice;
        m_part = Part::Choices;
    }

    void finish() {
        if (!m_open)
            return;
        const int line = m_item.place.line;
        if (m_item.stem.empty())
            error(line, "item without a question");
        if (m_choice < 4)
            error(line, "item with fewer than four choices");
        if (m_part != Part::Explanation)
            error(line, "item without \"---\" and an explanation");
        else if (m_item.explanation.empty())
            error(line, "item without an explanation");
        m_items.push_back(std::move(m_item));
        m_open = false;
    }

    void error(int line, std::string message) {
        m_errors.push_back({{m_file, line}, std::move(message)});
    }

    const std::string& m_file;
    std::vector<SourceError>& m_errors;
    std::vector<CourseItem> m_items;
    CourseItem m_item;
    bool m_open = false;
    Part m_part = Part::Stem;
    int m_choice = 0;
};

std::string Lowered(const std::string& text) {
    std::string lowered = text;
    std::transform(lowered.begin(), lowered.end(), lowered.begin(), [](unsigned char c) {
        return static_cast<char>(c < 0x80 ? std::tolower(c) : c);
    });
    return lowered;
}

// The files of a folder by their leading number: "3-transfer.txt" is number 3.
std::map<int, fs::path> NumberedFiles(const fs::path& folder, const std::string& name,
                                      std::vector<SourceError>& errors) {
    std::map<int, fs::path> files;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
        const std::string file = entry.path().filename().string();
        if (entry.path().extension() != ".txt")
            continue;
        const std::string where = (fs::path(name) / file).generic_string();
        const size_t digits = file.find_first_not_of("0123456789");
        if (digits == 0 || digits == std::string::npos) {
            errors.push_back({{where, 0}, "file name does not start with its number"});
            continue;
        }
        const int number = std::stoi(file.substr(0, digits));
        if (!files.emplace(number, entry.path()).second)
            errors.push_back({{where, 0}, "a second file numbered " + std::to_string(number)});
    }
    return files;
}

// Reads folder/name's files 1..count through read; a missing file leaves its slot empty, so a
// course still being written compiles.
template <class Read>
void ReadNumbered(const fs::path& folder, const std::string& name, int count,
                  std::vector<SourceError>& errors, Read read) {
    for (const auto& [number, path] : NumberedFiles(folder / name, name, errors)) {
        const std::string file = name + "/" + path.filename().string();
        if (number < 1 || number > count)
            errors.push_back({{file, 0}, "number outside 1 to " + std::to_string(count)});
        else
            read(number, ReadWhole(path), file);
    }
}

void CheckFigures(const Course& course, std::vector<SourceError>& errors) {
    SessionState state;
    FillCatalogue(state);
    auto isPictureKey = [&](int topic, int ordinal) {
        for (int e = 1; e <= PictureItemCount; ++e) {
            const PictureEntry picture = parsePictureEntry(state.catalogue.PictureItems[e]);
            if (std::stoi(picture.key.substr(0, 2)) == topic &&
                std::stoi(picture.key.substr(2)) == ordinal)
                return true;
        }
        return false;
    };
    for (int t = 1; t <= CourseTopics; ++t) {
        const auto& items = course.topics[t];
        for (size_t j = 0; j < items.size(); ++j) {
            const bool key = isPictureKey(t, static_cast<int>(j) + 1);
            if (key && !items[j].figure)
                errors.push_back({items[j].place, "the picture item must be marked \"figure\""});
            if (!key && items[j].figure)
                errors.push_back({items[j].place, "only the picture items may be marked "
                                                  "\"figure\" (topic 6 item 8, topic 9 item 75)"});
        }
    }
}

} // namespace

std::string Describe(const SourceError& error) {
    return error.place.file + ":" + std::to_string(error.place.line) + ": " + error.message;
}

std::vector<CourseItem> ParseItems(const std::string& text, const std::string& file,
                                   std::vector<SourceError>& errors) {
    ItemReader reader(file, errors);
    for (const RawLine& raw : MeaningfulLines(text))
        reader.line(raw);
    return reader.finishAll();
}

std::vector<GlossaryEntry> ParseGlossary(const std::string& text, const std::string& file,
                                         std::vector<SourceError>& errors) {
    std::vector<GlossaryEntry> entries;
    for (const RawLine& raw : MeaningfulLines(text)) {
        const size_t split = raw.text.find(" :: ");
        if (split == std::string::npos || split == 0 || split + 4 >= raw.text.size()) {
            errors.push_back({{file, raw.number}, "expected \"term :: definition\""});
            continue;
        }
        GlossaryEntry entry{
            {file, raw.number}, raw.text.substr(0, split), raw.text.substr(split + 4)};
        if (!entries.empty() && Lowered(entry.term) < Lowered(entries.back().term))
            errors.push_back({entry.place, "\"" + entry.term + "\" is out of alphabetical order"});
        entries.push_back(std::move(entry));
    }
    return entries;
}

TextDocument ParseText(const std::string& text, const std::string& file) {
    TextDocument document;
    document.place = {file, 0};
    for (const RawLine& raw : MeaningfulLines(text))
        document.paragraphs.push_back({{file, raw.number}, raw.text});
    return document;
}

Course ReadCourse(const fs::path& folder, std::vector<SourceError>& errors) {
    Course course;
    if (!fs::exists(folder / "prologue.rtf"))
        errors.push_back({{"prologue.rtf", 0}, "missing"});
    course.prologue = ReadWhole(folder / "prologue.rtf");
    ReadNumbered(folder, "texts", CourseTexts, errors,
                 [&](int n, const std::string& text, const std::string& file) {
                     course.texts[n] = ParseText(text, file);
                 });
    ReadNumbered(folder, "help", CourseHelpTexts, errors,
                 [&](int n, const std::string& text, const std::string& file) {
                     course.help[n] = ParseText(text, file);
                 });
    ReadNumbered(folder, "topics", CourseTopics, errors,
                 [&](int n, const std::string& text, const std::string& file) {
                     course.topics[n] = ParseItems(text, file, errors);
                 });
    ReadNumbered(folder, "exams", CourseExams, errors,
                 [&](int n, const std::string& text, const std::string& file) {
                     course.exams[n] = ParseItems(text, file, errors);
                 });
    if (fs::exists(folder / "glossary.txt"))
        course.glossary = ParseGlossary(ReadWhole(folder / "glossary.txt"), "glossary.txt", errors);
    CheckFigures(course, errors);
    return course;
}

} // namespace tessera::course
