#pragma once
// An item as Quiz800 takes it apart: the right letter, the question with its answers, and the
// explanation behind the separator.

#include <string>
#include <string_view>

namespace tessera {

struct ReviewItemParts {
    int rightAnswer = 0; // letter code, 65 to 68
    std::string question;
    std::string explanation;
};

// Character 11 is the right letter, the question runs from character 19 to the first "\par *",
// the explanation from six characters behind it. A short or broken item gives empty parts.
ReviewItemParts CutReviewItem(std::string_view item);

} // namespace tessera
