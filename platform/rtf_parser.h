#pragma once
// The reader's inner parser: one pass over the bytes, text inserted run by run.

#include "platform/rtf_control_words.h"
#include "platform/rtf_lists.h"
#include "platform/rtf_reader_state.h"

#include <QColor>
#include <QString>
#include <QTextCursor>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QTextDocument;

namespace tessera {

class CodePage;

namespace rtf {

enum class Destination : uint8_t {
    Text,
    Skip,
    FontTable,
    ColourTable,
    Picture,
    ListTable,
    ListOverrideTable,
    LevelText,
};

struct GroupState {
    RtfCharState chars;
    RtfParaState para;
    Destination destination = Destination::Text;
    int unicodeSkip = 1;
    const CodePage* codePage = nullptr;
};

// The value of a hexadecimal digit, or -1.
int hexValue(unsigned char c);

class RtfParser {
public:
    RtfParser(std::string_view rtf, QTextDocument& document);

    void read();

private:
    // Structure
    void openGroup();
    bool closeGroup();
    void controlSymbol(unsigned char symbol);
    void controlWord();
    void applyWord(RtfWord word, bool hasParameter, int parameter);
    void applyListWord(RtfWord word, int parameter);
    void setDestination(RtfWord word);
    void textBytes();

    // Text
    void byte(unsigned char c);
    bool startText();
    void character(char16_t unit);
    void plainBytes();
    void flushRun();
    void openBlock();
    void closeBlock();
    void endParagraph();
    void skipBinary(int count);

    // Tables of fonts and colours
    void fontTableByte(unsigned char c);
    void commitFont();
    void commitColour();
    void refreshCodePage();

    // Pictures
    void insertPicture();

    bool skipping() const {
        return m_overflowDepth > 0 || m_state.destination == Destination::Skip;
    }

    const char* m_p;
    const char* m_end;
    QTextDocument& m_document;
    QTextCursor m_cursor;

    GroupState m_state;
    std::vector<GroupState> m_stack;
    std::size_t m_overflowDepth = 0;
    bool m_starred = false;
    int m_charsToSkip = 0;
    int m_pendingLead = -1;
    bool m_pendingCell = false;
    bool m_blockPending = false;
    bool m_labelDue = true; // the next text begins a paragraph, which may carry a list label

    std::u16string m_run; // the text of one format, waiting to be inserted
    RtfCharState m_runChars;
    RtfParaState m_blockPara;

    int m_ansiCodePage = 1252;
    int m_defaultFont = 0;
    std::unordered_map<int, RtfFont> m_fonts;
    int m_fontNumber = 0;
    int m_fontCharset = 0;
    int m_fontCodePage = 0;
    QString m_fontName;
    std::vector<QColor> m_colours;
    int m_red = 0, m_green = 0, m_blue = 0;
    bool m_colourGiven = false;
    RtfFormats m_formats;
    RtfLists m_lists;

    std::string m_picture;
    int m_pictureNibble = -1;
    bool m_pictureReadable = false;
    int m_pictureWidthGoal = 0, m_pictureHeightGoal = 0;
    int m_pictureScaleX = 100, m_pictureScaleY = 100;
    int m_pictureCount = 0;
};

} // namespace rtf
} // namespace tessera
