#include "core/scale_rtf.h"

#include <array>
#include <string_view>

namespace tessera {
namespace {

struct ScaledWord {
    std::string_view word;
    std::size_t digitsRead;
};

constexpr std::array<ScaledWord, 4> ScaledWords{{
    {"\\fs", 2},
    {"\\tx", 4},
    {"\\li", 4},
    {"\\fi", 4},
}};

// The number at the front of a window of characters, as far as they form one, and how many
// characters it took. A lone sign reads as 0.
struct ReadNumber {
    long value = 0;
    std::size_t length = 0;
};

ReadNumber readNumber(std::string_view window) {
    std::size_t i = 0;
    const bool negative = !window.empty() && window[0] == '-';
    if (negative)
        ++i;
    long value = 0;
    const std::size_t firstDigit = i;
    while (i < window.size() && window[i] >= '0' && window[i] <= '9')
        value = value * 10 + (window[i++] - '0');
    if (i == firstDigit)
        return {};
    return {negative ? -value : value, i};
}

long floorDiv(long a, long b) {
    const long q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

} // namespace

void ScaleRtf(std::string& document) {
    // Positions count from 0 here; the first paragraph mark and what stands before it stay.
    const std::size_t firstPar = document.find("\\par");
    const std::size_t start = firstPar == std::string::npos ? 3 : firstPar + 4;

    for (const ScaledWord& scaled : ScaledWords) {
        std::size_t pos = start;
        while (pos < document.size()) {
            const std::size_t found = document.find(scaled.word, pos);
            if (found == std::string::npos)
                break;
            const std::size_t numberAt = found + scaled.word.size();
            const std::string_view window =
                std::string_view(document).substr(numberAt, scaled.digitsRead);
            const ReadNumber number = readNumber(window);
            if (number.value == 0) {
                pos = found + 1;
                continue;
            }
            const long larger = floorDiv(number.value * 16, 11);
            document.replace(numberAt, number.length, std::to_string(larger));
            pos = found + 6;
        }
    }
}

} // namespace tessera
