// The notebook as a candidate keeps it: notes saved on closing, the question only when something
// changed, a failed save told, the cursor kept between openings, and the find.

#include "platform/rich_text_view.h"
#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tools/note_book.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <functional>
#include <memory>

namespace tessera {

namespace {

struct Notes : ScreenFixture {
    explicit Notes(const char* body = "Contracts: offer and acceptance.") {
        folder.write("TesseraNoteBook.RTF",
                     std::string("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 ") + body +
                         "\\par }");
        open();
    }
    void open() {
        notebook = std::make_unique<NoteBook>(context);
        notebook->show();
    }
    void typeAtEnd(const QString& words) const {
        notebook->RichTextBox1->moveCursor(QTextCursor::End);
        QTest::keyClicks(notebook->RichTextBox1, words);
    }
    // Whether the notes are changed and open; the selection; the file's text; the messages.
    std::string rendered() const {
        RichTextView saved;
        saved.loadFile(QStringLiteral("TesseraNoteBook.RTF"));
        return std::string(state.NoteBookChanged ? "changed " : "") +
               (notebook->isVisible() ? "open " : "closed ") +
               std::to_string(notebook->RichTextBox1->selStart()) + '+' +
               (notebook->RichTextBox1->selText() + u'|' + saved.text().trimmed() + u'|' +
                dialogs.messagesText())
                   .toStdString();
    }

    std::unique_ptr<NoteBook> notebook;
};

// Types, leaves the cursor at 10 and closes with that answer, then opens the notebook again
// and closes it unchanged, which asks nothing.
void CloseAndReopen(Notes& n, MessageAnswer answer) {
    n.typeAtEnd(QStringLiteral(" Consideration too."));
    n.notebook->RichTextBox1->setSelStart(10);
    n.dialogs.answer(answer);
    n.notebook->close();
    n.open();
    n.notebook->close();
}

// Changes the notebook with the mouse, then closes it without saving.
void MouseEdit(Notes& n, const std::function<void(RichTextView&)>& edit) {
    n.notebook->RichTextBox1->setSelStart(0);
    n.notebook->RichTextBox1->setSelLength(9);
    edit(*n.notebook->RichTextBox1);
    n.dialogs.answer(MessageAnswer::No);
    n.notebook->close();
}

const std::string Asked = "Change Detected! (yes/no): Save your changes to disk?";

} // namespace

class NoteBookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsSavesAndFinds() {
        const std::pair<std::function<void(Notes&)>, std::string> cases[] = {
            {[](Notes& n) { CloseAndReopen(n, MessageAnswer::Yes); },
             "closed 10+|Contracts: offer and acceptance.\n Consideration too.|" + Asked},
            {[](Notes& n) { CloseAndReopen(n, MessageAnswer::No); },
             "closed 10+|Contracts: offer and acceptance.|" + Asked},
            // Edits the mouse makes change the notebook as keys do.
            {[](Notes& n) {
                 QGuiApplication::clipboard()->setText(QStringLiteral("Agency. "));
                 MouseEdit(n, [](RichTextView& view) { view.paste(); });
             },
             "closed 8+|Contracts: offer and acceptance.|" + Asked},
            {[](Notes& n) {
                 MouseEdit(n, [&n](RichTextView& view) {
                     view.cut();
                     // The end of the program saves through the same view, and leaves it unchanged.
                     dynamic_cast<SavesNoteBook&>(static_cast<QWidget&>(*n.notebook))
                         .SaveNoteBook();
                     n.state.NoteBookChanged = false;
                     view.undo();
                 });
             },
             "closed 9+|: offer and acceptance.|" + Asked},
            {[](Notes& n) {
                 n.typeAtEnd(QStringLiteral(" Escrow."));
                 FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
                 n.dialogs.answer(MessageAnswer::Yes);
                 n.notebook->close();
             },
             "changed open 41+|Contracts: offer and acceptance.|" + Asked +
                 "\nNotebook Not Saved (critical ok): Your notebook could not be written to "
                 "TesseraNoteBook.RTF. Make sure the study folder can be written to and has "
                 "room, then save your notes again."},
        };
        for (const auto& [act, expected] : cases) {
            Notes n;
            act(n);
            QCOMPARE(n.rendered(), expected);
        }
    }

    void findWrapsRoundOnceAndSaysSorryOnce() {
        Notes n("Lease, then a lease option, then LEASE again.");
        NoteBook& notebook = *n.notebook;
        const auto found = [&n] {
            return QString::fromStdString(n.rendered()).section(u'|', 0, 0);
        };
        QTest::mouseClick(notebook.Command1[0], Qt::LeftButton);
        QVERIFY(notebook.Frame1->isVisible() && !notebook.Command1[2]->isEnabled() &&
                !notebook.Command2[0]->isEnabled());
        QTest::keyClicks(notebook.Text1, QStringLiteral("lease"));
        QStringList hits;
        for (int i = 0; i < 4; ++i) {
            QTest::mouseClick(notebook.Command2[0], Qt::LeftButton);
            hits << found();
        }
        notebook.Check1->setChecked(true); // the capitals only, from behind the first hit
        notebook.Text1->setText(QStringLiteral("LEASE"));
        QTest::mouseClick(notebook.Command2[0], Qt::LeftButton);
        hits << found();
        QCOMPARE(hits.join(u','), QStringLiteral("open 0+Lease,open 14+lease,open 33+LEASE,open "
                                                 "0+Lease,open 33+LEASE"));
        notebook.Text1->setText(QStringLiteral("easement"));
        QTest::keyClick(notebook.Text1, Qt::Key_Return); // Enter in the box finds
        QCOMPARE(QString::fromStdString(n.rendered()).section(u'|', 2),
                 QStringLiteral("Sorry! (question ok): easement not found."));
        QCOMPARE(notebook.focusWidget(), notebook.Text1);
        QTest::mouseClick(notebook.Command2[1], Qt::LeftButton);
        QVERIFY(!notebook.Frame1->isVisible() && notebook.Command1[2]->isEnabled());
        QVERIFY(!n.state.NoteBookChanged); // searching changes nothing
    }
};

} // namespace tessera

QTEST_MAIN(tessera::NoteBookTest)
#include "note_book_test.moc"
