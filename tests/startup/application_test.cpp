// The program as the application object runs it, every service a double: the title screen,
// its hand-over, the screens it loads, the help window, and the end.

#include "app/application.h"
#include "app/deferred_sound.h"
#include "platform/rich_text_view.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/small_course.h"
#include "tools/help.h"

#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QtTest>

#include <optional>

using namespace tessera;

namespace {

void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

QTimer* timer(QWidget* title) {
    return title->findChild<QTimer*>(QStringLiteral("Timer1"));
}

// The program on a folder with a content file, every service a double.
struct Program {
    Program() { folder.write("Tessera", "{\\rtf1 }\r\n"); }
    ~Program() {
        app.reset();
        settle();
    }
    bool handedOver() const {
        return app->find(ScreenName::ButtonMenu) != nullptr &&
               app->find(ScreenName::Pubdat) == nullptr;
    }
    // The title screen of a first run, the name typed and confirmed; waits for the end of its
    // start-up unless told not to.
    QWidget* startFirstRun(bool wait = true) {
        doubles.dialogs.type(QStringLiteral("Pat Doe"));
        doubles.dialogs.answer(MessageAnswer::Yes);
        QWidget* title = app->show(ScreenName::Pubdat);
        return !wait || QTest::qWaitFor([title] { return timer(title)->isActive(); }) ? title
                                                                                      : nullptr;
    }

    StudyFolder folder;
    TestServices doubles;
    std::optional<Application> app{std::in_place, doubles.services};
};

} // namespace

class ApplicationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void titleShowsTheUserAndHandsOverAfterFourSeconds() {
        Program p;
        QPointer<QWidget> title = p.startFirstRun();
        QVERIFY(title);
        QCOMPARE(Control<QLabel>(title, "Label1_4")->text(), QStringLiteral("Pat Doe"));
        p.doubles.clock.advanceSeconds(4.0);
        QTest::qWait(450);
        QVERIFY2(title, "exactly 4 seconds is not yet more than 4");
        p.doubles.clock.advanceSeconds(0.1);
        QTRY_VERIFY(p.handedOver());
        settle();
        QVERIFY(!title);
        // Closing the navigation screen ends the program and deletes the marker.
        p.app->find(ScreenName::ButtonMenu)->close();
        QVERIFY(p.app->ended() && !p.folder.exists("TesseraAppRunning") &&
                p.app->find(ScreenName::ButtonMenu) == nullptr);
        QCOMPARE(p.doubles.dialogs.unscripted(), 0);
    }

    void aKeyOnceStartUpIsDoneOrAClickOnACaptionHandsOver() {
        {
            Program p;
            QWidget* title = p.startFirstRun(false);
            QTest::keyClick(title, Qt::Key_Space); // before it has been painted
            QCOMPARE(p.app->find(ScreenName::Pubdat), title);
            QTRY_VERIFY(timer(title)->isActive());
            QTest::keyClick(title, Qt::Key_Space);
            QVERIFY(p.handedOver());
        }
        Program p;
        QTest::mouseClick(Control<QLabel>(p.startFirstRun(), "Label1_1"), Qt::LeftButton);
        QVERIFY(p.handedOver());
    }

    void missingContentFileEndsTheProgram() {
        Program p;
        std::filesystem::remove(p.folder.path() / "Tessera");
        QVERIFY(p.app->show(ScreenName::Pubdat) == nullptr && p.app->ended());
        QVERIFY(p.app->run() == 0 && p.app->find(ScreenName::Pubdat) == nullptr);
    }

    void screensKeepTheirPlaceAndAModalOneReturnsOnceClosed() {
        Program p;
        p.app->registry().add(ScreenName::Calculator, [](ScreenContext&) { return new QWidget; });
        p.app->registry().add(ScreenName::Preferences, [](ScreenContext&) {
            auto* screen = new QWidget;
            QTimer::singleShot(50, screen, &QWidget::close);
            return screen;
        });
        p.app->showModal(ScreenName::Preferences);
        QVERIFY(p.app->find(ScreenName::Preferences) == nullptr);
        SessionState& state = p.app->state();
        state.WindowLeft[CalculatorSlot] = 120;
        state.WindowTop[CalculatorSlot] = 90;
        QWidget* calculator = p.app->show(ScreenName::Calculator);
        QCOMPARE(calculator->pos(), QPoint(120, 90));
        calculator->move(200, 150);
        p.app->unload(ScreenName::Calculator);
        QCOMPARE(QPoint(state.WindowLeft[CalculatorSlot], state.WindowTop[CalculatorSlot]),
                 QPoint(200, 150));
    }

    void oneHelpWindowOnTheLastCallersTopic() {
        Program p;
        SessionState& state = p.app->state();
        FillSmallCourse(state);
        const auto shown = [&p] {
            settle();
            auto* help = qobject_cast<Help*>(p.app->find(ScreenName::Help));
            return help->RichTextBox1->text().trimmed();
        };
        p.app->openHelp(state, HelpTopic::Glossary, HelpOpening::Comparing);
        QPointer<QWidget> glossary = p.app->find(ScreenName::Help);
        p.app->openHelp(state, HelpTopic::Glossary, HelpOpening::Comparing);
        // Brought forward, not loaded again.
        QCOMPARE(p.app->find(ScreenName::Help), glossary.data());
        QCOMPARE(shown(), QStringLiteral("Help text 7"));
        p.app->openHelp(state, HelpTopic::NoteBook, HelpOpening::Afresh);
        QCOMPARE(shown(), QStringLiteral("Help text 8"));
        QVERIFY(!glossary);
    }

    void maximisedShowsTheLargeVersionKeepingThePlace() {
        Program s;
        FillSmallCourse(s.app->state());
        s.app->state().HelpTopic = 5;
        std::string& text = s.app->state().content.HelpTexts[5];
        text = "\\par \\fs24 Help text 5";
        for (int line = 1; line <= 150; ++line)
            text += "\r\n\\par Line " + std::to_string(line);
        text += "\r\n\\par }\r\n";
        auto* help = qobject_cast<Help*>(s.app->show(ScreenName::Help));
        RichTextView* view = help->RichTextBox1;
        view->verticalScrollBar()->setValue(
            view->cursorRect(view->document()->find(QStringLiteral("Line 64"))).top());
        // The font size at the end (\fs24, then \fs34) and the line at the top.
        const auto shown = [view] {
            QTextCursor end(view->document());
            end.movePosition(QTextCursor::End);
            return QStringLiteral("%1 %2")
                .arg(end.charFormat().fontPointSize())
                .arg(view->cursorForPosition(QPoint(0, 5)).block().text());
        };
        QCOMPARE(shown(), QStringLiteral("12 Line 64"));
        help->showMaximized();
        QCOMPARE(shown(), QStringLiteral("17 Line 64"));
        help->showMinimized();
        help->showNormal();
        QCOMPARE(shown(), QStringLiteral("12 Line 64"));
    }

    void toneModuleLoadsOnFirstUse() {
        DeferredSound sound;
        QVERIFY(sound.load());
        sound.tone(440, 20); // silent where the machine has no audio device
    }
};

QTEST_MAIN(ApplicationTest)
#include "application_test.moc"
