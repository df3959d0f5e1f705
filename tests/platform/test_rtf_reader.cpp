#include "platform/rtf_reader.h"

#include <QBuffer>
#include <QFont>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <tuple>

namespace tessera {
namespace {

const std::string Header = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f1\\fmodern "
                           "Courier New;}}{\\colortbl ;\\red255\\green0\\blue0;}\r\n";

QString textOf(const std::string& rtf) {
    QTextDocument document;
    readRtf(rtf, document);
    return plainTextOf(document);
}

// The character format at a position, as the cursor sees the character behind it.
QTextCharFormat formatAt(const QTextDocument& document, int position) {
    QTextCursor cursor(const_cast<QTextDocument*>(&document));
    cursor.setPosition(position + 1);
    return cursor.charFormat();
}

TEST(RtfReader, KeepsCharacterFormatting) {
    QTextDocument document;
    readRtf(Header + "\\pard\\f0\\fs24 plain {\\b bold} \\i italic\\i0  \\ul under\\ulnone  "
                     "\\f1\\fs32\\cf1 red}",
            document);
    const QString text = plainTextOf(document);
    ASSERT_EQ(text, QStringLiteral("plain bold italic under red"));
    EXPECT_EQ(formatAt(document, 0).fontWeight(), QFont::Normal);
    EXPECT_EQ(formatAt(document, text.indexOf(u"bold")).fontWeight(), QFont::Bold);
    EXPECT_TRUE(formatAt(document, text.indexOf(u"italic")).fontItalic());
    EXPECT_FALSE(formatAt(document, text.indexOf(u"under")).fontItalic());
    EXPECT_TRUE(formatAt(document, text.indexOf(u"under")).fontUnderline());
    const QTextCharFormat red = formatAt(document, text.indexOf(u"red"));
    EXPECT_FALSE(red.fontUnderline());
    EXPECT_EQ(red.fontPointSize(), 16);
    EXPECT_EQ(red.fontFamilies().toStringList(), QStringList{QStringLiteral("Courier New")});
    EXPECT_EQ(red.foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatAt(document, 0).fontPointSize(), 12);
}

TEST(RtfReader, KeepsParagraphFormatting) {
    QTextDocument document;
    readRtf(Header + "\\pard\\qc Centre\\par\\pard\\li720\\ri360\\fi-360\\tx1440\\tqr\\tx4320 "
                     "a\\tab b\\tab c\\par\\pard\\qr Right\\par \\qj Justified\\line next}",
            document);
    EXPECT_EQ(plainTextOf(document), QStringLiteral("Centre\na\tb\tc\nRight\nJustified\nnext"));
    const QTextBlock centre = document.firstBlock();
    EXPECT_EQ(centre.blockFormat().alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    const QTextBlockFormat indented = centre.next().blockFormat();
    EXPECT_EQ(std::tuple(indented.leftMargin(), indented.rightMargin(), indented.textIndent()),
              std::tuple(48, 24, -24));
    EXPECT_EQ(indented.tabPositions(),
              (QList<QTextOption::Tab>{{96, QTextOption::LeftTab}, {288, QTextOption::RightTab}}));
    EXPECT_EQ(indented.alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    EXPECT_EQ(centre.next().next().blockFormat().alignment() & Qt::AlignHorizontal_Mask,
              Qt::AlignRight);
    EXPECT_EQ(document.lastBlock().blockFormat().alignment() & Qt::AlignHorizontal_Mask,
              Qt::AlignJustify);
}

TEST(RtfReader, PlainAndPardResetWhatGroupsDoNot) {
    QTextDocument document;
    readRtf(Header + "\\deftab360\\pard\\qc\\li360\\sb120\\sa240\\tx720\\b\\i\\strike\\super a{\\v "
                     "hidden}\\par b\\plain c\\par\\pard d\\sub e\\nosupersub f\\par}",
            document);
    EXPECT_EQ(plainTextOf(document), QStringLiteral("a\nbc\ndef\n"));
    EXPECT_EQ(document.defaultTextOption().tabStopDistance(), 24);
    const QTextBlockFormat kept = document.findBlockByNumber(1).blockFormat();
    EXPECT_EQ(kept.alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(std::tuple(kept.leftMargin(), kept.topMargin(), kept.bottomMargin(),
                         kept.tabPositions().size()),
              std::tuple(24, 8, 16, 1));
    const QTextBlockFormat reset = document.findBlockByNumber(2).blockFormat();
    EXPECT_EQ(reset.leftMargin(), 0);
    EXPECT_TRUE(reset.tabPositions().isEmpty());
    const QTextCharFormat b = formatAt(document, 2);
    EXPECT_TRUE(b.fontStrikeOut());
    EXPECT_EQ(b.verticalAlignment(), QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(b.fontWeight(), QFont::Bold);
    const QTextCharFormat c = formatAt(document, 3);
    EXPECT_FALSE(c.fontStrikeOut());
    EXPECT_EQ(c.fontWeight(), QFont::Normal);
    EXPECT_EQ(formatAt(document, 6).verticalAlignment(), QTextCharFormat::AlignSubScript);
    EXPECT_EQ(formatAt(document, 7).verticalAlignment(), QTextCharFormat::AlignNormal);
}

TEST(RtfReader, ReadsTheTextAsTheCandidateSeesIt) {
    const std::string deep =
        "{\\rtf1 a" + std::string(100000, '{') + "hidden" + std::string(100000, '}') + "b}";
    const struct {
        const char* why;
        std::string rtf;
        QString text;
    } cases[] = {
        // Raw byte 151 and \'97 are both the long dash; \'e9 is e acute.
        {"Windows-1252", Header + "a\x97 b\\'97 caf\\'e9 \\'80}",
         QStringLiteral("a\u2014 b\u2014 café €")},
        {"\\u with \\uc", Header + "\\uc1\\u8212? \\uc2\\u233\\'e9\\'e9 x\\uc0\\u65 y}",
         QStringLiteral("\u2014 é xAy")},
        {"beyond the basic plane in two halves", Header + "\\u-10179?\\u-8704?}",
         QString::fromUtf8("\xF0\x9F\x98\x80")},
        {"quotes and dashes",
         Header + "\\lquote a\\rquote  \\ldblquote b\\rdblquote  c\\emdash d\\endash \\bullet}",
         QStringLiteral("\u2018a\u2019 \u201Cb\u201D c\u2014d\u2013\u2022")},
        {"control symbols", Header + "a\\~b\\-c\\_d \\{\\}\\\\}",
         QStringLiteral("a b\u00ADc\u2011d {}\\")},
        {"code page 1251", "{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0\\'e8}", QStringLiteral("При")},
        {"Greek font charset",
         "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset161 Arial Greek;}}\\f0 \\'e1 \\f1 "
         "\\'e1}",
         QStringLiteral("á α")},
        {"code page 932", "{\\rtf1\\ansi\\ansicpg932 \\'93\\'fa\\'96\\'7b}",
         QStringLiteral("日本")},
        // A fragment that brings its own closing, joined before the document's closing.
        {"stops at the first balanced brace", Header + "Question\\par }\\par }more text",
         QStringLiteral("Question\n")},
        {"stops behind groups", Header + "{\\b a}{b}}c}", QStringLiteral("ab")},
        {"destinations without text",
         "{\\rtf1{\\info{\\title T}{\\author A}}{\\stylesheet{\\s1 Heading;}}{\\header H}{\\footer "
         "F}{\\*\\generator G;}{\\*\\unknown U}{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt "
         "shown}} b\\bin3 }}}c}",
         QStringLiteral("shown bc")},
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
        {"list label kept", "{\\rtf1\\pard{\\listtext 1.\\tab}one}", QStringLiteral("1.\tone")},
        {"unbalanced", "{\\rtf1 unbalanced {\\b bold", QStringLiteral("unbalanced bold")},
        {"cut after a backslash", "{\\rtf1 a\\", QStringLiteral("a")},
        {"cut in a hex escape", "{\\rtf1 a\\'4", QStringLiteral("a")},
        {"huge numbers", "{\\rtf1\\fs99999999999999999999\\li-99999999999999999 big}",
         QStringLiteral("big")},
        {"binary past the end", "{\\rtf1 x\\bin99999999999 lost}", QStringLiteral("x")},
        {"nested too deep", deep, QStringLiteral("ab")},
        {"nested too deep, never closed", "{\\rtf1 " + std::string(200000, '{') + "deep",
         QString()},
        {"cut short", "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\b Notes: ca",
         QStringLiteral("Notes: ca")},
        {"not RTF at all", "plain text\r\nsecond line", QStringLiteral("plain text\nsecond line")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(textOf(c.rtf), c.text) << c.why;
    std::string noise;
    for (int i = 0; i < 20000; ++i)
        noise += static_cast<char>((i * 7919) % 256);
    QTextDocument document;
    readRtf("{\\rtf1 " + noise, document); // any text at all, and no crash
}

TEST(RtfReader, ReadsPictures) {
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    QTextDocument document;
    readRtf("{\\rtf1 a{\\pict\\pngblip\\picw4\\pich3\\picwgoal120\\pichgoal90 " +
                png.toHex().toStdString() + "}b{\\pict\\wmetafile8 0102}c}",
            document);
    EXPECT_EQ(plainTextOf(document), QStringLiteral("a\uFFFCbc"));
    const QTextImageFormat picture = formatAt(document, 1).toImageFormat();
    EXPECT_EQ(picture.width(), 8);
    EXPECT_EQ(document.resource(QTextDocument::ImageResource, QUrl(picture.name()))
                  .value<QImage>()
                  .size(),
              QSize(4, 3));
}

} // namespace
} // namespace tessera
