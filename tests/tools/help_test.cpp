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

namespace {

struct Session {
    Session() { FillSmallCourse(app.state()); }
    TestServices doubles;
    Application app{doubles.services};
};

// The help windows open, each as its text's first line.
QString openHelpWindows() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList shown;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<Help*>(window); help != nullptr && help->isVisible())
            shown << help->RichTextBox1->text().trimmed();
    }
    return shown.join(u',');
}
qreal shownFontSize(const Help& help) {
    QTextCursor cursor(help.RichTextBox1->document());
    cursor.movePosition(QTextCursor::End);
    return cursor.charFormat().fontPointSize();
}

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneWindowOnTheLastCallersTopic() {
        Session s;
        const std::tuple<HelpTopic, HelpOpening, QString> calls[] = {
            {HelpTopic::Glossary, HelpOpening::Comparing, QStringLiteral("Help text 7")},
            // The same topic keeps the window, which the next step would otherwise find apart.
            {HelpTopic::Glossary, HelpOpening::Comparing, QStringLiteral("Help text 7")},
            {HelpTopic::DiscussionText, HelpOpening::Comparing, QStringLiteral("Help text 4")},
            {HelpTopic::NoteBook, HelpOpening::Afresh, QStringLiteral("Help text 8")},
            {HelpTopic::NoteBook, HelpOpening::Afresh, QStringLiteral("Help text 8")},
        };
        QWidget* first = nullptr;
        for (const auto& [topic, opening, shown] : calls) {
            s.app.openHelp(s.app.state(), topic, opening);
            QCOMPARE(openHelpWindows(), shown);
            QCOMPARE(s.app.state().HelpTopic, int(topic));
            if (first == nullptr)
                first = s.app.find(ScreenName::Help);
            else if (topic == HelpTopic::Glossary)
                QCOMPARE(s.app.find(ScreenName::Help), first); // not loaded again
        }
    }

    void maximisedShowsTheLargeVersionKeepingThePlaceAndTakesNoTyping() {
        Session s;
        s.app.state().HelpTopic = 5;
        std::string& text = s.app.state().content.HelpTexts[5];
        text = "\\par \\fs24 Help text 5";
        for (int line = 1; line <= 150; ++line)
            text += "\r\n\\par Line " + std::to_string(line);
        text += "\r\n\\par }\r\n";
        auto* help = qobject_cast<Help*>(s.app.show(ScreenName::Help));
        QVERIFY(help != nullptr);
        RichTextView* view = help->RichTextBox1;
        const QString reading = QStringLiteral("Line 64");
        view->verticalScrollBar()->setValue(
            view->cursorRect(view->document()->find(reading)).top()); // Line 64 at the top
        // The font size (\fs24, then \fs34) and the line at the top.
        const auto shown = [help, view] {
            return QStringLiteral("%1 %2")
                .arg(shownFontSize(*help))
                .arg(view->cursorForPosition(QPoint(0, 5)).block().text());
        };
        QCOMPARE(shown(), QStringLiteral("12 Line 64"));
        help->showMaximized();
        QCOMPARE(shown(), QStringLiteral("17 Line 64"));
        help->showMinimized();
        help->showNormal();
        QCOMPARE(shown(), QStringLiteral("12 Line 64"));

        const QString before = view->text();
        QTest::keyClicks(view, QStringLiteral("typed"));
        QTest::keyClick(view, Qt::Key_Backspace);
        QCOMPARE(view->text(), before);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::HelpTest)
#include "help_test.moc"
