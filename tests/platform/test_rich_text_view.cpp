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
    void printsTheSelectionOrTheWholeText_data();
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

void TestRichTextView::printsTheSelectionOrTheWholeText_data() {
    QTest::addColumn<int>("copies"); // 0: the dialog is cancelled
    QTest::addColumn<bool>("selectionOnly");
    QTest::addColumn<bool>("failing");
    QTest::addColumn<QStringList>("printed");
    QTest::addColumn<int>("jobsEnded");
    const QString broker = QStringLiteral("A broker");
    QTest::newRow("selection") << 2 << true << false << QStringList{broker, broker} << 1;
    QTest::newRow("whole text") << 1 << false << false << QStringList{Whole} << 1;
    // A printer that fails stops the copies; the job is not sent.
    QTest::newRow("failing printer") << 3 << false << true << QStringList{} << 0;
    QTest::newRow("cancelled") << 0 << false << false << QStringList{} << 0;
}

void TestRichTextView::printsTheSelectionOrTheWholeText() {
    QFETCH(int, copies);
    QFETCH(bool, selectionOnly);
    QFETCH(bool, failing);
    QFETCH(QStringList, printed);
    QFETCH(int, jobsEnded);
    RichTextView view;
    view.setTextRtf(Heading);
    view.setSelStart(7);
    view.setSelLength(8);
    RecordingPrinter printer;
    printer.dialogAnswer = PrintChoice{copies, selectionOnly};
    if (copies == 0)
        printer.dialogAnswer.reset();
    if (failing)
        printer.failAfterLines = 0;
    PrintRichText(view, printer);
    QCOMPARE(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::RichText});
    QStringList documents;
    for (const auto& document : printer.documents)
        documents << document.text;
    QCOMPARE(documents, printed);
    QCOMPARE(printer.jobsEnded, jobsEnded);
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
