// The text viewer and the notebook as a reader uses them: the glossary's letters, each find
// with its wrap round, help, and notes saved on closing only when asked and only if changed.

#include "platform/rich_text_view.h"
#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/note_book.h"
#include "tools/viewing.h"

#include <QClipboard>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <memory>
#include <optional>

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

struct Notes : ScreenFixture {
    Notes() {
        folder.write("TesseraNoteBook.RTF",
                     "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 Lease, "
                     "then a lease option, then LEASE again.\\par }");
        open();
    }
    void open() {
        notebook = std::make_unique<NoteBook>(context);
        notebook->show();
    }
    std::string after(const std::string& steps) {
        const auto view = [this] { return notebook->RichTextBox1; };
        ScreenScript([this] { return notebook.get(); }, dialogs)
            .with("open", [this](const QString&) { open(); })
            .with("close", [this](const QString&) { notebook->close(); })
            .with("append",
                  [view](const QString& words) {
                      view()->moveCursor(QTextCursor::End);
                      QTest::keyClicks(view(), words);
                  })
            .with("select",
                  [view](const QString& range) {
                      view()->setSelStart(range.section(u' ', 0, 0).toInt());
                      view()->setSelLength(range.section(u' ', 1).toInt());
                  })
            .with("paste",
                  [view](const QString& text) {
                      QGuiApplication::clipboard()->setText(text);
                      view()->paste();
                  })
            .with("cut", [view](const QString&) { view()->cut(); })
            .with("undo", [view](const QString&) { view()->undo(); })
            // The end of the program saves through the same view, and leaves it unchanged.
            .with("save",
                  [this](const QString&) {
                      static_cast<SavesNoteBook&>(*notebook).SaveNoteBook();
                      state.NoteBookChanged = false;
                  })
            .with("next",
                  [this](const QString& times) {
                      for (int i = 0; i < times.toInt(); ++i)
                          QTest::mouseClick(notebook->Command2[0], Qt::LeftButton);
                  })
            .with("full", [this](const QString&) { full.emplace(FaultyFiles::Fault::DiskFull, 1); })
            .run(steps);
        return rendered();
    }
    // Whether the notes are changed and open; the find panel and the control with the focus;
    // whether Close and Find Next are enabled (x); the selection; the file's text; the messages.
    std::string rendered() const {
        RichTextView saved;
        saved.loadFile(QStringLiteral("TesseraNoteBook.RTF"));
        QString text = state.NoteBookChanged ? u"changed "_s : u""_s;
        text += notebook->isVisible() ? u"open "_s : u"closed "_s;
        if (notebook->Frame1->isVisible())
            text += u"find "_s + notebook->focusWidget()->objectName() + u' ';
        for (const QPushButton* command : {notebook->Command1[2], notebook->Command2[0]})
            text += command->isEnabled() ? u'x' : u'-';
        return (text + u" %1+"_s.arg(notebook->RichTextBox1->selStart()) +
                notebook->RichTextBox1->selText() + u'|' + saved.text().trimmed() + u'|' +
                dialogs.messagesText())
            .toStdString();
    }

    std::unique_ptr<NoteBook> notebook;
    std::optional<FaultyFiles> full;
};

const std::string Asked = "Change Detected! (yes/no): Save your changes to disk?";
const std::string Lease = "Lease, then a lease option, then LEASE again.";
const std::string FindLease = "click Command1_0; fill Text1_1 lease; ";

} // namespace

class ViewersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void viewerLettersFindAndHelp() {
        const std::pair<std::string, std::string> cases[] = {
            // A letter finds its first term; again, it walks on through its terms, and from its
            // last term, or the list's, it starts over. "A" counts as the letter last used.
            {"open 8; press M 2",
             Glossary + "Mterm 002 589|Command3_12|Meaning number 590.|Mterm 002|.xxx..x" + Tail},
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
            // it, and from that entry on only after wrapping round; the capitals only do not.
            {Find + "fill Text2 hidden needle; click Command1_4",
             Glossary + "Aterm 001 0|Text2|Meaning number 1.|Aterm 001|.--xxxx" + Tail +
                 "Sorry! (question ok): hidden needle not found."},
            {Find +
                 "click Option1_1; fill Text2 hidden needle; click Command1_4; click Command1_4; "
                 "click Check1; fill Text2 Hidden Needle; click Command1_4; click Command1_5",
             Glossary + "Oterm 014 699|Text2|Meaning number 700 with a hidden needle.|Oterm 014|" +
                 ".xxx..x" + Tail + "Sorry! (question ok): Hidden Needle not found."},
            // A discussion text takes no typing; its help is topic 4, and a help window on
            // another topic goes first. Without a printer, printing is off.
            {"noprinter; open 3; focus RichTextBox1; keys xyz; focus RichTextBox2; keys A; "
             "click Command1_3; click Command1_3",
             "About Orlanda Academy|RichTextBox1|Discussion 3: read it twice.||-xxx...|off "
             "ABCDEFGHIJKLMNOPQRSTUVWXYZ|help 4|unload Help, show Help, show Help|"},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Viewer().after(steps), expected);
    }

    void notebookEditsFindsAndSaves() {
        const std::pair<std::string, std::string> cases[] = {
            // Find walks on from the last hit and wraps round once, then takes the capitals only;
            // searching changes nothing. An empty box has no Find Next; Enter in the box finds.
            {FindLease + "next 2; fill Text1_1; click Command2_1",
             "open x- 14+lease|" + Lease + "|"},
            {FindLease + "next 4; click Check1; fill Text1_1 LEASE; next 1",
             "open find RichTextBox1 -x 33+LEASE|" + Lease + "|"},
            {"click Command1_0; fill Text1_1 easement; key Return",
             "open find Text1_1 -x 0+|" + Lease + "|Sorry! (question ok): easement not found."},
            // Closed with Yes, then with No; the cursor left at 10 comes back on opening, and
            // closing unchanged asks nothing.
            {"append  Escrow.; answer Yes; close; open; append  Consideration too.; select 10 0; "
             "answer No; close; open; close",
             "closed xx 10+|" + Lease + "\n Escrow.|" + Asked + "\n" + Asked},
            // Edits the mouse makes change the notebook as keys do.
            {"select 0 9; paste Agency.; answer No; close", "closed xx 7+|" + Lease + "|" + Asked},
            {"select 0 9; cut; save; undo; answer No; close",
             "closed xx 9+|en a lease option, then LEASE again.|" + Asked},
            {"append  Escrow.; full; answer Yes; close",
             "changed open xx 54+|" + Lease + "|" + Asked +
                 "\nNotebook Not Saved (critical ok): Your notebook could not be written to "
                 "TesseraNoteBook.RTF. Make sure the study folder can be written to and has "
                 "room, then save your notes again."},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Notes().after(steps), expected);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ViewersTest)
#include "viewers_test.moc"
