#include "course/compiler/rtf_text.h"

#include <cstdio>

namespace tessera::course {

namespace {

// Windows-1252 bytes 0x80 to 0x9F and the characters they stand for; the rest of 0xA0 to 0xFF
// is Latin-1.
constexpr char32_t CodePage80[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The Windows-1252 byte of a character, or 0 if the code page lacks it.
int CodePageByte(char32_t c) {
    if (c >= 0xA0 && c <= 0xFF)
        return static_cast<int>(c);
    for (int i = 0; i < 32; ++i)
        if (CodePage80[i] != 0 && CodePage80[i] == c)
            return 0x80 + i;
    return 0;
}

// Decodes one UTF-8 character at text[i], moving i behind it; 0xFFFD for a broken sequence.
char32_t NextCharacter(const std::string& text, size_t& i) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    if (lead < 0x80)
        return lead;
    int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : -1;
    if (more < 0)
        return 0xFFFD;
    char32_t c = lead & (0x3F >> more);
    for (; more > 0; --more) {
        if (i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80)
            return 0xFFFD;
        c = (c << 6) | (static_cast<unsigned char>(text[i++]) & 0x3F);
    }
    return c;
}

std::string Escape(int byte) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "\\'%02x", byte);
    return hex;
}

} // namespace

std::string InlineRtf(const SourceLine& line, std::vector<SourceError>& errors) {
    const std::string& text = line.text;
    std::string rtf;
    bool bold = false;
    bool italic = false;
    size_t i = 0;
    while (i < text.size()) {
        if (text.compare(i, 2, "\\*") == 0) {
            rtf += '*';
            i += 2;
        } else if (text.compare(i, 2, "**") == 0) {
            rtf += bold ? "\\b0 " : "\\b ";
            bold = !bold;
            i += 2;
        } else if (text[i] == '*') {
            rtf += italic ? "\\i0 " : "\\i ";
            italic = !italic;
            ++i;
        } else {
            const char32_t c = NextCharacter(text, i);
            if (c == '\\' || c == '{' || c == '}') {
                rtf += '\\';
                rtf += static_cast<char>(c);
            } else if (c == '\t') {
                rtf += "\\tab ";
            } else if (c >= 0x20 && c < 0x7F) {
                rtf += static_cast<char>(c);
            } else if (const int byte = CodePageByte(c)) {
                rtf += Escape(byte);
            } else {
                errors.push_back({line.place, "a character that Windows-1252 lacks"});
            }
        }
    }
    if (bold)
        errors.push_back({line.place, "\"**\" opened and not closed"});
    if (italic)
        errors.push_back({line.place, "\"*\" opened and not closed"});
    return rtf;
}

ParagraphRtf ParagraphOf(const SourceLine& line, std::vector<SourceError>& errors) {
    if (line.text == ".")
        return {};
    if (line.text.rfind("# ", 0) == 0)
        return {ParagraphStyle::Heading, InlineRtf({line.place, line.text.substr(2)}, errors)};
    if (line.text.rfind("- ", 0) == 0)
        return {ParagraphStyle::Bullet, InlineRtf({line.place, line.text.substr(2)}, errors)};
    return {ParagraphStyle::Plain, InlineRtf(line, errors)};
}

} // namespace tessera::course
