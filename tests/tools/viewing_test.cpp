// The text and glossary viewer as a reader drives it: letters, the find and its wrap, and help.

#include "platform/rich_text_view.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/viewing.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

namespace {

struct Viewer : ScreenFixture {
    void run(const std::string& steps) {
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

} // namespace

class ViewingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lettersFindAndHelp() {
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
            {Find + "keys   mterm 003; key Return",
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
        for (const auto& [steps, expected] : cases) {
            Viewer v;
            v.run(steps);
            QCOMPARE(v.rendered(), expected);
        }
    }

    void theGlossaryBoxesGrowWithTheWindow() {
        Viewer v;
        v.run("open 8");
        const QSize before(v.viewing->RichTextBox1->height(), v.viewing->RichTextBox2->height());
        v.viewing->resize(v.viewing->width(), 2 * v.viewing->height()); // as maximising does
        QVERIFY(v.viewing->RichTextBox1->height() > before.width() &&
                v.viewing->RichTextBox2->height() > before.height());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ViewingTest)
#include "viewing_test.moc"
