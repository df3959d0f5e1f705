// The program as the application object runs it: the title screen, its hand-over, the
// navigation screen and the end, with every service a double.

#include "app/application.h"
#include "app/deferred_sound.h"
#include "core/pubdat.h"
#include "tests/support/screen_fixture.h"

#include <QLabel>
#include <QPointer>
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

class TitleScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void titleShowsTheUserAndHandsOverAfterFourSeconds() {
        Program p;
        QPointer<QWidget> title = p.startFirstRun();
        QVERIFY(title);
        QStringList shown;
        for (int index = 1; index <= 7; ++index)
            shown << Control<QLabel>(title, QStringLiteral("Label1_%1").arg(index))->text();
        QVERIFY(!shown.takeLast().isEmpty());
        QCOMPARE(shown.join(u'|'),
                 QStringLiteral("REAL ESTATE SALESPERSON TESSERA|Orlanda Academy presents...|EXAM "
                                "PREPARATION|Pat Doe|Tessera Review Software Engineered by "
                                "Ferrowick Labs|Third Edition"));
        p.doubles.clock.advanceSeconds(4.0);
        QTest::qWait(450);
        QVERIFY2(title, "exactly 4 seconds is not yet more than 4");
        p.doubles.clock.advanceSeconds(0.1);
        QTRY_VERIFY(p.handedOver());
        settle();
        QVERIFY(!title);
        // Closing the navigation screen ends the program and deletes the marker.
        QVERIFY(p.folder.exists("TesseraAppRunning"));
        p.app->find(ScreenName::ButtonMenu)->close();
        QVERIFY(p.app->ended() && !p.folder.exists("TesseraAppRunning"));
        QVERIFY(p.app->find(ScreenName::ButtonMenu) == nullptr);
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
        QVERIFY(p.app->show(ScreenName::Pubdat) == nullptr);
        QVERIFY(p.app->ended());
        QCOMPARE(p.app->run(), 0);
        QVERIFY(p.app->find(ScreenName::Pubdat) == nullptr);
    }

    void screensLoadOnceUnloadForGoodAndKeepTheirPlace() {
        Program p;
        p.app->registry().add(ScreenName::Calculator, [](ScreenContext&) { return new QWidget; });
        SessionState& state = p.app->state();
        state.WindowLeft[CalculatorSlot] = 120;
        state.WindowTop[CalculatorSlot] = 90;
        QVERIFY(p.app->isAvailable(ScreenName::Calculator));
        QVERIFY(!p.app->isAvailable(ScreenName::Aladdin)); // Quiz800 opens it itself

        QPointer<QWidget> calculator = p.app->show(ScreenName::Calculator);
        QCOMPARE(p.app->load(ScreenName::Calculator), calculator.data());
        QCOMPARE(calculator->pos(), QPoint(120, 90));
        calculator->move(200, 150);
        p.app->unload(ScreenName::Calculator);
        QVERIFY(p.app->find(ScreenName::Calculator) == nullptr);
        settle();
        QVERIFY(!calculator);
        QCOMPARE(QPoint(state.WindowLeft[CalculatorSlot], state.WindowTop[CalculatorSlot]),
                 QPoint(200, 150));

        // A screen the user closes goes the same way.
        calculator = p.app->show(ScreenName::Calculator);
        calculator->close();
        settle();
        QVERIFY(!calculator && p.app->find(ScreenName::Calculator) == nullptr);
    }

    void toneModuleLoadsOnFirstUse() {
        DeferredSound sound;
        QVERIFY(sound.load());
        sound.tone(440, 20); // silent where the machine has no audio device
    }

    void modalScreenReturnsWhenClosed() {
        Program p;
        p.app->registry().add(ScreenName::Preferences, [](ScreenContext&) {
            auto* screen = new QWidget;
            QTimer::singleShot(50, screen, &QWidget::close);
            return screen;
        });
        p.app->showModal(ScreenName::Preferences);
        QVERIFY(p.app->find(ScreenName::Preferences) == nullptr);
    }
};

QTEST_MAIN(TitleScreenTest)
#include "title_screen_test.moc"
