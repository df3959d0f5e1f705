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

TEST(RtfFixtures, DamagedFilesReadWithoutHarm) {
    // Each file cut short, with bytes changed and braces and backslashes thrown in: the reader
    // must come through every one (the sanitizer build watches how).
    const QDir fixtures(QStringLiteral(TESSERA_TEST_DATA "/fixtures"));
    uint32_t seed = 12345;
    auto next = [&seed](uint32_t below) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % below;
    };
    static const char noise[] = "{}\\'0123456789abcdefuc-\x97\xff ";
    for (const QString& name : fixtures.entryList({QStringLiteral("*.rtf")}, QDir::Files)) {
        const std::string original = contentsOf(fixtures.filePath(name)).toStdString();
        for (int round = 0; round < 40; ++round) {
            std::string damaged = original.substr(0, next(static_cast<uint32_t>(original.size())));
            for (int change = 0; change < 20 && !damaged.empty(); ++change)
                damaged[next(static_cast<uint32_t>(damaged.size()))] =
                    noise[next(sizeof(noise) - 1)];
            QTextDocument document;
            readRtf(damaged, document);
            EXPECT_LE(plainTextOf(document).size(), static_cast<qsizetype>(damaged.size()));
        }
    }
}

} // namespace
} // namespace tessera
