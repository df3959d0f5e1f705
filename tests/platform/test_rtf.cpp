// RTF read into a document and written back: text, format, pictures, files of real word
// processors, and damaged input (beside the fuzz target's corpus); the large version scaled.

#include "core/scale_rtf.h"
#include "platform/rtf_reader.h"
#include "platform/rtf_writer.h"

#include <QDir>
#include <QFile>
#include <QFont>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <sstream>

namespace tessera {
namespace {

const std::string Header = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f1\\fmodern "
                           "Courier New;}}{\\colortbl ;\\red255\\green0\\blue0;}\r\n";

// A document as its paragraphs, each opened by '#' and the layout it has beyond the default
// (alignment, left, right, first-line indent, space above and below, tab stops, in pixels), and
// its runs, each a text with its format in brackets: bold, italic, underline, struck, raised or
// lowered, then the size, the font and a colour other than black.
std::string Rendered(const QTextDocument& document) {
    std::ostringstream text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat p = block.blockFormat();
        const auto align = p.alignment() & Qt::AlignHorizontal_Mask;
        text << "#"
             << (align == Qt::AlignHCenter   ? "centre "
                 : align == Qt::AlignRight   ? "right "
                 : align == Qt::AlignJustify ? "justify "
                                             : "");
        for (const auto& [name, value] : {std::pair{"left", p.leftMargin()},
                                          {"right", p.rightMargin()},
                                          {"first", p.textIndent()},
                                          {"above", p.topMargin()},
                                          {"below", p.bottomMargin()}})
            if (value != 0)
                text << name << " " << value << " ";
        for (const QTextOption::Tab& tab : p.tabPositions())
            text << "tab " << tab.position << (tab.type == QTextOption::RightTab ? "R " : " ");
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat f = it.fragment().charFormat();
            const QColor colour = f.foreground().color();
            text << it.fragment().text().toStdString() << "["
                 << (f.fontWeight() >= QFont::Bold ? "b" : "") << (f.fontItalic() ? "i" : "")
                 << (f.fontUnderline() ? "u" : "") << (f.fontStrikeOut() ? "s" : "")
                 << (f.verticalAlignment() == QTextCharFormat::AlignSuperScript ? "^"
                     : f.verticalAlignment() == QTextCharFormat::AlignSubScript ? "_"
                                                                                : "")
                 << " " << f.fontPointSize() << " "
                 << f.fontFamilies().toStringList().join(u',').toStdString()
                 << (colour != Qt::black ? " " + colour.name().toStdString() : "") << "]";
        }
    }
    return text.str();
}

// Read, written and read again, a document keeps its text and format; written again, the same.
// The document read, with its default tab stop distance when not 80 pixels, is returned.
std::string ReadAndWrittenBack(const std::string& rtf) {
    QTextDocument original;
    readRtf(rtf, original);
    const std::string written = writeRtf(original);
    QTextDocument loaded;
    readRtf(written, loaded);
    EXPECT_EQ(Rendered(loaded), Rendered(original));
    EXPECT_EQ(writeRtf(loaded), written);
    const double tabs = original.defaultTextOption().tabStopDistance();
    return (tabs != 80 ? "tabs every " + std::to_string(int(tabs)) : "") + Rendered(original);
}

TEST(Rtf, ReadsTheFormatAndWritesItBack) {
    const std::pair<std::string, std::string> cases[] = {
        // \plain and \pard reset what a group does not.
        {Header + "\\deftab360\\pard\\qc\\li360\\sb120\\sa240\\tx720\\b\\i\\strike\\super a{\\v "
                  "hidden}\\par b\\plain c\\par\\pard d\\sub e\\nosupersub f\\par}",
         "tabs every 24#centre left 24 above 8 below 16 tab 48 a[bis^ 12 Arial]#centre left 24 "
         "above 8 below 16 tab 48 b[bis^ 12 Arial]c[ 12 Arial]#d[ 12 Arial]e[_ 12 Arial]f[ 12 "
         "Arial]#"},
        {Header + "\\pard\\qc\\b\\fs28 Review Notes\\par\\pard\\li720\\ri240\\fi-360\\tx1440\\tqr"
                  "\\tx5000\\plain\\f1 a\\tab b\\tab {\\i c} {\\ul\\cf1 d}\\line e\\par\\pard\\qr "
                  "caf\\'e9 \\u8364? \\{x\\} \\\\ \\u-10179?\\u-8704?\\par\\qj\\sb120\\sa240\\fs18 "
                  "last {\\strike gone} x{\\super 2} H{\\sub 2}O a\\~b\\-c\\_d}",
         "#centre Review Notes[b 14 Arial]#left 48 right 16 first -24 tab 96 tab 333.333R a\tb\t[ "
         "12 Courier New]c[i 12 Courier New] [ 12 Courier New]d[u 12 Courier New #ff0000]\u2028e[ "
         "12 Courier New]#right café € {x} \\ 😀[ 12 Courier New]#justify above 8 below 16 last [ "
         "9 Courier New]gone[s 9 Courier New] x[ 9 Courier New]2[^ 9 Courier New] H[ 9 Courier "
         "New]2[_ 9 Courier New]O a\u00A0b\u00ADc\u2011d[ 9 Courier New]"},
    };
    for (const auto& [rtf, rendered] : cases)
        EXPECT_EQ(ReadAndWrittenBack(rtf), rendered);
}

TEST(Rtf, ReadsTheTextAsTheCandidateSeesItAndWritesItBack) {
    const std::string deep =
        "{\\rtf1 a" + std::string(100000, '{') + "hidden" + std::string(100000, '}') + "b}";
    const std::tuple<const char*, std::string, QString> cases[] = {
        {"\\u with \\uc", Header + "\\uc1\\u8212? \\uc2\\u233\\'e9\\'e9 x\\uc0\\u65 y}",
         QStringLiteral("\u2014 é xAy")},
        {"Windows-1252, quotes and dashes",
         Header + "\\lquote a\\rquote  \\ldblquote b\\rdblquote  c\\emdash d\\endash \\bullet "
                  "a\x97 b\\'97 caf\\'e9 \\'80}", // raw byte 151 and \'97: the long dash
         QStringLiteral("\u2018a\u2019 \u201Cb\u201D c\u2014d\u2013\u2022a\u2014 b\u2014 café €")},
        {"Greek font charset",
         "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset161 Arial Greek;}}\\f0 \\'e1 \\f1 "
         "\\'e1}",
         QStringLiteral("á α")},
        {"code page 932", "{\\rtf1\\ansi\\ansicpg932 \\'93\\'fa\\'96\\'7b}",
         QStringLiteral("日本")},
        // A fragment that brings its own closing, joined before the document's closing.
        {"stops at the first balanced brace", Header + "Question\\par }\\par }more text",
         QStringLiteral("Question\n")},
        {"table cells",
         "{\\rtf1\\trowd\\cellx1000\\cellx2000\\pard\\intbl one\\cell two\\cell\\row\\pard after}",
         QStringLiteral("one\ttwo\nafter")},
        {"numbered from the list table",
         "{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat3{\\leveltext "
         "\\'02\\'00.;}}{\\listlevel\\levelnfc4\\levelfollow1{\\leveltext\\'04\\'00.\\'01);}}"
         "\\listid7}{\\list{\\listlevel\\levelnfc23{\\leveltext\\'01\\u8226 ?;}}\\listid8}}"
         "{\\listoverridetable{\\listoverride\\listid7\\ls1}{\\listoverride\\listid8\\ls2}}"
         "\\pard\\ls1{\\listtext 9.\\tab}one\\par two\\par\\ilvl1 sub\\par sub\\par\\ilvl0 "
         "three\\par\\pard plain\\par\\ls2 dot}",
         QStringLiteral("3.\tone\n4.\ttwo\n4.a) sub\n4.b) sub\n5.\tthree\nplain\n\u2022\tdot")},
        // Without a list table the label that the writer kept is what shows.
        {"list label kept", "{\\rtf1\\pard{\\listtext 1.\\tab}one\\~two}",
         QStringLiteral("1.\tone two")},
        {"cut after a backslash", "{\\rtf1 a\\", QStringLiteral("a")},
        {"cut in a hex escape", "{\\rtf1 a\\'4", QStringLiteral("a")},
        {"huge numbers", "{\\rtf1\\fs99999999999999999999\\li-99999999999999999 big}",
         QStringLiteral("big")},
        {"binary data, then past the end", "{\\rtf1 b\\bin3 }}}c\\bin99999999999 lost}",
         QStringLiteral("bc")},
        {"nested too deep", deep, QStringLiteral("ab")},
        {"nested too deep, never closed", "{\\rtf1 " + std::string(200000, '{') + "deep",
         QString()},
        {"not RTF at all", "plain text\r\nsecond line", QStringLiteral("plain text\nsecond line")},
        // An unknown code page, escapes in the font table, bad hex digits, symbols under \\uc and
        // in skipped groups, a control character.
        {"odd corners",
         "{\\rtf1\\ansicpg4242{\\fonttbl{\\f0 Caf\\'E9\\{\\u233?;}\\par}\\f0 a\\'zz\\:b\\uc1"
         "\\u8212\\{c\\u8211\\emdash d\\tqc\\tx720 {\\*\\x \\{}e\x01}",
         QStringLiteral("azzb\u2014c\u2013de")},
        {"list level beyond the list",
         "{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}}\\listid7}}"
         "\\pard\\ls7\\ilvl5 deep}",
         QStringLiteral("deep")},
    };
    for (const auto& [why, rtf, text] : cases) {
        QTextDocument original, loaded;
        readRtf(rtf, original);
        EXPECT_EQ(plainTextOf(original), text) << why;
        readRtf(writeRtf(original), loaded);
        EXPECT_EQ(plainTextOf(loaded), text) << why;
    }
}

// A PNG picture at its goal size (120 twips: 8 pixels wide), a metafile left out.
TEST(Rtf, ReadsPictures) {
    QTextDocument document; // a blue PNG of 4 by 3 pixels
    readRtf("{\\rtf1 a{\\pict\\pngblip\\picw4\\pich3\\picwgoal120\\pichgoal90 89504e470d0a1a0a"
            "0000000d49484452000000040000000308020000003b9639910000000f4944415478da636060f88f8470"
            "7100dd490bf58e8d1f080000000049454e44ae426082}b{\\pict\\wmetafile8 0102}c}",
            document);
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    const QTextImageFormat picture = cursor.charFormat().toImageFormat();
    const QImage read =
        document.resource(QTextDocument::ImageResource, QUrl(picture.name())).value<QImage>();
    EXPECT_EQ(
        plainTextOf(document) +
            QStringLiteral(" %1 %2x%3").arg(picture.width()).arg(read.width()).arg(read.height()),
        QStringLiteral("a\uFFFCbc 8 4x3"));
}

QByteArray contentsOf(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The text without whitespace, the byte order mark, or the mark that stands for a picture.
std::string withoutWhitespace(QString text) {
    static const QRegularExpression ignored(QStringLiteral("[\\s\\x{FEFF}\\x{FFFC}]"));
    return text.remove(ignored).toStdString();
}

// Files written by real word processors (LibreOffice, AbiWord, pandoc), each beside the text
// that LibreOffice extracts from it: read, they show the same text apart from whitespace; saved
// and loaded, they keep text and format.
TEST(Rtf, WordProcessorFilesReadAsLibreOfficeReadsThemAndSurviveSaveThenLoad) {
    const QDir fixtures(QStringLiteral(TESSERA_TEST_DATA "/fixtures"));
    const QStringList files = fixtures.entryList({QStringLiteral("*.rtf")}, QDir::Files);
    ASSERT_GE(files.size(), 9);
    for (const QString& name : files) {
        SCOPED_TRACE(name.toStdString());
        const std::string rtf = contentsOf(fixtures.filePath(name)).toStdString();
        const QString extracted = QString::fromUtf8(contentsOf(fixtures.filePath(
            QString(name).replace(QStringLiteral(".rtf"), QStringLiteral(".txt")))));
        QTextDocument original;
        readRtf(rtf, original);
        EXPECT_EQ(withoutWhitespace(plainTextOf(original)), withoutWhitespace(extracted));
        ReadAndWrittenBack(rtf);
    }
}

const std::string Prologue = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\fs20\\li300 Title\\par ";

// The large version of a course document: its sizes and indents scaled by 16/11, rounded
// towards minus infinity, at most three digits of a word (the 0 of 10080 stays), zero and
// longer words untouched, nothing before the first paragraph mark.
TEST(ScaleRtf, ScalesTheFourWordsBehindTheFirstParagraph) {
    const std::pair<std::string, std::string> cases[] = {
        {Prologue +
             "\\fs22 a\\fs24 b\\li720 c\\fi-360 d\\tx1440 e\\fi-1 x\\li-11 y\\li10 z\\tx10080 "
             "a\\fs100 a\\fs8 small \\fs22 b \\fs22 c\\li0 \\fi0\\line\\field\\fsmilli1\\txe a}",
         Prologue +
             "\\fs32 a\\fs34 b\\li1047 c\\fi-524 d\\tx2094 e\\fi-2 x\\li-16 y\\li14 z\\tx14660 "
             "a\\fs140 a\\fs11 small \\fs32 b \\fs32 c\\li0 \\fi0\\line\\field\\fsmilli1\\txe a}"},
        {"{\\rtf1\\fs22 no mark}", "{\\rtf1\\fs32 no mark}"},
        {"{\\rtf1\\fs20\\pard\\fs20 a\\par b}",
         "{\\rtf1\\fs20\\pard\\fs29 a\\par b}"}, // \pard counts as the mark
    };
    for (auto [before, after] : cases) {
        ScaleRtf(before);
        EXPECT_EQ(before, after);
    }
}

} // namespace
} // namespace tessera
