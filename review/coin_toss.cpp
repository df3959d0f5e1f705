#include "review/coin_toss.h"

#include "platform/random_source.h"

namespace tessera {

int DrawCoinTossSurvivor(const std::array<bool, 4>& marks, Random& random) {
    const int count = static_cast<int>(marks.size());
    bool any = false;
    for (bool mark : marks)
        any = any || mark;
    if (!any)
        return -1;
    for (;;) {
        const int k = static_cast<int>(random.next() * count);
        if (k >= 0 && k < count && marks[static_cast<size_t>(k)])
            return k;
    }
}

void CutAnswerText(std::string& question, int index, const std::string& crLf) {
    const std::string start = std::string("\\par ") + static_cast<char>('A' + index) + ".";
    const size_t p = question.find(start);
    if (p == std::string::npos)
        return;
    const size_t q = question.find("\\par ", p + 1);
    if (q == std::string::npos)
        return;
    // The backslash at p stays: with the line break behind it, it is a paragraph break.
    question = question.substr(0, p + 1) + crLf + question.substr(q);
}

} // namespace tessera
