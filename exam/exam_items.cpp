#include "exam/exam_items.h"

#include "core/item_text.h"
#include "core/rich_text_documents.h"
#include "core/session_state.h"

namespace tessera {

namespace {
const std::string NoText;
} // namespace

const std::string& ExamItemText(const SessionState& state, int position) {
    if (position < 1 || position > ExamItemLimit) {
        return NoText;
    }
    const int item = state.ExamItems[position];
    const auto& table =
        state.ExamKind == 3 ? state.content.ReviewItems : state.content.ExamItemTexts;
    return item >= 1 && item < static_cast<int>(table.size()) ? table[item] : NoText;
}

int ExamKeyOf(const std::string& fragment) {
    const char letter = ItemAnswerLetter(fragment);
    return letter == '\0' ? 0 : static_cast<unsigned char>(letter) - 64;
}

int ExamItemPicture(const SessionState& state, int position) {
    if (state.ExamKind != 3 || position < 1 || position > ExamItemLimit) {
        return 0;
    }
    const int item = state.ExamItems[position];
    return item >= 1 && item <= ReviewItemLimit ? state.content.ItemPicture[item] : 0;
}

std::string ExamQuestionRtf(const SessionState& state, int position) {
    return QuestionDocument(state.content.RtfHeader, ItemQuestion(ExamItemText(state, position)));
}

std::string ExamExplainedRtf(const SessionState& state, int position) {
    const std::string& fragment = ExamItemText(state, position);
    return QuestionWithExplanationDocument(state.content.RtfHeader, ItemQuestion(fragment),
                                           ItemExplanation(fragment));
}

} // namespace tessera
