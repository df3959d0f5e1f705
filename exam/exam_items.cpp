#include "exam/exam_items.h"

#include "core/session_state.h"

namespace tessera {

namespace {
const std::string NoText;

// Where the explanation marker "\par *" begins, or npos.
std::size_t ExplanationMarker(const std::string& fragment) {
    return fragment.find("\\par *");
}

std::string QuestionOf(const std::string& fragment) {
    if (fragment.size() <= 18) {
        return {};
    }
    const std::size_t marker = ExplanationMarker(fragment);
    const std::size_t end = marker == std::string::npos ? fragment.size() : marker;
    return end > 18 ? fragment.substr(18, end - 18) : std::string();
}

std::string ExplanationOf(const std::string& fragment) {
    const std::size_t marker = ExplanationMarker(fragment);
    return marker == std::string::npos ? std::string() : fragment.substr(marker + 6);
}
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
    return fragment.size() >= 11 ? static_cast<unsigned char>(fragment[10]) - 64 : 0;
}

int ExamItemPicture(const SessionState& state, int position) {
    if (state.ExamKind != 3 || position < 1 || position > ExamItemLimit) {
        return 0;
    }
    const int item = state.ExamItems[position];
    return item >= 1 && item <= ReviewItemLimit ? state.content.ItemPicture[item] : 0;
}

std::string ExamQuestionRtf(const SessionState& state, int position) {
    return state.content.RtfHeader + QuestionOf(ExamItemText(state, position)) + "\\par }";
}

std::string ExamExplainedRtf(const SessionState& state, int position) {
    const std::string& fragment = ExamItemText(state, position);
    return state.content.RtfHeader + QuestionOf(fragment) + std::string(15, ' ') +
           std::string(25, '\x97') + "\\par " + state.catalogue.CrLf + ExplanationOf(fragment) +
           "\\par }";
}

} // namespace tessera
