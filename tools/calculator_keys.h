#pragma once
// CalculatorKey's table: which control a typed character code presses, wherever the focus is.

namespace tessera {

enum class CalculatorControl {
    Nothing,
    UnloadCalculator,
    Number,
    DecimalPoint,
    Operator,
    Command1,
    Cancel
};

struct CalculatorKeyPress {
    CalculatorControl control = CalculatorControl::Nothing;
    int index = 0;
    // Digits leave the focus on "=", so that Enter after a number means "=".
    bool focusEquals = false;
};

CalculatorKeyPress CalculatorKeyFor(int code);

} // namespace tessera
