#include "core/new_notebook.h"

namespace tessera {

namespace {

// An empty document in bold Arial of 11.5 points, its paragraph left open.
constexpr const char* NoteBookPrologue[] = {
    R"({\rtf1\ansi\deff0\deflang1033{\fonttbl{\f0\fswiss Arial;}})",
    R"(\viewkind4\uc1\pard\b\f0\fs23 )",
};

constexpr int BlankLinesPerTopic = 4;

} // namespace

std::string RtfEscaped(const std::string& text) {
    static constexpr char hex[] = "0123456789abcdef";
    std::string escaped;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\\' || c == '{' || c == '}') {
            escaped += '\\';
            escaped += c;
        } else if (byte > 127) {
            escaped += "\\'";
            escaped += hex[byte >> 4];
            escaped += hex[byte & 15];
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::string NewNoteBookText(const CourseCatalogue& catalogue, const std::string& userName) {
    const std::string& crLf = catalogue.CrLf;
    std::string text;
    const auto line = [&](const std::string& content) { text += content + crLf; };
    for (const char* prologue : NoteBookPrologue)
        line(prologue);
    line("\\b\\qc Review Notes for the");
    line("\\par Orlanda Academy Salesperson Tessera");
    line("\\par " + catalogue.SecondTitleLine);
    line(R"(\par \pard\plain Notebook prepared by )" + RtfEscaped(userName));
    line("\\par ");
    for (int t = 1; t <= TopicCount; ++t) {
        line("\\par " + catalogue.TopicTitles[t]);
        line("\\par Notes:");
        for (int i = 0; i < BlankLinesPerTopic; ++i)
            line("\\par ");
    }
    line("\\par }");
    return text;
}

} // namespace tessera
