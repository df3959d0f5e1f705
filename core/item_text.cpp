#include "core/item_text.h"

#include "core/content_format.h"

namespace tessera {

namespace {

constexpr size_t AnswerLetterIndex = 10; // position 11
constexpr size_t QuestionIndex = 18;     // position 19
constexpr std::string_view GlossarySplit = "\\par  ";

size_t MarkerIndex(std::string_view fragment) {
    if (fragment.size() <= QuestionIndex)
        return std::string_view::npos;
    return fragment.find(ExplanationMarker, QuestionIndex);
}

} // namespace

char ItemAnswerLetter(std::string_view fragment) {
    return fragment.size() > AnswerLetterIndex ? fragment[AnswerLetterIndex] : '\0';
}

std::string ItemQuestion(std::string_view fragment) {
    if (fragment.size() <= QuestionIndex)
        return {};
    const size_t marker = MarkerIndex(fragment);
    const size_t end = marker == std::string_view::npos ? fragment.size() : marker;
    return std::string(fragment.substr(QuestionIndex, end - QuestionIndex));
}

std::string ItemExplanation(std::string_view fragment) {
    const size_t marker = MarkerIndex(fragment);
    if (marker == std::string_view::npos)
        return {};
    return std::string(fragment.substr(marker + ExplanationMarker.size()));
}

std::string GlossaryTerm(std::string_view entry) {
    const size_t split = entry.find(GlossarySplit);
    if (split == std::string_view::npos)
        return std::string(entry);
    return std::string(entry.substr(0, split >= 2 ? split - 2 : 0));
}

std::string GlossaryDefinition(std::string_view entry) {
    const size_t split = entry.find(GlossarySplit);
    if (split == std::string_view::npos)
        return {};
    return std::string(entry.substr(split + GlossarySplit.size()));
}

} // namespace tessera
