#include "platform/print_rich_text.h"
#include "platform/rich_text_view.h"
#include "tests/support/recording_printer.h"
#include "tests/support/study_folder.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace tessera {

class TestRichTextView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void plainTextPositionsMatchTheSelection();
    void readOnlyViewPassesOnlyTheCopyKey();
    void saveThenLoadBringsTheDocumentBack();
    void printsTheSelectionOrTheWholeText();
    void rightMarginSetsTheWrapWidth();
};

namespace {

const std::string Heading = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\pard\\b\\qc\\fs32 Agency\\par"
                            "\\pard\\plain\\fs20 A broker\\tab owes {\\i fiduciary} duties to the "
                            "\\'93principal\\'94.\\par }\\par }ignored";
const QString Whole =
    QStringLiteral("Agency\nA broker\towes fiduciary duties to the \u201Cprincipal\u201D.\n");

} // namespace

void TestRichTextView::plainTextPositionsMatchTheSelection() {
    RichTextView view;
    view.setTextRtf(Heading);
    const QString text = view.text();
    QCOMPARE(text, Whole);
    for (const QString& word : {QStringLiteral("fiduciary"), QStringLiteral("principal")}) {
        view.setSelStart(static_cast<int>(text.indexOf(word)));
        view.setSelLength(static_cast<int>(word.size()));
        QCOMPARE(view.selText(), word);
        QCOMPARE(view.selStart(), text.indexOf(word));
        QCOMPARE(view.selLength(), word.size());
    }
    view.setSelStart(2);
    view.setSelLength(10);
    QCOMPARE(view.selText(), QStringLiteral("ency\nA bro"));
    view.setSelStart(10000);
    QCOMPARE(view.selStart(), text.size());
    QCOMPARE(view.selLength(), 0);
}

void TestRichTextView::readOnlyViewPassesOnlyTheCopyKey() {
    RichTextView view;
    view.setTextRtf(Heading);
    view.setCopyOnly(true);
    view.setSelStart(0);
    view.setSelLength(6);
    QTest::keyClicks(&view, QStringLiteral("xyz"));
    QTest::keyClick(&view, Qt::Key_Return);
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Backspace);
    QVERIFY(view.text().startsWith(QStringLiteral("Agency\nA broker")));
    QApplication::clipboard()->clear();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Agency"));

    view.setCopyOnly(false);
    view.setSelStart(0);
    QTest::keyClicks(&view, QStringLiteral("xy"));
    QVERIFY(view.text().startsWith(QStringLiteral("xyAgency")));
}

void TestRichTextView::saveThenLoadBringsTheDocumentBack() {
    StudyFolder folder;
    RichTextView notebook;
    notebook.setTextRtf(Heading);
    QVERIFY(notebook.saveFile(QStringLiteral("TesseraNoteBook.RTF")));
    RichTextView reopened;
    QVERIFY(reopened.loadFile(QStringLiteral("TesseraNoteBook.RTF")));
    QCOMPARE(reopened.text(), notebook.text());
    QCOMPARE(reopened.textRtf(), notebook.textRtf());
    QVERIFY(!reopened.loadFile(QStringLiteral("missing.rtf")));
}

void TestRichTextView::printsTheSelectionOrTheWholeText() {
    RichTextView view;
    view.setTextRtf(Heading);
    const QString broker = QStringLiteral("A broker");
    const struct {
        std::optional<PrintChoice> choice; // none: the dialog is cancelled
        std::optional<int> failAfterLines;
        QStringList printed;
        int jobsEnded;
    } cases[] = {
        {PrintChoice{2, true}, std::nullopt, {broker, broker}, 1},
        {PrintChoice{1, false}, std::nullopt, {Whole}, 1},
        // A printer that fails stops the copies; the job is not sent.
        {PrintChoice{3, false}, 0, {}, 0},
        {std::nullopt, std::nullopt, {}, 0},
    };
    for (const auto& c : cases) {
        view.setSelStart(7);
        view.setSelLength(8);
        RecordingPrinter printer;
        printer.dialogAnswer = c.choice;
        printer.failAfterLines = c.failAfterLines;
        PrintRichText(view, printer);
        QCOMPARE(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::RichText});
        QStringList documents;
        for (const auto& document : printer.documents)
            documents << document.text;
        QCOMPARE(documents, c.printed);
        QCOMPARE(printer.jobsEnded, c.jobsEnded);
    }
}

void TestRichTextView::rightMarginSetsTheWrapWidth() {
    RichTextView view;
    view.setRightMargin(6000);
    QCOMPARE(view.lineWrapMode(), QTextEdit::FixedPixelWidth);
    QCOMPARE(view.lineWrapColumnOrWidth(), 400);
    view.setRightMargin(0);
    QCOMPARE(view.lineWrapMode(), QTextEdit::WidgetWidth);
}

} // namespace tessera

QTEST_MAIN(tessera::TestRichTextView)
#include "test_rich_text_view.moc"
