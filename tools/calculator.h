#pragma once
// Calculator, the desk calculator beside the other screens: four functions, percent, square
// root, sign and one memory, by mouse or keyboard.

#include "core/screen_context.h"
#include "tools/calculator_machine.h"

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

namespace tessera {

class Calculator final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Calculator)

public:
    explicit Calculator(ScreenContext& context, QWidget* parent = nullptr);

    // Every button forwards its typed characters here, so the keys work wherever the focus is.
    void CalculatorKey(int code);
    const CalculatorMachine& machine() const { return m_machine; }

    std::array<QPushButton*, 11> Number{};
    QPushButton* DecimalPoint = nullptr;
    std::array<QPushButton*, 5> Operator{};
    std::array<QPushButton*, 7> Command1{};
    QPushButton* Cancel = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Readout = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* addButton(const QString& caption, const QString& name, const QString& spoken);
    void buildLayout();
    void press(CalculatorControl control, int index);
    void showHelp();
    QPushButton* buttonFor(CalculatorControl control, int index) const;

    ScreenContext& m_context;
    CalculatorMachine m_machine;
};

} // namespace tessera
