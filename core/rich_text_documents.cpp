#include "core/rich_text_documents.h"

#include "core/scale_rtf.h"

#include <initializer_list>

namespace tessera {
namespace {

constexpr std::string_view CrLf = "\r\n";

std::string join(std::initializer_list<std::string_view> parts) {
    std::size_t size = 0;
    for (std::string_view part : parts)
        size += part.size();
    std::string joined;
    joined.reserve(size);
    for (std::string_view part : parts)
        joined += part;
    return joined;
}

// 15 blanks and 25 characters of code 151, the long dash of Windows-1252.
const std::string& ruleLine() {
    static const std::string rule = std::string(15, ' ') + std::string(25, '\x97');
    return rule;
}

} // namespace

std::string HelpDocument(std::string_view rtfHeader, std::string_view helpText) {
    return join({rtfHeader, helpText});
}

std::string DiscussionDocument(std::string_view rtfHeader, std::string_view section) {
    return join({rtfHeader, section, CrLf, "\\par }"});
}

std::string GlossaryDefinitionDocument(std::string_view rtfHeader, std::string_view definition) {
    return join({rtfHeader, definition, "\\par ", "}"});
}

std::string GlossaryTermDocument(std::string_view rtfHeader, std::string_view term) {
    return join({rtfHeader, "\\b\\qc ", term, "\\par }"});
}

std::string QuestionDocument(std::string_view rtfHeader, std::string_view question) {
    return join({rtfHeader, question, "\\par }"});
}

std::string QuestionWithExplanationDocument(std::string_view rtfHeader, std::string_view question,
                                            std::string_view explanation) {
    return join({rtfHeader, question, ruleLine(), "\\par ", CrLf, explanation, "\\par ", "}"});
}

RtfVersions RtfVersions::of(std::string document) {
    RtfVersions versions;
    versions.large = document;
    ScaleRtf(versions.large);
    versions.normal = std::move(document);
    return versions;
}

} // namespace tessera
