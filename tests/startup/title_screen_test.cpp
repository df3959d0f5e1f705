// The program as the application object runs it: the title screen, its hand-over, the
// navigation screen and the end, with every service a double.

#include "app/application.h"
#include "app/deferred_sound.h"
#include "core/pubdat.h"
#include "tests/support/screen_fixture.h"

#include <QLabel>
#include <QPointer>
#include <QtTest>

#include <memory>

using namespace tessera;

namespace {

void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

QTimer* timer(QWidget* title) {
    return title->findChild<QTimer*>(QStringLiteral("Timer1"));
}

} // namespace

class TitleScreenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<StudyFolder> m_folder;
    std::unique_ptr<TestServices> m_doubles;
    std::unique_ptr<Application> m_app;

    bool handedOver() const {
        return m_app->find(ScreenName::ButtonMenu) != nullptr &&
               m_app->find(ScreenName::Pubdat) == nullptr;
    }
    // The title screen of a first run, the name typed and confirmed; waits for the end of its
    // start-up unless told not to.
    QWidget* startFirstRun(bool wait = true) {
        m_doubles->dialogs.type(QStringLiteral("Pat Doe"));
        m_doubles->dialogs.answer(MessageAnswer::Yes);
        QWidget* title = m_app->show(ScreenName::Pubdat);
        return !wait || QTest::qWaitFor([title] { return timer(title)->isActive(); }) ? title
                                                                                      : nullptr;
    }

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<StudyFolder>();
        m_folder->write("Tessera", "{\\rtf1 }\r\n");
        m_doubles = std::make_unique<TestServices>();
        m_app = std::make_unique<Application>(m_doubles->services);
    }
    void cleanup() {
        m_app.reset();
        settle();
        m_folder.reset();
    }

    void titleShowsTheUserAndHandsOverAfterFourSeconds() {
        QPointer<QWidget> title = startFirstRun();
        QVERIFY(title);
        QStringList shown;
        for (int index = 1; index <= 7; ++index)
            shown << Control<QLabel>(title, QStringLiteral("Label1_%1").arg(index))->text();
        QVERIFY(!shown.takeLast().isEmpty());
        QCOMPARE(shown.join(u'|'),
                 QStringLiteral("REAL ESTATE SALESPERSON TESSERA|Orlanda Academy presents...|EXAM "
                                "PREPARATION|Pat Doe|Tessera Review Software Engineered by "
                                "Ferrowick Labs|Third Edition"));
        m_doubles->clock.advanceSeconds(4.0);
        QTest::qWait(450);
        QVERIFY2(title, "exactly 4 seconds is not yet more than 4");
        m_doubles->clock.advanceSeconds(0.1);
        QTRY_VERIFY(handedOver());
        settle();
        QVERIFY(!title);
    }

    void aKeyHandsOverOnlyOnceStartUpIsDone() {
        QWidget* title = startFirstRun(false);
        QTest::keyClick(title, Qt::Key_Space); // before it has been painted
        QCOMPARE(m_app->find(ScreenName::Pubdat), title);
        QTRY_VERIFY(timer(title)->isActive());
        QTest::keyClick(title, Qt::Key_Space);
        QVERIFY(handedOver());
    }

    void clickOnACaptionHandsOverAtOnce() {
        QTest::mouseClick(Control<QLabel>(startFirstRun(), "Label1_1"), Qt::LeftButton);
        QVERIFY(handedOver());
    }

    void missingContentFileEndsTheProgram() {
        std::filesystem::remove(m_folder->path() / "Tessera");
        QVERIFY(m_app->show(ScreenName::Pubdat) == nullptr);
        QVERIFY(m_app->ended());
        QCOMPARE(m_app->run(), 0);
        QVERIFY(m_app->find(ScreenName::Pubdat) == nullptr);
    }

    void closingTheNavigationScreenEndsTheProgramAndDeletesTheMarker() {
        QTest::keyClick(startFirstRun(), Qt::Key_Return);
        QVERIFY(m_folder->exists("TesseraAppRunning"));
        QWidget* menu = m_app->find(ScreenName::ButtonMenu);
        QVERIFY(menu->isVisible());
        menu->close();
        QVERIFY(m_app->ended());
        QVERIFY(!m_folder->exists("TesseraAppRunning"));
        QVERIFY(m_app->find(ScreenName::ButtonMenu) == nullptr);
        QCOMPARE(m_doubles->dialogs.unscripted(), 0);
    }

    void screensLoadOnceUnloadForGoodAndKeepTheirPlace() {
        m_app->registry().add(ScreenName::Calculator, [](ScreenContext&) { return new QWidget; });
        SessionState& state = m_app->state();
        state.WindowLeft[CalculatorSlot] = 120;
        state.WindowTop[CalculatorSlot] = 90;
        QVERIFY(m_app->isAvailable(ScreenName::Calculator));
        QVERIFY(!m_app->isAvailable(ScreenName::Aladdin)); // Quiz800 opens it itself

        QPointer<QWidget> calculator = m_app->show(ScreenName::Calculator);
        QCOMPARE(m_app->load(ScreenName::Calculator), calculator.data());
        QCOMPARE(calculator->pos(), QPoint(120, 90));
        calculator->move(200, 150);
        m_app->unload(ScreenName::Calculator);
        QVERIFY(m_app->find(ScreenName::Calculator) == nullptr);
        settle();
        QVERIFY(!calculator);
        QCOMPARE(QPoint(state.WindowLeft[CalculatorSlot], state.WindowTop[CalculatorSlot]),
                 QPoint(200, 150));

        // A screen the user closes goes the same way.
        calculator = m_app->show(ScreenName::Calculator);
        calculator->close();
        settle();
        QVERIFY(!calculator && m_app->find(ScreenName::Calculator) == nullptr);
    }

    void toneModuleLoadsOnFirstUse() {
        DeferredSound sound;
        QVERIFY(sound.load());
        sound.tone(440, 20); // silent where the machine has no audio device
    }

    void modalScreenReturnsWhenClosed() {
        m_app->registry().add(ScreenName::Preferences, [](ScreenContext&) {
            auto* screen = new QWidget;
            QTimer::singleShot(50, screen, &QWidget::close);
            return screen;
        });
        m_app->showModal(ScreenName::Preferences);
        QVERIFY(m_app->find(ScreenName::Preferences) == nullptr);
    }
};

QTEST_MAIN(TitleScreenTest)
#include "title_screen_test.moc"
