// The rich text box: selection by plain-text positions, a file that cannot be read, copy-only,
// the margin, printing.

#include "platform/print_rich_text.h"
#include "platform/rich_text_view.h"
#include "tests/support/recording_printer.h"

#include <QApplication>
#include <QTest>

namespace tessera {

namespace {

const std::string Heading = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\pard\\b\\qc\\fs32 Agency\\par"
                            "\\pard\\plain\\fs20 A broker\\tab owes {\\i fiduciary} duties.\\par }";

} // namespace

class TestRichTextView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void selectsByPlainTextPositionsAndWrapsAtTheMargin() {
        RichTextView view;
        view.setTextRtf(Heading);
        view.setCopyOnly(true); // typing changes nothing
        QTest::keyClicks(&view, QStringLiteral("x\r\b"));
        QCOMPARE(view.text(), QStringLiteral("Agency\nA broker\towes fiduciary duties.\n"));
        QString shown;
        for (const auto& [start, length] : {std::pair{21, 9}, {2, 10}, {10000, 4}}) {
            view.setSelStart(start);
            view.setSelLength(length);
            shown += view.selText() +
                     QStringLiteral(" %1 %2|").arg(view.selStart()).arg(view.selLength());
        }
        QCOMPARE(shown, QStringLiteral("fiduciary 21 9|ency\nA bro 2 10| 39 0|"));
        QVERIFY(!view.loadFile(QStringLiteral("no such notes.rtf")));
        view.setRightMargin(6000); // twips: the text wraps at 400 pixels
        QCOMPARE(view.lineWrapColumnOrWidth(), 400);
        QCOMPARE(view.lineWrapMode(), QTextEdit::FixedPixelWidth);
        view.setRightMargin(0);
        QCOMPARE(view.lineWrapMode(), QTextEdit::WidgetWidth);
    }

    void printsTheSelectionOrTheWholeText() {
        RichTextView view;
        view.setTextRtf(Heading);
        // The dialog's answer (none: Cancel), the lines after which the printer fails, the print.
        const std::tuple<std::optional<PrintChoice>, std::optional<int>, QString> cases[] = {
            {PrintChoice{2, true}, std::nullopt, QStringLiteral("A broker|A broker|1")},
            {PrintChoice{1, false}, std::nullopt, view.text() + QStringLiteral("|1")},
            {PrintChoice{3, false}, 0, QStringLiteral("0")}, // a failing printer stops the copies
            {std::nullopt, std::nullopt, QStringLiteral("0")},
        };
        for (const auto& [choice, failAfterLines, expected] : cases) {
            view.setSelStart(7);
            view.setSelLength(8);
            RecordingPrinter printer;
            printer.dialogAnswer = choice;
            printer.failAfterLines = failAfterLines;
            PrintRichText(view, printer);
            QCOMPARE(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::RichText});
            QString printed;
            for (const auto& document : printer.documents)
                printed += document.text + u'|';
            QCOMPARE(printed + QString::number(printer.jobsEnded), expected);
        }
    }
};

} // namespace tessera

QTEST_MAIN(tessera::TestRichTextView)
#include "test_rich_text_view.moc"
