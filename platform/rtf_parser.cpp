#include "platform/rtf_parser.h"

#include "platform/rtf_code_pages.h"
#include "platform/windows1252.h"

#include <QTextDocument>

#include <algorithm>

namespace tessera::rtf {
namespace {

constexpr std::size_t MaxGroupDepth = 256;
constexpr int MaxWordLength = 32;
constexpr int MaxParameter = 1 << 30;

bool isLetter(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

int hexValue(unsigned char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

RtfParser::RtfParser(std::string_view rtf, QTextDocument& document)
    : m_p(rtf.data()), m_end(rtf.data() + rtf.size()), m_document(document), m_cursor(&document),
      m_formats(m_fonts, m_colours) {
    m_state.codePage = &CodePage::byNumber(1252);
    m_blockPara = m_state.para;
}

void RtfParser::read() {
    m_cursor.beginEditBlock();
    while (m_p < m_end) {
        const auto c = static_cast<unsigned char>(*m_p);
        if (c == '{') {
            ++m_p;
            openGroup();
        } else if (c == '}') {
            ++m_p;
            if (closeGroup())
                break;
        } else if (c == '\\') {
            ++m_p;
            if (m_p < m_end && isLetter(static_cast<unsigned char>(*m_p)))
                controlWord();
            else if (m_p < m_end)
                controlSymbol(static_cast<unsigned char>(*m_p++));
        } else if (c == '\r' || c == '\n') {
            ++m_p;
        } else {
            textBytes();
        }
    }
    closeBlock();
    m_cursor.endEditBlock();
}

void RtfParser::openGroup() {
    m_charsToSkip = 0;
    if (m_overflowDepth > 0 || m_stack.size() >= MaxGroupDepth) {
        ++m_overflowDepth; // too deep to be a real document: skipped whole
        return;
    }
    m_stack.push_back(m_state);
}

bool RtfParser::closeGroup() {
    m_charsToSkip = 0;
    m_starred = false;
    if (m_overflowDepth > 0) {
        --m_overflowDepth;
        return false;
    }
    // The document's own closing: its state stays for the last paragraph.
    if (m_stack.size() <= 1)
        return true;
    const Destination leaving = m_state.destination;
    m_state = m_stack.back();
    m_stack.pop_back();
    if (leaving == Destination::FontTable) {
        commitFont();
        if (m_state.destination != Destination::FontTable)
            refreshCodePage();
    } else if (leaving == Destination::Picture && m_state.destination != Destination::Picture) {
        insertPicture();
    }
    return false;
}

void RtfParser::textBytes() {
    const Destination destination = m_overflowDepth > 0 ? Destination::Skip : m_state.destination;
    if (destination == Destination::Text && !m_state.codePage->hasLeadBytes()) {
        plainBytes();
        return;
    }
    while (m_p < m_end) {
        const auto c = static_cast<unsigned char>(*m_p);
        if (c == '{' || c == '}' || c == '\\' || c == '\r' || c == '\n')
            return;
        ++m_p;
        if (m_charsToSkip > 0) {
            --m_charsToSkip;
            continue;
        }
        switch (destination) {
        case Destination::Text:
            byte(c);
            break;
        case Destination::FontTable:
            fontTableByte(c);
            break;
        case Destination::ColourTable:
            if (c == ';')
                commitColour();
            break;
        case Destination::Picture:
            if (const int nibble = hexValue(c); nibble >= 0) {
                if (m_pictureNibble < 0) {
                    m_pictureNibble = nibble;
                } else {
                    m_picture += static_cast<char>(m_pictureNibble * 16 + nibble);
                    m_pictureNibble = -1;
                }
            }
            break;
        case Destination::LevelText:
            if (c != ';')
                m_lists.addLevelText(windows1252Table()[c]);
            break;
        case Destination::Skip:
        case Destination::ListTable:
        case Destination::ListOverrideTable:
            break;
        }
    }
}

void RtfParser::controlSymbol(unsigned char symbol) {
    if (symbol == '*') {
        m_starred = true;
        return;
    }
    if (symbol == '\'') {
        int value = 0;
        int digits = 0;
        while (digits < 2 && m_p < m_end) {
            const int nibble = hexValue(static_cast<unsigned char>(*m_p));
            if (nibble < 0)
                break;
            value = value * 16 + nibble;
            ++digits;
            ++m_p;
        }
        if (m_charsToSkip > 0) {
            --m_charsToSkip;
        } else if (digits > 0 && m_state.destination == Destination::Text && !skipping()) {
            byte(static_cast<unsigned char>(value));
        } else if (digits > 0 && m_state.destination == Destination::FontTable && !skipping()) {
            fontTableByte(static_cast<unsigned char>(value));
        } else if (digits > 0 && m_state.destination == Destination::LevelText && !skipping()) {
            // Below 9 these are the places of level numbers, kept as they are.
            m_lists.addLevelText(value < 0x20 ? char16_t(value) : windows1252Table()[value]);
        }
        return;
    }
    if (m_charsToSkip > 0) {
        --m_charsToSkip;
        return;
    }
    if (skipping())
        return;
    switch (symbol) {
    case '\\':
    case '{':
    case '}':
        if (m_state.destination == Destination::Text)
            character(symbol);
        else if (m_state.destination == Destination::FontTable)
            m_fontName += QChar(char16_t(symbol));
        break;
    case '~':
        character(0x00A0);
        break;
    case '-':
        character(0x00AD);
        break;
    case '_':
        character(0x2011);
        break;
    case '\r':
    case '\n':
        endParagraph();
        break;
    case '\t':
        character('\t');
        break;
    default:
        break;
    }
}

void RtfParser::controlWord() {
    const char* nameStart = m_p;
    while (m_p < m_end && isLetter(static_cast<unsigned char>(*m_p)))
        ++m_p;
    const std::string_view name(nameStart, static_cast<std::size_t>(m_p - nameStart));

    bool negative = false;
    if (m_p + 1 < m_end && *m_p == '-' && m_p[1] >= '0' && m_p[1] <= '9') {
        negative = true;
        ++m_p;
    }
    bool hasParameter = false;
    long long parameter = 0;
    while (m_p < m_end && *m_p >= '0' && *m_p <= '9') {
        hasParameter = true;
        if (parameter < MaxParameter)
            parameter = parameter * 10 + (*m_p - '0');
        ++m_p;
    }
    parameter = std::min<long long>(parameter, MaxParameter);
    if (m_p < m_end && *m_p == ' ')
        ++m_p;
    const int value = static_cast<int>(negative ? -parameter : parameter);

    if (skipping()) {
        if (name == "bin" && hasParameter)
            skipBinary(value);
        return;
    }
    if (m_charsToSkip > 0) {
        --m_charsToSkip;
        return;
    }
    const RtfWord word = name.size() > MaxWordLength ? RtfWord::Unknown : lookupRtfWord(name);
    applyWord(word, hasParameter, value);
}

} // namespace tessera::rtf
