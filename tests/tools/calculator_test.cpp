// The calculator on screen: its captions, keys wherever the focus stands, and its messages.

#include "tests/support/screen_fixture.h"
#include "tools/calculator.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace tessera {

class CalculatorTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<Calculator> calculator;

    QPushButton* button(const char* name) const {
        return calculator->findChild<QPushButton*>(QString::fromLatin1(name));
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        calculator = std::make_unique<Calculator>(f->context);
        calculator->show();
        calculator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(calculator.get()));
    }

    void cleanup() {
        calculator.reset();
        f.reset();
    }

    void typedKeysWorkWhereverTheFocusStands() {
        button("Command1_3")->setFocus();
        button("Number_0")->click(); // on "0." it does nothing at all, not even move the focus
        QCOMPARE(QApplication::focusWidget(), button("Command1_3"));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("2+3"));
        // A digit leaves the focus on "=", so Enter means "=" after a number.
        QCOMPARE(QApplication::focusWidget(), button("Operator_4"));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x4"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(calculator->Readout->text(), QStringLiteral("20"));
        button("Number_7")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(calculator->Readout->text(), QStringLiteral("7."));
    }

    void controlKeysAndF9() {
        QTest::keyClicks(button("Number_5"), QStringLiteral("9"));
        QTest::keyClick(button("Number_5"), Qt::Key_F9);
        QCOMPARE(calculator->Readout->text(), QStringLiteral("-9."));
        QCOMPARE(QApplication::focusWidget(), button("Number_10"));
        QTest::keyClick(button("Number_10"), Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(calculator->Label1->text(), QStringLiteral("Mem:  9"));
        QTest::keyClick(button("Number_10"), Qt::Key_Escape);
        QTest::keyClick(button("Number_10"), Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(calculator->Readout->text(), QStringLiteral("9"));
        QTest::keyClick(button("Number_10"), Qt::Key_C, Qt::ControlModifier);
        QVERIFY(!calculator->isVisible());
        calculator = std::make_unique<Calculator>(f->context); // the memory outlives closing
        QVERIFY(calculator->Label1->text().isEmpty());
        button("Command1_4")->click();
        QCOMPARE(calculator->Readout->text(), QStringLiteral("9"));
    }

    // The machine's words, title and icon reach the dialogs as they are.
    void messagesGoThroughTheDialogs() {
        QTest::keyClicks(button("Number_1"), QStringLiteral("7/0="));
        QTest::keyClicks(button("Number_1"), QString(400, QLatin1Char('9')) + QStringLiteral("x="));
        const auto& shown = f->dialogs.messages();
        QCOMPARE(shown.size(), size_t{2});
        QCOMPARE(shown[0].title, QStringLiteral("Calculator"));
        QCOMPARE(shown[0].icon, MessageIcon::None);
        QCOMPARE(shown[1].text, QStringLiteral("Sorry, Overflow!"));
        QCOMPARE(shown[1].title, QStringLiteral("ERROR"));
        QCOMPARE(shown[1].icon, MessageIcon::Exclamation);
        QCOMPARE(calculator->Readout->text(), QStringLiteral("0."));
    }

    void helpOpensTopicFifteenAfresh() {
        QTest::keyClicks(button("Number_1"), QStringLiteral("5"));
        QTest::keyClick(button("Number_1"), Qt::Key_Escape);
        button("Command1_2")->click();
        QCOMPARE(f->state.HelpTopic, 15);
        const std::vector<ScreenCall> expected = {{ScreenCallKind::Unload, ScreenName::Help},
                                                  {ScreenCallKind::Show, ScreenName::Help}};
        QCOMPARE(f->screens.calls(), expected);
        QCOMPARE(calculator->machine().clearPresses(), 0);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::CalculatorTest)
#include "calculator_test.moc"
