#include "review/review_item.h"

namespace tessera {

ReviewItemParts CutReviewItem(std::string_view item) {
    constexpr std::string_view ItemSeparator = "\\par *";
    constexpr size_t LetterAt = 10;
    constexpr size_t QuestionAt = 18;

    ReviewItemParts parts;
    if (item.size() > LetterAt)
        parts.rightAnswer = static_cast<unsigned char>(item[LetterAt]);
    const size_t s = item.find(ItemSeparator);
    if (s == std::string_view::npos) {
        if (item.size() > QuestionAt)
            parts.question = item.substr(QuestionAt);
        return parts;
    }
    if (s > QuestionAt)
        parts.question = item.substr(QuestionAt, s - QuestionAt);
    parts.explanation = item.substr(s + ItemSeparator.size());
    return parts;
}

} // namespace tessera
