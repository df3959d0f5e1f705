// The help window as its callers meet it: one window, on the caller's topic, the large text
// while maximised, and no typing.

#include "app/application.h"
#include "platform/rich_text_view.h"
#include "tests/support/small_course.h"
#include "tests/support/test_services.h"
#include "tools/help.h"

#include <QApplication>
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
        auto* help = qobject_cast<Help*>(app.show(ScreenName::Help));
        QVERIFY(help != nullptr);
        QCOMPARE(shownFontSize(*help), 12.0); // \fs24
        help->showMaximized();
        QCOMPARE(shownFontSize(*help), 17.0); // \fs34
        help->showNormal();
        QCOMPARE(shownFontSize(*help), 12.0);

        const QString before = help->RichTextBox1->text();
        QTest::keyClicks(help->RichTextBox1, QStringLiteral("typed"));
        QTest::keyClick(help->RichTextBox1, Qt::Key_Backspace);
        QCOMPARE(help->RichTextBox1->text(), before);
        QCOMPARE(help->windowTitle(), QStringLiteral("Help"));
    }
};

} // namespace tessera

QTEST_MAIN(tessera::HelpTest)
#include "help_test.moc"
