// What each control word does to the state, and how text reaches the document.

#include "platform/rtf_code_pages.h"
#include "platform/rtf_parser.h"
#include "platform/rtf_reader.h"
#include "platform/windows1252.h"

#include <QImage>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

#include <algorithm>

namespace tessera::rtf {
namespace {

constexpr int MaxTwips = 31680; // 22 inches: larger values say nothing a page can show
constexpr int MaxHalfPoints = 4095;

int clampTwips(int twips) {
    return std::clamp(twips, -MaxTwips, MaxTwips);
}

} // namespace

void RtfParser::applyWord(RtfWord word, bool hasParameter, int parameter) {
    const bool starred = m_starred;
    m_starred = false;
    const bool on = !hasParameter || parameter != 0;
    RtfCharState& chars = m_state.chars;
    RtfParaState& para = m_state.para;

    switch (word) {
    case RtfWord::Unknown:
        // An unknown destination marked as ignorable is skipped with all it holds.
        if (starred)
            m_state.destination = Destination::Skip;
        break;
    case RtfWord::FontTable:
    case RtfWord::ColorTable:
    case RtfWord::Picture:
    case RtfWord::SkippedDestination:
    case RtfWord::ReadDestination:
    case RtfWord::ListTable:
    case RtfWord::ListOverrideTable:
    case RtfWord::LevelText:
    case RtfWord::ListText:
        setDestination(word);
        break;
    case RtfWord::ListBegin:
    case RtfWord::ListLevel:
    case RtfWord::LevelFormat:
    case RtfWord::LevelStart:
    case RtfWord::LevelFollow:
    case RtfWord::ListId:
    case RtfWord::ListNumber:
    case RtfWord::ListLevelIndex:
        applyListWord(word, parameter);
        break;

    case RtfWord::Ansi:
        m_ansiCodePage = 1252;
        refreshCodePage();
        break;
    case RtfWord::Mac:
        m_ansiCodePage = 10000;
        refreshCodePage();
        break;
    case RtfWord::Pc:
        m_ansiCodePage = 437;
        refreshCodePage();
        break;
    case RtfWord::Pca:
        m_ansiCodePage = 850;
        refreshCodePage();
        break;
    case RtfWord::AnsiCodePage:
        if (hasParameter && parameter > 0)
            m_ansiCodePage = parameter;
        refreshCodePage();
        break;
    case RtfWord::DefaultFont:
        m_defaultFont = std::clamp(parameter, 0, RtfCharState::NoFont - 1);
        if (chars.font == RtfCharState::NoFont)
            chars.font = m_defaultFont;
        refreshCodePage();
        break;
    case RtfWord::DefaultTab:
        if (parameter > 0) {
            QTextOption option = m_document.defaultTextOption();
            option.setTabStopDistance(twipsToPixels(clampTwips(parameter)));
            m_document.setDefaultTextOption(option);
        }
        break;

    case RtfWord::FontCharset:
        m_fontCharset = parameter;
        break;
    case RtfWord::FontCodePage:
        m_fontCodePage = parameter;
        break;
    case RtfWord::Red:
        m_red = std::clamp(parameter, 0, 255);
        m_colourGiven = true;
        break;
    case RtfWord::Green:
        m_green = std::clamp(parameter, 0, 255);
        m_colourGiven = true;
        break;
    case RtfWord::Blue:
        m_blue = std::clamp(parameter, 0, 255);
        m_colourGiven = true;
        break;

    case RtfWord::Plain:
        chars = RtfCharState{};
        chars.font = m_defaultFont;
        refreshCodePage();
        break;
    case RtfWord::Bold:
        chars.set(RtfCharState::Bold, on);
        break;
    case RtfWord::Italic:
        chars.set(RtfCharState::Italic, on);
        break;
    case RtfWord::Underline:
        chars.set(RtfCharState::Underline, on);
        break;
    case RtfWord::UnderlineNone:
        chars.set(RtfCharState::Underline, false);
        break;
    case RtfWord::Strike:
        chars.set(RtfCharState::Strike, on);
        break;
    case RtfWord::Superscript:
        chars.set(RtfCharState::Superscript, true);
        chars.set(RtfCharState::Subscript, false);
        break;
    case RtfWord::Subscript:
        chars.set(RtfCharState::Subscript, true);
        chars.set(RtfCharState::Superscript, false);
        break;
    case RtfWord::NoSuperSub:
        chars.set(RtfCharState::Superscript, false);
        chars.set(RtfCharState::Subscript, false);
        break;
    case RtfWord::Hidden:
        chars.set(RtfCharState::Hidden, on);
        break;
    case RtfWord::Font:
        if (m_state.destination == Destination::FontTable) {
            commitFont();
            m_fontNumber = parameter;
        } else {
            chars.font = std::clamp(parameter, 0, RtfCharState::NoFont - 1);
            refreshCodePage();
        }
        break;
    case RtfWord::FontSize:
        chars.halfPoints =
            parameter > 0 ? std::min(parameter, MaxHalfPoints) : RtfCharState::DefaultHalfPoints;
        break;
    case RtfWord::Colour:
        chars.colour = std::clamp(parameter, 0, 0xFFFF);
        break;

    case RtfWord::Pard:
        para = RtfParaState{};
        break;
    case RtfWord::AlignLeft:
        para.align = RtfParaState::Left;
        break;
    case RtfWord::AlignCentre:
        para.align = RtfParaState::Centre;
        break;
    case RtfWord::AlignRight:
        para.align = RtfParaState::Right;
        break;
    case RtfWord::AlignJustify:
        para.align = RtfParaState::Justify;
        break;
    case RtfWord::LeftIndent:
        para.left = clampTwips(parameter);
        break;
    case RtfWord::RightIndent:
        para.right = clampTwips(parameter);
        break;
    case RtfWord::FirstIndent:
        para.first = clampTwips(parameter);
        break;
    case RtfWord::SpaceBefore:
        para.before = std::clamp(parameter, 0, MaxTwips);
        break;
    case RtfWord::SpaceAfter:
        para.after = std::clamp(parameter, 0, MaxTwips);
        break;
    case RtfWord::TabStop:
    case RtfWord::BarTab:
        para.addTab(std::clamp(parameter, 0, MaxTwips));
        break;
    case RtfWord::TabRight:
        para.nextTabKind = QTextOption::RightTab;
        break;
    case RtfWord::TabCentre:
        para.nextTabKind = QTextOption::CenterTab;
        break;
    case RtfWord::TabDecimal:
        para.nextTabKind = QTextOption::DelimiterTab;
        break;

    case RtfWord::Par:
        endParagraph();
        break;
    case RtfWord::Line:
        character(0x2028);
        break;
    case RtfWord::Tab:
        character('\t');
        break;
    case RtfWord::Cell:
        // A table is read as text: its cells apart by tabs, each row a paragraph.
        if (m_pendingCell)
            character('\t');
        m_pendingCell = true;
        break;
    case RtfWord::Row:
        m_pendingCell = false;
        endParagraph();
        break;
    case RtfWord::LeftQuote:
        character(0x2018);
        break;
    case RtfWord::RightQuote:
        character(0x2019);
        break;
    case RtfWord::LeftDoubleQuote:
        character(0x201C);
        break;
    case RtfWord::RightDoubleQuote:
        character(0x201D);
        break;
    case RtfWord::EmDash:
        character(0x2014);
        break;
    case RtfWord::EnDash:
        character(0x2013);
        break;
    case RtfWord::Bullet:
        character(0x2022);
        break;
    case RtfWord::Space:
        character(' ');
        break;
    case RtfWord::Unicode: {
        const int unit = parameter < 0 ? parameter + 0x10000 : parameter;
        if (unit > 0 && unit <= 0xFFFF) {
            if (m_state.destination == Destination::FontTable)
                m_fontName += QChar(char16_t(unit));
            else if (m_state.destination == Destination::LevelText)
                m_lists.addLevelText(char16_t(unit));
            else if (unit >= 0x20 || unit == '\t') // control characters, as in byte()
                character(char16_t(unit));
        }
        m_charsToSkip = m_state.unicodeSkip;
        break;
    }
    case RtfWord::UnicodeSkip:
        m_state.unicodeSkip = std::clamp(parameter, 0, 16);
        break;
    case RtfWord::Binary:
        skipBinary(parameter);
        break;

    case RtfWord::PngBlip:
    case RtfWord::JpegBlip:
        m_pictureReadable = true;
        break;
    case RtfWord::OtherBlip:
        m_pictureReadable = false;
        break;
    case RtfWord::PictureWidthGoal:
        m_pictureWidthGoal = std::clamp(parameter, 0, MaxTwips);
        break;
    case RtfWord::PictureHeightGoal:
        m_pictureHeightGoal = std::clamp(parameter, 0, MaxTwips);
        break;
    case RtfWord::PictureScaleX:
        m_pictureScaleX = std::clamp(parameter, 1, 1000);
        break;
    case RtfWord::PictureScaleY:
        m_pictureScaleY = std::clamp(parameter, 1, 1000);
        break;
    }
}

void RtfParser::applyListWord(RtfWord word, int parameter) {
    const Destination destination = m_state.destination;
    const bool inTable = destination == Destination::ListTable;
    switch (word) {
    case RtfWord::ListBegin:
        if (inTable)
            m_lists.beginList();
        break;
    case RtfWord::ListLevel:
        if (inTable)
            m_lists.beginLevel();
        break;
    case RtfWord::LevelFormat:
        if (inTable)
            m_lists.setFormat(parameter);
        break;
    case RtfWord::LevelStart:
        if (inTable)
            m_lists.setStart(parameter);
        break;
    case RtfWord::LevelFollow:
        if (inTable)
            m_lists.setFollow(parameter);
        break;
    case RtfWord::ListId:
        if (inTable)
            m_lists.setListId(parameter);
        else if (destination == Destination::ListOverrideTable)
            m_lists.setOverrideListId(parameter);
        break;
    case RtfWord::ListNumber:
        if (destination == Destination::ListOverrideTable)
            m_lists.setOverrideNumber(parameter);
        else
            m_state.para.list = parameter;
        break;
    case RtfWord::ListLevelIndex:
        m_state.para.listLevel = std::clamp(parameter, 0, RtfLists::MaxLevels - 1);
        break;
    default:
        break;
    }
}

void RtfParser::setDestination(RtfWord word) {
    switch (word) {
    case RtfWord::ListTable:
        m_state.destination = Destination::ListTable;
        break;
    case RtfWord::ListOverrideTable:
        m_state.destination = Destination::ListOverrideTable;
        break;
    case RtfWord::LevelText:
        m_state.destination = m_state.destination == Destination::ListTable ? Destination::LevelText
                                                                            : Destination::Skip;
        break;
    case RtfWord::ListText:
        // Where the list table tells the labels, they are made from it instead.
        if (!m_lists.empty())
            m_state.destination = Destination::Skip;
        break;
    case RtfWord::FontTable:
        m_state.destination = Destination::FontTable;
        m_fontName.clear();
        m_fontNumber = m_defaultFont;
        m_fontCharset = 0;
        m_fontCodePage = 0;
        break;
    case RtfWord::ColorTable:
        m_state.destination = Destination::ColourTable;
        m_colourGiven = false;
        break;
    case RtfWord::Picture:
        flushRun();
        m_state.destination = Destination::Picture;
        m_picture.clear();
        m_pictureNibble = -1;
        m_pictureReadable = false;
        m_pictureWidthGoal = m_pictureHeightGoal = 0;
        m_pictureScaleX = m_pictureScaleY = 100;
        break;
    case RtfWord::ReadDestination:
        break;
    default:
        m_state.destination = Destination::Skip;
        break;
    }
}

void RtfParser::byte(unsigned char c) {
    const CodePage& page = *m_state.codePage;
    if (m_pendingLead >= 0) {
        const auto lead = static_cast<unsigned char>(m_pendingLead);
        m_pendingLead = -1;
        for (QChar unit : page.pair(lead, c))
            character(unit.unicode());
        return;
    }
    if (page.hasLeadBytes() && page.isLeadByte(c)) {
        m_pendingLead = c;
        return;
    }
    const char16_t unit = page.unit(c);
    if (unit >= 0x20 || unit == '\t')
        character(unit);
}

bool RtfParser::startText() {
    if (m_state.destination != Destination::Text || m_state.chars.has(RtfCharState::Hidden))
        return false;
    if (m_state.chars.key() != m_runChars.key()) {
        flushRun();
        m_runChars = m_state.chars;
    }
    if (m_pendingCell) {
        m_pendingCell = false;
        m_run.push_back(u'\t');
    }
    if (m_labelDue) {
        m_labelDue = false;
        if (m_state.para.list > 0)
            m_run += m_lists.nextLabel(m_state.para.list, m_state.para.listLevel);
    }
    return true;
}

void RtfParser::character(char16_t unit) {
    if (startText())
        m_run.push_back(unit);
}

void RtfParser::plainBytes() {
    const CodePage& page = *m_state.codePage;
    bool started = false;
    while (m_p < m_end) {
        const auto c = static_cast<unsigned char>(*m_p);
        if (c == '{' || c == '}' || c == '\\' || c == '\r' || c == '\n')
            return;
        ++m_p;
        if (m_charsToSkip > 0) {
            --m_charsToSkip;
            continue;
        }
        const char16_t unit = page.unit(c);
        if (unit < 0x20 && unit != '\t')
            continue;
        if (!started) {
            if (!startText())
                continue;
            started = true;
        }
        m_run.push_back(unit);
    }
}

void RtfParser::flushRun() {
    if (m_run.empty())
        return;
    openBlock();
    m_cursor.insertText(QString::fromRawData(reinterpret_cast<const QChar*>(m_run.data()),
                                             static_cast<qsizetype>(m_run.size())),
                        m_formats.charFormat(m_runChars));
    m_run.clear();
}

// A paragraph's block is made when its first text comes, so that it takes its format from the
// state of that moment; a change before the paragraph's end is set at the end.
void RtfParser::openBlock() {
    if (!m_blockPending)
        return;
    m_blockPending = false;
    m_cursor.insertBlock(m_formats.blockFormat(m_state.para), m_formats.charFormat(m_state.chars));
    m_blockPara = m_state.para;
}

void RtfParser::closeBlock() {
    flushRun();
    openBlock();
    if (!(m_state.para == m_blockPara)) {
        m_cursor.setBlockFormat(m_formats.blockFormat(m_state.para));
        m_blockPara = m_state.para;
    }
}

void RtfParser::endParagraph() {
    if (m_state.destination != Destination::Text)
        return;
    closeBlock();
    m_pendingCell = false;
    m_pendingLead = -1;
    m_blockPending = true;
    m_labelDue = true;
}

void RtfParser::skipBinary(int count) {
    const auto available = static_cast<std::size_t>(m_end - m_p);
    const std::size_t skipped = std::min(available, static_cast<std::size_t>(std::max(count, 0)));
    if (m_state.destination == Destination::Picture && !skipping())
        m_picture.append(m_p, skipped);
    m_p += skipped;
}

void RtfParser::fontTableByte(unsigned char c) {
    if (c == ';')
        commitFont();
    else
        m_fontName += QChar(windows1252Table()[c]);
}

void RtfParser::commitFont() {
    const QString name = m_fontName.trimmed();
    const int codePage =
        m_fontCodePage > 0 ? m_fontCodePage : CodePage::numberForCharset(m_fontCharset);
    m_fontName.clear();
    m_fontCharset = 0;
    m_fontCodePage = 0;
    if (!name.isEmpty())
        m_fonts[m_fontNumber] = RtfFont{name, codePage};
}

void RtfParser::commitColour() {
    m_colours.push_back(m_colourGiven ? QColor(m_red, m_green, m_blue) : QColor());
    m_red = m_green = m_blue = 0;
    m_colourGiven = false;
}

void RtfParser::refreshCodePage() {
    const auto font = m_fonts.find(m_state.chars.font);
    const int number =
        font != m_fonts.end() && font->second.codePage > 0 ? font->second.codePage : m_ansiCodePage;
    if (m_state.codePage->number() != number)
        m_state.codePage = &CodePage::byNumber(number);
}

void RtfParser::insertPicture() {
    QImage image;
    if (m_pictureReadable && !m_picture.empty())
        image.loadFromData(reinterpret_cast<const uchar*>(m_picture.data()),
                           static_cast<int>(m_picture.size()));
    m_picture.clear();
    if (image.isNull() || m_state.destination != Destination::Text)
        return;
    const QString name = QStringLiteral("rtf-picture-%1").arg(++m_pictureCount);
    m_document.addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat format;
    format.setName(name);
    const double width = m_pictureWidthGoal > 0 ? twipsToPixels(m_pictureWidthGoal) : image.width();
    const double height =
        m_pictureHeightGoal > 0 ? twipsToPixels(m_pictureHeightGoal) : image.height();
    format.setWidth(width * m_pictureScaleX / 100.0);
    format.setHeight(height * m_pictureScaleY / 100.0);
    flushRun();
    openBlock();
    m_cursor.insertImage(format);
}

} // namespace tessera::rtf
