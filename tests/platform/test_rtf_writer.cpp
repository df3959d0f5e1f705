#include "platform/rtf_reader.h"
#include "platform/rtf_writer.h"

#include <QDir>
#include <QFile>
#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace tessera {
namespace {

// Every run of a document: its text and what a notebook keeps of its format.
std::vector<std::string> runsOf(const QTextDocument& document) {
    std::vector<std::string> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat para = block.blockFormat();
        QString tabs;
        for (const QTextOption::Tab& tab : para.tabPositions())
            tabs += QStringLiteral("%1:%2 ").arg(tab.position).arg(int(tab.type));
        runs.push_back(QStringLiteral("para align=%1 left=%2 right=%3 first=%4 above=%5 below=%6 "
                                      "tabs=%7")
                           .arg(int(para.alignment() & Qt::AlignHorizontal_Mask))
                           .arg(para.leftMargin())
                           .arg(para.rightMargin())
                           .arg(para.textIndent())
                           .arg(para.topMargin())
                           .arg(para.bottomMargin())
                           .arg(tabs)
                           .toStdString());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            runs.push_back(QStringLiteral("%1 b=%2 i=%3 u=%4 s=%5 v=%6 size=%7 font=%8 colour=%9")
                               .arg(it.fragment().text())
                               .arg(format.fontWeight() >= QFont::Bold)
                               .arg(format.fontItalic())
                               .arg(format.fontUnderline())
                               .arg(format.fontStrikeOut())
                               .arg(int(format.verticalAlignment()))
                               .arg(format.fontPointSize())
                               .arg(format.fontFamilies().toStringList().join(u','))
                               .arg(format.foreground().color().name())
                               .toStdString());
        }
    }
    return runs;
}

TEST(RtfWriter, SaveThenLoadKeepsTextAndFormatting) {
    const std::string source =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Times New Roman;}}"
        "{\\colortbl ;\\red0\\green128\\blue0;}\\pard\\qc\\b\\fs28 Review Notes\\par"
        "\\pard\\li720\\ri240\\fi-360\\tx1440\\tqr\\tx5000\\plain\\f1 a\\tab b\\tab {\\i c} "
        "{\\ul\\cf1 d}\\line e\\par\\pard\\qr caf\\'e9 \\u8364? \\{x\\} \\\\ \\u-10179?\\u-8704?"
        "\\par\\qj\\sb120\\sa240\\fs18 last {\\strike gone} x{\\super 2} H{\\sub 2}O "
        "a\\~b\\-c\\_d}";
    QTextDocument original;
    readRtf(source, original);
    const std::string saved = writeRtf(original);
    QTextDocument loaded;
    readRtf(saved, loaded);
    EXPECT_EQ(plainTextOf(loaded).toStdString(), plainTextOf(original).toStdString());
    EXPECT_EQ(runsOf(loaded), runsOf(original));
    // Written again, the document comes out the same.
    EXPECT_EQ(writeRtf(loaded), saved);
}

QByteArray contentsOf(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The text without whitespace, the byte order mark, or the mark that stands for a picture.
QString withoutWhitespace(const QString& text) {
    QString kept;
    for (QChar ch : text) {
        if (!ch.isSpace() && ch != QChar(0xFEFF) && ch != QChar(QChar::ObjectReplacementCharacter))
            kept += ch;
    }
    return kept;
}

// Files written by real word processors (LibreOffice, AbiWord, pandoc), each beside the text
// that LibreOffice extracts from it: read, they show the same text apart from whitespace; saved
// and loaded, they keep text and format; cut short and with bytes changed, they still read.
TEST(RtfWriter, WordProcessorFilesReadAsLibreOfficeReadsThemAndSurviveSaveThenLoad) {
    const QDir fixtures(QStringLiteral(TESSERA_TEST_DATA "/fixtures"));
    const QStringList files = fixtures.entryList({QStringLiteral("*.rtf")}, QDir::Files);
    ASSERT_GE(files.size(), 9);
    uint32_t seed = 12345;
    auto next = [&seed](uint32_t below) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % below;
    };
    static const char noise[] = "{}\\'0123456789abcdefuc-\x97\xff ";
    for (const QString& name : files) {
        SCOPED_TRACE(name.toStdString());
        const std::string rtf = contentsOf(fixtures.filePath(name)).toStdString();
        const QString extracted = QString::fromUtf8(contentsOf(fixtures.filePath(
            QString(name).replace(QStringLiteral(".rtf"), QStringLiteral(".txt")))));
        ASSERT_FALSE(extracted.isEmpty());
        QTextDocument original;
        readRtf(rtf, original);
        EXPECT_EQ(withoutWhitespace(plainTextOf(original)).toStdString(),
                  withoutWhitespace(extracted).toStdString());
        QTextDocument loaded;
        readRtf(writeRtf(original), loaded);
        EXPECT_EQ(plainTextOf(loaded).toStdString(), plainTextOf(original).toStdString());
        EXPECT_EQ(runsOf(loaded), runsOf(original));
        for (int round = 0; round < 40; ++round) {
            std::string damaged = rtf.substr(0, next(static_cast<uint32_t>(rtf.size())));
            for (int change = 0; change < 20 && !damaged.empty(); ++change)
                damaged[next(static_cast<uint32_t>(damaged.size()))] =
                    noise[next(sizeof(noise) - 1)];
            QTextDocument document;
            readRtf(damaged, document);
            EXPECT_LE(plainTextOf(document).size(), static_cast<qsizetype>(damaged.size()));
        }
    }
}

TEST(RtfWriter, EmptySelectionGivesThePrologueInTheCursorsFormat) {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat format;
    format.setFontFamilies(QStringList{QStringLiteral("Arial")});
    format.setFontPointSize(11.5);
    format.setFontWeight(QFont::Bold);
    cursor.setCharFormat(format);
    EXPECT_EQ(writeRtf(cursor), "{\\rtf1\\ansi\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss Arial;}}"
                                "\r\n\\viewkind4\\uc1\\pard\\b\\f0\\fs23 \r\n}\r\n");
}

TEST(RtfWriter, WritesOnlyTheSelection) {
    QTextDocument document;
    readRtf("{\\rtf1 first\\par {\\b second} para\\par third}", document);
    QTextCursor cursor(&document);
    cursor.setPosition(8);
    cursor.setPosition(18, QTextCursor::KeepAnchor);
    QTextDocument selection;
    readRtf(writeRtf(cursor), selection);
    EXPECT_EQ(plainTextOf(selection), QStringLiteral("cond para\n"));
    EXPECT_EQ(selection.firstBlock().begin().fragment().charFormat().fontWeight(), QFont::Bold);
}

} // namespace
} // namespace tessera
