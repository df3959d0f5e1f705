// The real printer on its PDF path: lines at columns, fonts, page breaks and a rich text
// document reach the file as pages.

#include "platform/rtf_reader.h"
#include "platform/system_printer.h"

#include <QFile>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(SystemPrinter, PrintsLinesPagesAndDocumentsToPdfOrEndsQuietlyWhenItCannot) {
    SystemPrinter printer;
    ASSERT_TRUE(printer.fontNames().has_value());
    printer.setPdfOutput(QStringLiteral("sample.pdf"));
    printer.setFontName(QString()); // the fixed-pitch font, as with no printer font found
    printer.setFontBold(true);
    printer.printLine(QStringLiteral("Agency Review Results\r\nCandidate: Pat Doe"), 6);
    printer.setFontBold(false);
    for (int row = 1; row <= 80; ++row) // more than a page: the printer breaks it by itself
        printer.printLine(QStringLiteral("Row %1").arg(row), 3 + row % 4);
    printer.newPage();
    printer.setFontName(QStringLiteral("Arial"));
    printer.setFontSize(11);
    printer.printLine(QString(48, QChar(0x2014)), 6);
    QTextDocument document;
    readRtf("{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\pard\\qc\\b\\fs32 Agency\\par\\pard\\plain"
            "\\fs22\\li720 A broker owes \\i fiduciary\\i0  duties.\\tab Done.\\par }",
            document);
    printer.printDocument(document);
    printer.endDoc();
    EXPECT_TRUE(printer.ok());
    QFile pdf(QStringLiteral("sample.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.readAll().count(QByteArrayView("/Type /Page\n")), 4);
    // A file that cannot be written ends the job quietly.
    SystemPrinter unwritable;
    unwritable.setPdfOutput(QStringLiteral("no-such-folder/out.pdf"));
    unwritable.printLine(QStringLiteral("lost"), 1);
    unwritable.newPage();
    unwritable.endDoc();
    EXPECT_FALSE(unwritable.ok());
}

} // namespace
} // namespace tessera
