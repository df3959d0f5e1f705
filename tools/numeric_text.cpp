#include "tools/numeric_text.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>

namespace tessera {

namespace {

size_t skipDigits(std::string_view text, size_t at) {
    while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])) != 0)
        ++at;
    return at;
}

} // namespace

double NumericValue(std::string_view text) {
    size_t start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    size_t end = start;
    if (end < text.size() && (text[end] == '-' || text[end] == '+'))
        ++end;
    const size_t wholeStart = end;
    end = skipDigits(text, end);
    bool digits = end > wholeStart;
    if (end < text.size() && text[end] == '.') {
        const size_t fraction = skipDigits(text, end + 1);
        digits = digits || fraction > end + 1;
        end = fraction;
    }
    if (!digits)
        return 0;
    // An exponent counts only when digits follow it.
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+'))
            ++exponent;
        const size_t exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent)
            end = exponentEnd;
    }
    // from_chars takes no leading plus.
    const size_t first = text[start] == '+' ? start + 1 : start;
    double value = 0;
    const auto error = std::from_chars(text.data() + first, text.data() + end, value).ec;
    if (error == std::errc::result_out_of_range) {
        // Out of range either way: a large negative exponent is an underflow to 0.
        const std::string_view number = text.substr(first, end - first);
        const size_t exponent = number.find_first_of("Ee");
        if (exponent != std::string_view::npos && number[exponent + 1] == '-')
            return 0;
        return number.front() == '-' ? -std::numeric_limits<double>::infinity()
                                     : std::numeric_limits<double>::infinity();
    }
    return value;
}

std::string FloatText(double value) {
    char text[40];
    // Adding zero turns a negative zero into zero; to_chars ignores the user's locale.
    const auto end =
        std::to_chars(text, text + sizeof text, value + 0.0, std::chars_format::general, 15).ptr;
    std::string result(text, end);
    for (char& c : result)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return result;
}

} // namespace tessera
