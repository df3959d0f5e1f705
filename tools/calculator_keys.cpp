#include "tools/calculator_keys.h"

namespace tessera {

CalculatorKeyPress CalculatorKeyFor(int code) {
    using enum CalculatorControl;
    if (code >= '0' && code <= '9')
        return {Number, code - '0', true};
    switch (code) {
    case 3:  // Ctrl+C
    case 22: // Ctrl+V
    case 24: // Ctrl+X
    case 26: // Ctrl+Z
        return {UnloadCalculator};
    case 12: // Ctrl+L
        return {Command1, 3};
    case 13: // Ctrl+M
        return {Command1, 5};
    case 16: // Ctrl+P
        return {Command1, 6};
    case 18: // Ctrl+R
        return {Command1, 4};
    case 27:
        return {Cancel};
    case '%':
        return {Command1, 0};
    case '*':
    case 'X':
    case 'x':
        return {Operator, 2};
    case '+':
        return {Operator, 1};
    case '-':
        return {Operator, 3};
    case '.':
        return {DecimalPoint};
    case '/':
        return {Operator, 0};
    case '=':
        return {Operator, 4};
    case '@':
        return {Command1, 1};
    default:
        return {};
    }
}

} // namespace tessera
