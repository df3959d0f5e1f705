#pragma once
// The code pages an RTF document may name, decoded through the system's iconv.

#include <QString>

#include <array>

#include <iconv.h>

namespace tessera {

// A single- or double-byte code page as a table: each byte's character, or a mark that the
// byte leads a two-byte character.
class CodePage {
public:
    // The code page of that number, made once and kept; unknown numbers give Windows-1252.
    static const CodePage& byNumber(int number);
    // The code page that an RTF \fcharset value stands for; 0 where it names none.
    static int numberForCharset(int charset);

    ~CodePage();
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;

    int number() const { return m_number; }
    bool hasLeadBytes() const { return m_hasLeadBytes; }
    bool isLeadByte(unsigned char byte) const { return m_units[byte] == LeadByte; }
    // The character of a single byte; 0 for a byte that stands for nothing.
    char16_t unit(unsigned char byte) const { return m_units[byte]; }
    // The character of a lead and a trail byte; U+FFFD if the pair means nothing.
    QString pair(unsigned char lead, unsigned char trail) const;

private:
    static constexpr char16_t LeadByte = 0xFFFF;
    explicit CodePage(int number);

    int m_number;
    iconv_t m_converter; // open for the run, like the table of pages
    bool m_hasLeadBytes = false;
    std::array<char16_t, 256> m_units{};
};

} // namespace tessera
