#include "platform/rtf_lists.h"

#include <algorithm>

namespace tessera {
namespace {

// A label is at most this long, written or made, so a list cannot swell what it labels.
constexpr std::size_t MaxLevelText = 64;

std::u16string ascii(const std::string& text) {
    return std::u16string(text.begin(), text.end());
}

std::string roman(int value) {
    static const std::pair<int, const char*> numerals[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    std::string text;
    for (const auto& [amount, numeral] : numerals) {
        for (; value >= amount; value -= amount)
            text += numeral;
    }
    return text;
}

std::string letters(int value) {
    std::string text;
    for (; value > 0; value = (value - 1) / 26)
        text.insert(text.begin(), static_cast<char>('a' + (value - 1) % 26));
    return text;
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c); });
    return text;
}

} // namespace

void RtfLists::beginLevel() {
    if (m_building.size() < MaxLevels)
        m_building.emplace_back();
}

void RtfLists::setFormat(int format) {
    if (!m_building.empty())
        m_building.back().format = format;
}

void RtfLists::setStart(int start) {
    if (!m_building.empty())
        m_building.back().start = start;
}

void RtfLists::setFollow(int follow) {
    if (!m_building.empty())
        m_building.back().follow = follow;
}

void RtfLists::addLevelText(char16_t unit) {
    if (!m_building.empty() && m_building.back().text.size() < MaxLevelText)
        m_building.back().text += unit;
}

std::u16string RtfLists::number(int value, int format) {
    switch (format) {
    case 1:
        return ascii(upper(roman(std::clamp(value, 1, 3999))));
    case 2:
        return ascii(roman(std::clamp(value, 1, 3999)));
    case 3:
        return ascii(upper(letters(std::max(value, 1))));
    case 4:
        return ascii(letters(std::max(value, 1)));
    case 22:
        return ascii((value < 10 ? "0" : "") + std::to_string(value));
    case 23:
    case 255:
        return {};
    default:
        return ascii(std::to_string(value));
    }
}

std::u16string RtfLists::nextLabel(int number, int level) {
    const auto override = m_overrides.find(number);
    const auto list = m_lists.find(override == m_overrides.end() ? number : override->second);
    if (list == m_lists.end() || level < 0 || level >= static_cast<int>(list->second.size()))
        return {};
    const std::vector<Level>& levels = list->second;
    auto& counters = m_counters[number];
    counters[level] = counters[level] ? *counters[level] + 1 : levels[level].start;
    for (int deeper = level + 1; deeper < MaxLevels; ++deeper)
        counters[deeper].reset();

    const Level& shown = levels[level];
    std::u16string label;
    const std::size_t length = shown.text.empty() ? 0 : shown.text[0];
    for (std::size_t i = 1; i <= length && i < shown.text.size() && label.size() < MaxLevelText;
         ++i) {
        const char16_t unit = shown.text[i];
        if (unit < MaxLevels && unit < levels.size())
            label +=
                RtfLists::number(counters[unit].value_or(levels[unit].start), levels[unit].format);
        else if (unit >= 0x20)
            label += unit;
    }
    if (shown.follow == 0)
        label += u'\t';
    else if (shown.follow == 1)
        label += u' ';
    return label;
}

} // namespace tessera
