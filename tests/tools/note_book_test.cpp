// The notebook as a candidate keeps it: notes typed or edited with the mouse saved on closing
// and read back, the question only when something changed, a failed save told, the cursor kept
// between openings, and the find.

#include "platform/rich_text_view.h"
#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tools/note_book.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace tessera {

class NoteBookTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;

    void writeNoteBook(const char* body) {
        QFile file(QStringLiteral("TesseraNoteBook.RTF"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 ");
        file.write(body);
        file.write("\\par }");
    }
    static QByteArray readNoteBook() {
        QFile file(QStringLiteral("TesseraNoteBook.RTF"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    std::unique_ptr<NoteBook> open() {
        auto notebook = std::make_unique<NoteBook>(f->context);
        notebook->show();
        return notebook;
    }
    static void typeAtEnd(NoteBook& notebook, const QString& words) {
        notebook.RichTextBox1->moveCursor(QTextCursor::End);
        QTest::keyClicks(notebook.RichTextBox1, words);
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        writeNoteBook("Contracts: offer and acceptance.");
    }
    void cleanup() { f.reset(); }

    // Closing asks about changes; Yes keeps them, No drops them, and either way the end of the
    // program will not ask again. The cursor comes back where it was.
    void closingAsksOnceAboutChanges_data() {
        QTest::addColumn<bool>("save");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }

    void closingAsksOnceAboutChanges() {
        QFETCH(bool, save);
        auto notebook = open();
        QVERIFY(!f->state.NoteBookChanged);
        typeAtEnd(*notebook, QStringLiteral(" Consideration too."));
        QVERIFY(f->state.NoteBookChanged);
        notebook->RichTextBox1->setSelStart(10);
        f->dialogs.answer(save ? MessageAnswer::Yes : MessageAnswer::No);
        notebook->close();
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& asked = f->dialogs.messages().front();
        QCOMPARE(asked.text, QStringLiteral("Save your changes to disk?"));
        QCOMPARE(asked.title, QStringLiteral("Change Detected!"));
        QCOMPARE(asked.buttons, MessageButtons::YesNo);
        QVERIFY(!f->state.NoteBookChanged);

        notebook = open();
        const QString reread = notebook->RichTextBox1->text();
        QVERIFY(reread.startsWith(QStringLiteral("Contracts: offer and acceptance.")));
        QCOMPARE(reread.contains(QStringLiteral(" Consideration too.")), save);
        QCOMPARE(notebook->RichTextBox1->selStart(), 10);
        notebook->close(); // nothing changed: no question
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
    }

    void theEndOfTheProgramSavesThroughTheSameView() {
        auto notebook = open();
        typeAtEnd(*notebook, QStringLiteral(" Kept at the end."));
        auto* saves = dynamic_cast<SavesNoteBook*>(static_cast<QWidget*>(notebook.get()));
        QVERIFY(saves != nullptr);
        saves->SaveNoteBook();
        RichTextView reread;
        QVERIFY(reread.loadFile(QStringLiteral("TesseraNoteBook.RTF")));
        QVERIFY(reread.text().contains(QStringLiteral("Kept at the end.")));
    }

    // Edits the mouse makes through the context menu or a drop change the notebook as keys do.
    void mouseEditsMarkTheNotebookChanged_data() {
        QTest::addColumn<int>("edit");
        QTest::newRow("paste") << 0;
        QTest::newRow("cut") << 1;
        QTest::newRow("drop") << 2;
        QTest::newRow("undo after a save") << 3;
    }

    void mouseEditsMarkTheNotebookChanged() {
        QFETCH(int, edit);
        auto notebook = open();
        RichTextView& view = *notebook->RichTextBox1;
        view.setSelStart(0);
        view.setSelLength(9);
        QMimeData words;
        words.setText(QStringLiteral("Agency. "));
        const QPoint inside = view.viewport()->rect().center();
        QDragEnterEvent enter(inside, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(inside, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(inside, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
        switch (edit) {
        case 0:
            QGuiApplication::clipboard()->setMimeData(new QMimeData);
            QGuiApplication::clipboard()->setText(words.text());
            view.paste();
            break;
        case 1:
            view.cut();
            break;
        case 2:
            QCoreApplication::sendEvent(view.viewport(), &enter);
            QCoreApplication::sendEvent(view.viewport(), &move);
            QCoreApplication::sendEvent(view.viewport(), &drop);
            break;
        default:
            view.cut();
            QVERIFY(notebook->SaveNoteBook());
            f->state.NoteBookChanged = false; // as the end of the program leaves it
            view.undo();
            break;
        }
        QVERIFY(f->state.NoteBookChanged);
        f->dialogs.answer(MessageAnswer::No);
        notebook->close();
        QCOMPARE(f->dialogs.titles(), QStringList{QStringLiteral("Change Detected!")});
    }

    void aFailedSaveIsToldAndKeepsTheNotesOpen() {
        const QByteArray before = readNoteBook();
        auto notebook = open();
        typeAtEnd(*notebook, QStringLiteral(" Escrow."));
        FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
        f->dialogs.answer(MessageAnswer::Yes);
        notebook->close();
        const ShownMessage& told = f->dialogs.messages().back();
        QCOMPARE(told.title, QStringLiteral("Notebook Not Saved"));
        QCOMPARE(told.text, QStringLiteral("Your notebook could not be written to "
                                           "TesseraNoteBook.RTF. Make sure the study folder can "
                                           "be written to and has room, then save your notes "
                                           "again."));
        QVERIFY(notebook->isVisible());
        QVERIFY(f->state.NoteBookChanged);
        QCOMPARE(readNoteBook(), before);
    }

    void findWrapsRoundOnceAndSaysSorryOnce() {
        writeNoteBook("Lease, then a lease option, then LEASE again.");
        auto notebook = open();
        QTest::mouseClick(notebook->Command1[0], Qt::LeftButton);
        QVERIFY(notebook->Frame1->isVisible());
        QVERIFY(!notebook->Command1[2]->isEnabled());
        QVERIFY(!notebook->Command2[0]->isEnabled());
        QTest::keyClicks(notebook->Text1, QStringLiteral("lease"));
        QVERIFY(notebook->Command2[0]->isEnabled());

        QList<int> hits;
        for (int i = 0; i < 4; ++i) {
            QTest::mouseClick(notebook->Command2[0], Qt::LeftButton);
            hits << notebook->RichTextBox1->selStart();
            QCOMPARE(notebook->RichTextBox1->selText().toLower(), QStringLiteral("lease"));
        }
        QCOMPARE(hits, (QList<int>{0, 14, 33, 0})); // the fourth wraps round to the start

        notebook->Check1->setChecked(true); // the capitals only, from behind the first hit
        notebook->Text1->setText(QStringLiteral("LEASE"));
        QTest::mouseClick(notebook->Command2[0], Qt::LeftButton);
        QCOMPARE(notebook->RichTextBox1->selStart(), 33);
        QVERIFY(f->dialogs.messages().empty());

        notebook->Text1->setText(QStringLiteral("easement"));
        QTest::keyClick(notebook->Text1, Qt::Key_Return); // Enter in the box finds
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        QCOMPARE(f->dialogs.messages().front().text, QStringLiteral("easement not found."));
        QCOMPARE(f->dialogs.messages().front().title, QStringLiteral("Sorry!"));
        QCOMPARE(notebook->focusWidget(), notebook->Text1);

        QTest::mouseClick(notebook->Command2[1], Qt::LeftButton);
        QVERIFY(!notebook->Frame1->isVisible());
        QVERIFY(notebook->Command1[2]->isEnabled());
        QVERIFY(!f->state.NoteBookChanged); // searching changes nothing
    }
};

} // namespace tessera

QTEST_MAIN(tessera::NoteBookTest)
#include "note_book_test.moc"
