#pragma once
// The fixed character patterns that carry the structure of the content file.

#include <string>
#include <string_view>

namespace tessera {

inline constexpr std::string_view CrLfText = "\r\n";
inline constexpr std::string_view ParagraphMark = "\\par ";
inline constexpr std::string_view SectionMarker = "\\par ^";
inline constexpr std::string_view ExplanationMarker = "\\par *";
inline constexpr std::string_view EmptyParagraph = "\\par \r\n";
// Every stored fragment but the last help text ends with this.
inline constexpr std::string_view FragmentClosing = "\\par }\r\n";

// A body starts 14 characters behind its header: "\par ", two digits, CR LF, "\par ".
inline constexpr int BodyOffset = 14;
// The nine characters in front of the next section marker are not part of a text section.
inline constexpr int TextSectionTail = 9;
// Behind an entry's empty paragraph: "\par ", CR LF and the next entry's "\par ".
inline constexpr int GlossaryEntryGap = 12;

// "\par " and the number in two digits: a header of a topic, exam or text.
inline std::string HeaderPattern(int number) {
    std::string pattern(ParagraphMark);
    pattern += static_cast<char>('0' + number / 10 % 10);
    pattern += static_cast<char>('0' + number % 10);
    return pattern;
}

} // namespace tessera
