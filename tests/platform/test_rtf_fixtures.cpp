// RTF files written by real word processors (LibreOffice, AbiWord, pandoc), each beside the text
// that LibreOffice extracts from it: our reader must find the same text, apart from whitespace.

#include "platform/rtf_reader.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace tessera {
namespace {

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

TEST(RtfFixtures, ReadTheSameTextAsLibreOffice) {
    const QDir fixtures(QStringLiteral(TESSERA_TEST_DATA "/fixtures"));
    const QStringList files = fixtures.entryList({QStringLiteral("*.rtf")}, QDir::Files);
    ASSERT_GE(files.size(), 9);
    for (const QString& name : files) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray rtf = contentsOf(fixtures.filePath(name));
        const QString extracted = QString::fromUtf8(contentsOf(fixtures.filePath(
            QString(name).replace(QStringLiteral(".rtf"), QStringLiteral(".txt")))));
        ASSERT_FALSE(extracted.isEmpty());
        QTextDocument document;
        readRtf(std::string_view(rtf.constData(), static_cast<std::size_t>(rtf.size())), document);
        EXPECT_EQ(withoutWhitespace(plainTextOf(document)).toStdString(),
                  withoutWhitespace(extracted).toStdString());
    }
}

} // namespace
} // namespace tessera
