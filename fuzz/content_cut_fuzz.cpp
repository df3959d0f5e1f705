// Any text cut as a content file, then every stored fragment read by the field readers that
// the review test, the exam, the results and the glossary viewer use.

#include "core/content_file.h"
#include "core/item_text.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void ReadItem(const std::string& fragment) {
    (void)tessera::ItemAnswerLetter(fragment);
    const std::string question = tessera::ItemQuestion(fragment);
    const std::string explanation = tessera::ItemExplanation(fragment);
    if (question.size() + explanation.size() > fragment.size() + 8)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static tessera::SessionState state = [] {
        tessera::SessionState filled;
        tessera::FillCatalogue(filled);
        return filled;
    }();
    tessera::CourseContent content;
    tessera::CutContent(std::string_view(reinterpret_cast<const char*>(data), size),
                        state.catalogue, content);
    for (const std::string& item : content.ReviewItems)
        ReadItem(item);
    for (const std::string& item : content.ExamItemTexts)
        ReadItem(item);
    for (const std::string& entry : content.GlossaryEntries) {
        const std::string term = tessera::GlossaryTerm(entry);
        const std::string definition = tessera::GlossaryDefinition(entry);
        if (term.size() + definition.size() > entry.size())
            std::abort();
    }
    return 0;
}
