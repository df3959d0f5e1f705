#pragma once
// The course as its authors write it (course/FORMAT.md), read into one model: the discussion
// and help texts, the review items by topic, the two exams and the glossary. Texts stay UTF-8
// source lines with their light markup; the content writer turns them into RTF.

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace tessera::course {

// Where a piece of the source stands, for error messages: "topics/3-x.txt:41".
struct SourcePlace {
    std::string file; // relative to the course folder
    int line = 0;
};

struct SourceError {
    SourcePlace place;
    std::string message;
};

std::string Describe(const SourceError& error);

// One paragraph line of the source; "." stands for an empty paragraph.
struct SourceLine {
    SourcePlace place;
    std::string text;
};

struct CourseItem {
    SourcePlace place;
    char key = 'A'; // letter of the right choice
    bool figure = false;
    std::vector<SourceLine> stem;
    std::array<SourceLine, 4> choices; // text behind "A. " to "D. "
    std::vector<SourceLine> explanation;
};

struct GlossaryEntry {
    SourcePlace place;
    std::string term;
    std::string definition;
};

struct TextDocument {
    SourcePlace place; // the file, line 0
    std::vector<SourceLine> paragraphs;
};

inline constexpr int CourseTopics = 9;
inline constexpr int CourseExams = 2;
inline constexpr int CourseTexts = 7;
inline constexpr int CourseHelpTexts = 17;

// Arrays count from 1, as the course does.
struct Course {
    std::string prologue; // course/prologue.rtf as it stands
    std::array<TextDocument, CourseTexts + 1> texts;
    std::array<TextDocument, CourseHelpTexts + 1> help;
    std::array<std::vector<CourseItem>, CourseTopics + 1> topics;
    std::array<std::vector<CourseItem>, CourseExams + 1> exams;
    std::vector<GlossaryEntry> glossary;
};

// Reads the course folder. Every source error is listed with its file and line; the model
// holds whatever could be read.
Course ReadCourse(const std::filesystem::path& folder, std::vector<SourceError>& errors);

// The pieces, for a single file's text (file names the text in errors).
std::vector<CourseItem> ParseItems(const std::string& text, const std::string& file,
                                   std::vector<SourceError>& errors);
std::vector<GlossaryEntry> ParseGlossary(const std::string& text, const std::string& file,
                                         std::vector<SourceError>& errors);
TextDocument ParseText(const std::string& text, const std::string& file);

} // namespace tessera::course
