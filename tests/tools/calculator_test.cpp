// The calculator on screen: keys wherever the focus stands, the memory that outlives closing,
// its messages and its help.

#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/calculator.h"

#include <QLabel>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

class CalculatorTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<Calculator> calculator;

    void open() {
        calculator = std::make_unique<Calculator>(f->context);
        calculator->show();
        calculator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(calculator.get()));
    }
    // The readout, the memory line, the control with the focus, the clears in a row, the help
    // topic, the screens asked for, and the messages.
    std::string rendered() const {
        return (calculator->Readout->text() + u'|' + calculator->Label1->text() + u'|' +
                (calculator->isVisible() ? calculator->focusWidget()->objectName() : u"closed"_s))
                   .toStdString() +
               "|clears " + std::to_string(calculator->machine().clearPresses()) + "|help " +
               std::to_string(f->state.HelpTopic) + "|" + f->screens.callsText() + "|" +
               f->dialogs.messagesText().toStdString();
    }

private Q_SLOTS:
    void keysAndClicksWhereverTheFocusStands() {
        const std::pair<std::string, std::string> cases[] = {
            // "0" on "0." does nothing at all, not even move the focus.
            {"focus Command1_3; click Number_0", "0.||Command1_3|clears 0|help 1||"},
            // A digit leaves the focus on "=", so Enter means "=" after a number.
            {"keys 2+3", "3.||Operator_4|clears 0|help 1||"},
            {"keys 2+3x4; key Return", "20||Operator_4|clears 0|help 1||"},
            {"focus Number_7; key Return", "7.||Operator_4|clears 0|help 1||"},
            {"keys 9; key F9; key Ctrl+M; key Esc; key Ctrl+R",
             "9|Mem:  9|Number_10|clears 0|help 1||"},
            {"keys 9; key Ctrl+P; key Ctrl+C", "9.|Mem:  9|closed|clears 0|help 1||"},
            // The memory outlives closing, and shows once used.
            {"keys 9; key Ctrl+P; key Ctrl+C; open; click Command1_4",
             "9||Number_0|clears 0|help 1||"},
            // The machine's words, title and icon reach the dialogs as they are.
            {"keys 7/0=; keys " + std::string(400, '9') + "x=",
             "0.||Operator_4|clears 0|help 1||Calculator (ok): Can't divide by zero\nERROR "
             "(exclamation ok): Sorry, Overflow!"},
            {"keys 5; key Esc; click Command1_2",
             "0.||Operator_4|clears 0|help 15|unload Help, show Help|"},
        };
        for (const auto& [steps, expected] : cases) {
            calculator.reset();
            f.reset(); // the old folder gives the current directory back first
            f = std::make_unique<ScreenFixture>();
            open();
            ScreenScript([this] { return calculator.get(); }, f->dialogs)
                .with("open", [this](const QString&) { open(); })
                .run(steps);
            QCOMPARE(rendered(), expected);
        }
        calculator.reset();
    }
};

} // namespace tessera

QTEST_MAIN(tessera::CalculatorTest)
#include "calculator_test.moc"
