// The keys every screen shares, and the timers that stand still under a message box.

#include "platform/desktop_keys.h"
#include "tests/support/scripted_dialogs.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

namespace tessera {

class TestDesktopKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void enterPressesTheFocusedButton_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("repeated");
        QTest::addColumn<int>("presses");
        QTest::newRow("Return") << int(Qt::Key_Return) << 0 << true << false << 1;
        QTest::newRow("keypad Enter")
            << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << true << false << 1;
        QTest::newRow("held down") << int(Qt::Key_Return) << 0 << true << true << 0;
        QTest::newRow("Ctrl+Return")
            << int(Qt::Key_Return) << int(Qt::ControlModifier) << true << false << 0;
        QTest::newRow("disabled") << int(Qt::Key_Return) << 0 << false << false << 0;
        QTest::newRow("other key") << int(Qt::Key_X) << 0 << true << false << 0;
    }
    void enterPressesTheFocusedButton() {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, enabled);
        QFETCH(bool, repeated);
        QFETCH(int, presses);
        EnterPressesButton enterKeys;
        QCoreApplication::instance()->installEventFilter(&enterKeys);
        QWidget screen;
        auto* button = new QPushButton(QStringLiteral("&Next"), &screen);
        (new QVBoxLayout(&screen))->addWidget(button);
        button->setEnabled(enabled);
        screen.show();
        QSignalSpy clicked(button, &QPushButton::clicked);
        QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), QString(),
                        repeated);
        QApplication::sendEvent(button, &press);
        QCOMPARE(clicked.count(), presses);
    }

    void escapeClosesAWindowThatAsksIt() {
        QWidget viewer;
        auto* find = new QLineEdit(&viewer);
        (new QVBoxLayout(&viewer))->addWidget(find);
        CloseOnEscape(&viewer);
        viewer.show();
        QApplication::setActiveWindow(&viewer);
        QVERIFY(QTest::qWaitForWindowActive(&viewer));
        find->setFocus();
        QTest::keyClick(find, Qt::Key_Escape);
        QVERIFY(!viewer.isVisible());
    }

    // Nested boxes restart only at the last close; a timer stopped before stays stopped;
    // a timer gone with its screen is forgotten.
    void boxesHoldTheTimersBack() {
        ScriptedDialogs dialogs;
        QTimer running;
        QTimer stopped;
        auto gone = std::make_unique<QTimer>();
        for (QTimer* timer : {&running, &stopped, gone.get()})
            dialogs.holdBack(timer);
        running.start(200);
        gone->start(200);
        gone.reset();
        std::vector<bool> seen;
        dialogs.whileOpen([&] {
            seen.push_back(running.isActive());
            if (seen.size() == 1) {
                dialogs.input(QStringLiteral("inner"), QStringLiteral("box"));
                seen.push_back(running.isActive());
            }
        });
        dialogs.message(QStringLiteral("outer"), QStringLiteral("box"), MessageIcon::None,
                        MessageButtons::Ok);
        QCOMPARE(seen, (std::vector<bool>{false, false, false}));
        QVERIFY(running.isActive());
        QCOMPARE(running.interval(), 200);
        QVERIFY(!stopped.isActive());
        QVERIFY(!dialogs.boxOpen());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::TestDesktopKeys)
#include "test_desktop_keys.moc"
