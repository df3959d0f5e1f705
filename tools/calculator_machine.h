#pragma once
// The calculator's state machine, kept as text in the display the way the desk calculator
// keeps it: the entry is the readout, and arithmetic reads it anew each time.

#include "core/session_state.h"
#include "tools/calculator_keys.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace tessera {

// The kind of the last key; a digit after any but Nums starts a new entry.
enum class LastInputKind { None, ClearEntry, Nums, Ops };

// A message box the screen shows for the machine: words, title, and whether it warns.
struct CalculatorMessage {
    std::string text;
    std::string title;
    bool exclamation = false;
};

// Captions of Operator(0) to Operator(4); the pending operator is one of them or " ".
inline const std::array<std::string, 5> OperatorCaptions = {"\u00F7", "+", "X", "-", "="};
inline constexpr int EqualsOperator = 4;
// Number(10) is the sign key.
inline constexpr int SignKey = 10;

// In the order of Command1(3) to Command1(6).
enum class MemoryKey { Clear, Recall, Subtract, Add };

class CalculatorMachine {
public:
    using Message = std::optional<CalculatorMessage>;

    // A new opening starts from what the last one kept.
    explicit CalculatorMachine(CalculatorKept kept = {}) : m_kept(std::move(kept)) {}

    // Pressing a control, as a click or CalculatorKey does. Help and unloading are the
    // screen's; to the machine, Command1(2) only resets the count of clears.
    Message press(CalculatorControl control, int index = 0);

    // False for "0" on a zero entry before its point: that key does nothing at all.
    bool takesDigit(int value) const;
    void digit(int value);
    void sign();
    void decimalPoint();
    Message operatorKey(int index);
    Message percent();
    Message squareRoot();
    Message memory(MemoryKey key);
    void cancel();
    // Help and any other Command1 button start the count of clears anew.
    void resetClearPresses() { m_clearPresses = 0; }

    const std::string& readout() const { return m_readout; }
    // "Mem:  " and the memory, or empty while the memory is 0.
    const std::string& memoryLine() const { return m_memoryLine; }
    LastInputKind lastInput() const { return m_lastInput; }
    const std::string& pendingOperator() const { return m_pendingOperator; }
    int clearPresses() const { return m_clearPresses; }
    const CalculatorKept& kept() const { return m_kept; }

private:
    using Operand = std::variant<std::string, double>;
    static double valueOf(const Operand& operand);
    static std::string textOf(const Operand& operand);

    // Every run-time error of an operator or a Command1 button: one message, then a reset.
    Message overflow();

    CalculatorKept m_kept;
    std::string m_readout = "0.";
    bool m_pointTyped = false;
    int m_operandCount = 0;
    LastInputKind m_lastInput = LastInputKind::None;
    std::string m_pendingOperator = " ";
    std::string m_memoryLine;
    int m_clearPresses = 0;
};

} // namespace tessera
