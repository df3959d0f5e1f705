#include "tools/calculator_machine.h"

#include "tools/numeric_text.h"

#include <cmath>

namespace tessera {

namespace {

const CalculatorMessage OverflowMessage{"Sorry, Overflow!", "ERROR", true};

} // namespace

double CalculatorMachine::valueOf(const Operand& operand) {
    if (const auto* text = std::get_if<std::string>(&operand))
        return NumericValue(*text);
    return std::get<double>(operand);
}

std::string CalculatorMachine::textOf(const Operand& operand) {
    if (const auto* text = std::get_if<std::string>(&operand))
        return *text;
    return FloatText(std::get<double>(operand));
}

CalculatorMachine::Message CalculatorMachine::press(CalculatorControl control, int index) {
    switch (control) {
    case CalculatorControl::Number:
        if (index == SignKey)
            sign();
        else
            digit(index);
        return {};
    case CalculatorControl::DecimalPoint:
        decimalPoint();
        return {};
    case CalculatorControl::Operator:
        return operatorKey(index);
    case CalculatorControl::Command1:
        if (index == 0)
            return percent();
        if (index == 1)
            return squareRoot();
        if (index == 2) {
            resetClearPresses();
            return {};
        }
        return memory(static_cast<MemoryKey>(index - 3));
    case CalculatorControl::Cancel:
        cancel();
        return {};
    case CalculatorControl::Nothing:
    case CalculatorControl::UnloadCalculator:
        break;
    }
    return {};
}

bool CalculatorMachine::takesDigit(int value) const {
    return value != 0 || NumericValue(m_readout) != 0 || m_pointTyped;
}

void CalculatorMachine::digit(int value) {
    if (!takesDigit(value))
        return;
    if (m_lastInput != LastInputKind::Nums) {
        m_readout = ".";
        m_pointTyped = false;
    }
    const char typed = static_cast<char>('0' + value);
    if (m_pointTyped) {
        m_readout += typed;
    } else {
        // The digit goes where the last character stood, and the point follows it.
        m_readout.back() = typed;
        m_readout += '.';
    }
    m_lastInput = LastInputKind::Nums;
    m_clearPresses = 0;
}

void CalculatorMachine::sign() {
    if (m_readout == "0.")
        return;
    if (m_readout.front() == '-')
        m_readout.erase(0, 1);
    else
        m_readout.insert(0, 1, '-');
}

void CalculatorMachine::decimalPoint() {
    if (m_lastInput != LastInputKind::Nums)
        m_readout = "0.";
    m_pointTyped = true;
    m_lastInput = LastInputKind::Nums;
    m_clearPresses = 0;
}

CalculatorMachine::Message CalculatorMachine::operatorKey(int index) {
    const std::string entryText = m_readout;
    // "=" always counts as an operand; a second operator in a row only replaces the first.
    if (m_lastInput == LastInputKind::Nums || index == EqualsOperator)
        ++m_operandCount;
    Message shown;
    if (m_operandCount == 1) {
        m_kept.FirstOperand = m_readout;
    } else if (m_operandCount >= 2) {
        m_kept.SecondOperand = entryText;
        const double first = valueOf(m_kept.FirstOperand);
        const double second = NumericValue(m_kept.SecondOperand);
        std::optional<double> result;
        if (m_pendingOperator == "+") {
            result = first + second;
        } else if (m_pendingOperator == "-") {
            result = first - second;
        } else if (m_pendingOperator == "X") {
            result = first * second;
        } else if (m_pendingOperator == OperatorCaptions[0]) {
            if (second == 0)
                shown = CalculatorMessage{"Can't divide by zero", "Calculator", false};
            else
                result = first / second;
        } else if (m_pendingOperator == "=") {
            m_kept.FirstOperand = m_kept.SecondOperand;
        }
        if (result) {
            if (!std::isfinite(*result))
                return overflow();
            m_kept.FirstOperand = *result;
        }
        m_readout = textOf(m_kept.FirstOperand);
        m_operandCount = 1;
    }
    m_lastInput = LastInputKind::Ops;
    m_pendingOperator = OperatorCaptions[static_cast<size_t>(index)];
    return shown;
}

CalculatorMachine::Message CalculatorMachine::percent() {
    m_clearPresses = 0;
    const double scaled = NumericValue(m_readout) / 100;
    if (!std::isfinite(scaled))
        return overflow();
    m_readout = FloatText(scaled);
    return operatorKey(EqualsOperator);
}

CalculatorMachine::Message CalculatorMachine::squareRoot() {
    m_clearPresses = 0;
    const double value = NumericValue(m_readout);
    if (std::isinf(value))
        return overflow();
    if (value < 0)
        return CalculatorMessage{"Change sign to +.", "Calculator", false};
    m_readout = FloatText(std::sqrt(value));
    return operatorKey(EqualsOperator);
}

CalculatorMachine::Message CalculatorMachine::memory(MemoryKey key) {
    m_clearPresses = 0;
    switch (key) {
    case MemoryKey::Clear:
        m_memoryLine.clear();
        m_kept.MemoryValue = 0;
        return {};
    case MemoryKey::Recall:
        if (m_kept.MemoryValue != 0)
            m_readout = FloatText(m_kept.MemoryValue);
        return {};
    case MemoryKey::Add:
    case MemoryKey::Subtract:
        break;
    }
    const double entry = NumericValue(m_readout);
    const double changed =
        key == MemoryKey::Add ? m_kept.MemoryValue + entry : m_kept.MemoryValue - entry;
    if (!std::isfinite(changed))
        return overflow();
    m_kept.MemoryValue = changed;
    m_memoryLine =
        m_kept.MemoryValue == 0 ? std::string() : "Mem:  " + FloatText(m_kept.MemoryValue);
    return {};
}

void CalculatorMachine::cancel() {
    ++m_clearPresses;
    m_readout = "0.";
    m_pointTyped = false;
    if (m_clearPresses == 1) {
        m_lastInput = LastInputKind::ClearEntry;
        return;
    }
    // The second press in a row clears all but the memory.
    m_clearPresses = 0;
    m_kept.FirstOperand = 0.0;
    m_kept.SecondOperand = "0";
    m_operandCount = 0;
    m_lastInput = LastInputKind::None;
    m_pendingOperator = " ";
}

CalculatorMachine::Message CalculatorMachine::overflow() {
    m_pointTyped = false;
    m_operandCount = 0;
    m_lastInput = LastInputKind::None;
    m_pendingOperator = " ";
    m_readout = "0.";
    m_kept.FirstOperand = 0.0;
    m_kept.SecondOperand = "0";
    return OverflowMessage;
}

} // namespace tessera
