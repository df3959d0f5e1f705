// The keys every screen shares, and the timers that stand still under a message box.

#include "platform/desktop_keys.h"
#include "tests/support/scripted_dialogs.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace tessera {

class TestDesktopKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void enterPressesTheFocusedButtonAndEscapeClosesTheWindow() {
        EnterPressesButton enterKeys;
        QCoreApplication::instance()->installEventFilter(&enterKeys);
        QWidget screen;
        auto* button = new QPushButton(QStringLiteral("&Next"), &screen);
        auto* find = new QLineEdit(&screen);
        CloseOnEscape(&screen);
        screen.show();
        int clicks = 0;
        connect(button, &QPushButton::clicked, [&clicks] { ++clicks; });
        // Return, keypad Enter, held down, with Ctrl, on a disabled button, another key.
        const std::tuple<int, Qt::KeyboardModifiers, bool, bool> presses[] = {
            {Qt::Key_Return, {}, true, false},  {Qt::Key_Enter, Qt::KeypadModifier, true, false},
            {Qt::Key_Return, {}, true, true},   {Qt::Key_Return, Qt::ControlModifier, true, false},
            {Qt::Key_Return, {}, false, false}, {Qt::Key_X, {}, true, false}};
        QString counted;
        for (const auto& [key, modifiers, enabled, repeated] : presses) {
            button->setEnabled(enabled);
            QKeyEvent press(QEvent::KeyPress, key, modifiers, QString(), repeated);
            QApplication::sendEvent(button, &press);
            counted += QString::number(clicks);
        }
        QCOMPARE(counted, QStringLiteral("122222"));

        QApplication::setActiveWindow(&screen);
        QVERIFY(QTest::qWaitForWindowActive(&screen));
        find->setFocus();
        QTest::keyClick(find, Qt::Key_Escape);
        QVERIFY(!screen.isVisible());
    }

    // Nested boxes restart only at the last close; a timer stopped before stays stopped;
    // a timer gone with its screen is forgotten.
    void boxesHoldTheTimersBack() {
        ScriptedDialogs dialogs;
        QTimer running, stopped;
        auto gone = std::make_unique<QTimer>();
        for (QTimer* timer : {&running, &stopped, gone.get()})
            dialogs.holdBack(timer);
        running.start(200);
        gone->start(200);
        gone.reset();
        QString seen;
        dialogs.whileOpen([&] {
            seen += running.isActive() ? u'1' : u'0';
            if (seen.size() == 1) {
                dialogs.input(QStringLiteral("inner"), QStringLiteral("box"));
                seen += running.isActive() ? u'1' : u'0';
            }
        });
        dialogs.message(QStringLiteral("outer"), QStringLiteral("box"), MessageIcon::None,
                        MessageButtons::Ok);
        seen += QStringLiteral("%1 %2 %3")
                    .arg(running.isActive())
                    .arg(running.interval())
                    .arg(stopped.isActive() || dialogs.boxOpen());
        QCOMPARE(seen, QStringLiteral("0001 200 0"));
    }
};

} // namespace tessera

QTEST_MAIN(tessera::TestDesktopKeys)
#include "test_desktop_keys.moc"
