// The help window as its callers meet it: one window, on the caller's topic, the large text
// while maximised, and no typing.

#include "app/application.h"
#include "platform/rich_text_view.h"
#include "tests/support/small_course.h"
#include "tests/support/test_services.h"
#include "tools/help.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

namespace tessera {

class HelpTest : public QObject {
    Q_OBJECT

private:
    static QList<Help*> openHelpWindows() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<Help*> found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* help = qobject_cast<Help*>(window); help != nullptr && help->isVisible())
                found << help;
        }
        return found;
    }
    static qreal shownFontSize(const Help& help) {
        QTextCursor cursor(help.RichTextBox1->document());
        cursor.movePosition(QTextCursor::End);
        return cursor.charFormat().fontPointSize();
    }

private Q_SLOTS:
    void pressedTwiceLeavesOneWindowOnTheTopic() {
        TestServices doubles;
        Application app(doubles.services);
        FillSmallCourse(app.state());

        app.openHelp(app.state(), HelpTopic::Glossary, HelpOpening::Comparing);
        Help* first = qobject_cast<Help*>(app.find(ScreenName::Help));
        QVERIFY(first != nullptr);
        app.openHelp(app.state(), HelpTopic::Glossary, HelpOpening::Comparing);
        QCOMPARE(openHelpWindows(), QList<Help*>{first}); // the same window, not loaded again
        QVERIFY(first->RichTextBox1->text().contains(QStringLiteral("Help text 7")));

        // Another screen's topic replaces it; afresh always loads anew.
        app.openHelp(app.state(), HelpTopic::DiscussionText, HelpOpening::Comparing);
        QCOMPARE(openHelpWindows().size(), 1);
        QVERIFY(openHelpWindows().front()->RichTextBox1->text().contains(
            QStringLiteral("Help text 4")));
        app.openHelp(app.state(), HelpTopic::NoteBook);
        app.openHelp(app.state(), HelpTopic::NoteBook);
        const QList<Help*> windows = openHelpWindows();
        QCOMPARE(windows.size(), 1);
        QVERIFY(windows.front()->RichTextBox1->text().contains(QStringLiteral("Help text 8")));
        QCOMPARE(app.state().HelpTopic, 8);
    }

    void maximisedShowsTheLargeVersionAndTakesNoTyping() {
        TestServices doubles;
        Application app(doubles.services);
        FillSmallCourse(app.state());
        app.state().HelpTopic = 5;
        std::string& text = app.state().content.HelpTexts[5];
        text = "\\par \\fs24 Help text 5";
        for (int line = 1; line <= 150; ++line)
            text += "\r\n\\par Line " + std::to_string(line);
        text += "\r\n\\par }\r\n";
        auto* help = qobject_cast<Help*>(app.show(ScreenName::Help));
        QVERIFY(help != nullptr);
        QCOMPARE(shownFontSize(*help), 12.0); // \fs24
        RichTextView* view = help->RichTextBox1;
        const QString reading = QStringLiteral("Line 64");
        view->verticalScrollBar()->setValue(
            view->cursorRect(view->document()->find(reading)).top()); // Line 64 at the top
        const auto topLine = [view] {
            return view->cursorForPosition(QPoint(0, 5)).block().text();
        };
        QCOMPARE(topLine(), reading);
        help->showMaximized();
        QCOMPARE(shownFontSize(*help), 17.0); // \fs34
        QCOMPARE(topLine(), reading);         // the reader keeps the place
        help->showMinimized();
        help->showNormal();
        QCOMPARE(shownFontSize(*help), 12.0);
        QCOMPARE(topLine(), reading);

        const QString before = help->RichTextBox1->text();
        QTest::keyClicks(help->RichTextBox1, QStringLiteral("typed"));
        QTest::keyClick(help->RichTextBox1, Qt::Key_Backspace);
        QCOMPARE(help->RichTextBox1->text(), before);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::HelpTest)
#include "help_test.moc"
