#pragma once
// The documents every screen shows: the content file's prologue, a fragment and a closing,
// joined as strings. Nothing here parses rich text.

#include <string>
#include <string_view>

namespace tessera {

std::string HelpDocument(std::string_view rtfHeader, std::string_view helpText);
std::string DiscussionDocument(std::string_view rtfHeader, std::string_view section);
std::string GlossaryDefinitionDocument(std::string_view rtfHeader, std::string_view definition);
std::string GlossaryTermDocument(std::string_view rtfHeader, std::string_view term);
std::string QuestionDocument(std::string_view rtfHeader, std::string_view question);
// The question, a rule line of 15 blanks and 25 long dashes (code 151) in its last paragraph,
// then the explanation.
std::string QuestionWithExplanationDocument(std::string_view rtfHeader, std::string_view question,
                                            std::string_view explanation);

// The two versions a screen keeps of the document it shows: the large one, made by ScaleRtf,
// shows while the window is maximised.
struct RtfVersions {
    std::string normal;
    std::string large;

    static RtfVersions of(std::string document);
    const std::string& forWindow(bool maximised) const { return maximised ? large : normal; }
};

} // namespace tessera
