// The text viewer and the notebook as a reader uses them: the glossary's letters, each find
// with its wrap round, help, and notes saved on closing only when asked and only if changed.

#include "platform/rich_text_view.h"
#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/note_book.h"
#include "tools/viewing.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

namespace {

struct Viewer : ScreenFixture {
    std::string after(const std::string& steps) {
        ScreenScript([this] { return viewing.get(); }, dialogs)
            .with("open",
                  [this](const QString& section) {
                      state.ViewerSection = static_cast<int16_t>(section.toInt());
                      viewing = std::make_unique<Viewing>(context);
                      viewing->show();
                  })
            // A letter button pressed, as often as asked.
            .with("press",
                  [this](const QString& letter) {
                      for (int i = 0; i < qMax(1, letter.mid(2).toInt()); ++i)
                          QTest::mouseClick(viewing->Command3[letter[0].unicode() - 'A'],
                                            Qt::LeftButton);
                  })
            .with("topic", [this](const QString& topic) { state.HelpTopic = topic.toShort(); })
            .with("noprinter", [this](const QString&) { state.PrinterProblem = true; })
            .run(steps);
        return rendered();
    }
    // The title; the term chosen and its row; the control with the focus; the first line of
    // each text box; which commands are enabled (x), disabled (-) or hidden (.); the letters
    // without terms; the help topic, the screens asked for, and the messages.
    std::string rendered() const {
        const auto firstLine = [](const RichTextView* box) {
            return box->text().trimmed().section(u'\n', 0, 0);
        };
        QString text = viewing->windowTitle() + u'|';
        if (viewing->List1->isVisible())
            text +=
                viewing->List1->currentItem()->text() + u" %1|"_s.arg(viewing->List1->currentRow());
        text += (viewing->focusWidget() ? viewing->focusWidget()->objectName() : u"-"_s) + u'|' +
                firstLine(viewing->RichTextBox1) + u'|' + firstLine(viewing->RichTextBox2) + u'|';
        for (const QPushButton* command : viewing->Command1)
            text += !command->isVisible() ? u'.' : command->isEnabled() ? u'x' : u'-';
        text += u"|off "_s;
        for (const QPushButton* letter : viewing->Command3)
            if (!letter->isEnabled())
                text += letter->text();
        return (text + u"|help %1|"_s.arg(state.HelpTopic)).toStdString() + screens.callsText() +
               "|" + dialogs.messagesText().toStdString();
    }

    std::unique_ptr<Viewing> viewing;
};

const std::string Find = "open 8; click Command1_6; ";
const std::string Glossary = "Glossary of Key Terms|";
const std::string Tail = "|off QX|help 1||";
const std::string Needle =
    "Oterm 014 699|Text2|Meaning number 700 with a hidden needle.|Oterm 014|";
const std::string AtoZ = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string InDefinitions =
    Find + "click Option1_1; fill Text2 hidden needle; click Command1_4";

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

class ViewersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void viewerLettersFindAndHelp() {
        const std::pair<std::string, std::string> cases[] = {
            {"open 8", Glossary + "Aterm 001 0|-|Meaning number 1.|Aterm 001|.xxx..x" + Tail},
            // A letter finds its first term; again, it walks on through its terms, and from the
            // last term of the list it starts over. "A" counts as the letter last used.
            {"open 8; press M 2",
             Glossary + "Mterm 002 589|Command3_12|Meaning number 590.|Mterm 002|.xxx..x" + Tail},
            {"open 8; press A",
             Glossary + "Aterm 002 1|Command3_0|Meaning number 2.|Aterm 002|.xxx..x" + Tail},
            {"open 8; press A 49",
             Glossary + "Aterm 001 0|Command3_0|Meaning number 1.|Aterm 001|.xxx..x" + Tail},
            {"open 8; press Z 55",
             Glossary + "Zterm 001 1127|Command3_25|Meaning number 1128.|Zterm 001|.xxx..x" + Tail},
            // Keys on a letter button jump too; a letter without terms does nothing.
            {"open 8; press M; keys T; keys Q",
             Glossary + "Tterm 001 882|Command3_19|Meaning number 883.|Tterm 001|.xxx..x" + Tail},
            // Blanks around the words typed are dropped before the search.
            {Find + "keys   mterm 003; key Space; key Return",
             Glossary + "Mterm 003 590|Text2|Meaning number 591.|Mterm 003|.--xxxx" + Tail},
            // Terms only: the whole list is searched once, then "Sorry!"; the definitions find
            // it, and from that entry on only after wrapping round.
            {Find + "fill Text2 hidden needle; click Command1_4",
             Glossary + "Aterm 001 0|Text2|Meaning number 1.|Aterm 001|.--xxxx" + Tail +
                 "Sorry! (question ok): hidden needle not found."},
            {InDefinitions, Glossary + Needle + ".--xxxx" + Tail},
            {InDefinitions + "; click Command1_4", Glossary + Needle + ".--xxxx" + Tail},
            {InDefinitions +
                 "; click Check1; fill Text2 Hidden Needle; click Command1_4; click Command1_5",
             Glossary + Needle + ".xxx..x" + Tail +
                 "Sorry! (question ok): Hidden Needle not found."},
            // A discussion text takes no typing; its help is topic 4, and a help window on
            // another topic goes first.
            {"open 3; focus RichTextBox1; keys xyz; focus RichTextBox2; keys A; topic 9; click "
             "Command1_3; click Command1_3",
             "About Orlanda Academy|RichTextBox1|Discussion 3: read it twice.||xxxx...|off " +
                 AtoZ + "|help 4|unload Help, show Help, show Help|"},
            {"noprinter; open 2",
             "How to Take the State Exam|-|Discussion 2: read it twice.||-xxx...|off " + AtoZ +
                 "|help 1||"},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Viewer().after(steps), expected);
    }

    void notebookEditsAndSaves() {
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

    void notebookFindWrapsRoundOnceAndSaysSorryOnce() {
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

QTEST_MAIN(tessera::ViewersTest)
#include "viewers_test.moc"
