// The calculator's state machine, driven key by key through CalculatorKey's table.

#include "tools/calculator_keys.h"
#include "tools/calculator_machine.h"
#include "tools/numeric_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace tessera {

namespace {

// '~' stands for F9, the sign key, which has no character code.
std::vector<CalculatorMessage> typeKeys(CalculatorMachine& machine, const std::string& keys) {
    std::vector<CalculatorMessage> shown;
    for (const char key : keys) {
        const CalculatorKeyPress press = key == '~'
                                             ? CalculatorKeyPress{CalculatorControl::Number, 10}
                                             : CalculatorKeyFor(static_cast<unsigned char>(key));
        if (auto message = machine.press(press.control, press.index))
            shown.push_back(*message);
    }
    return shown;
}

struct KeyCase {
    const char* name;
    std::string keys;
    std::string readout;
    std::string message; // the one message shown, if any
    std::string memory = "";
};

const std::string Escape = "\x1b";
const std::string MemoryAdd = "\x10";    // Ctrl+P
const std::string MemoryRecall = "\x12"; // Ctrl+R
const std::string MemorySubtract = "\r"; // Ctrl+M

class CalculatorKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(CalculatorKeys, ShowTheReadoutAndMessage) {
    CalculatorMachine machine;
    const auto shown = typeKeys(machine, GetParam().keys);
    EXPECT_EQ(machine.readout(), GetParam().readout);
    EXPECT_EQ(machine.memoryLine(), GetParam().memory);
    if (GetParam().message.empty()) {
        EXPECT_TRUE(shown.empty());
    } else {
        ASSERT_EQ(shown.size(), 1u);
        EXPECT_EQ(shown[0].text, GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, CalculatorKeys,
    testing::Values(
        KeyCase{"LeftToRightWithoutPrecedence", "2+3X4=", "20", ""},
        KeyCase{"ZeroOnAFreshDisplay", "0", "0.", ""},
        KeyCase{"ZerosCountAfterThePoint", ".05", "0.05", ""},
        KeyCase{"EqualsTakesTheDisplay", "5+=", "10", ""},
        KeyCase{"SecondOperatorReplacesTheFirst", "5++3=", "8", ""},
        KeyCase{"NextEntryStartsAfterAResult", "2*3=7-1=", "6", ""},
        KeyCase{"DivideByZero", "7/0=", "7.", "Can't divide by zero"},
        KeyCase{"DivideByZeroPendsEquals", "7/0=+1=", "8", "Can't divide by zero"},
        KeyCase{"SignOnZeroDoesNothing", "~", "0.", ""},
        KeyCase{"SignTwiceGivesItBack", "5~~", "5.", ""}, KeyCase{"SignOnAnEntry", "5~", "-5.", ""},
        KeyCase{"RootOfANegative", "4~@", "-4.", "Change sign to +."},
        KeyCase{"Root", "2.25@", "1.5", ""}, KeyCase{"PercentScalesTheEntry", "200X10%", "20", ""},
        KeyCase{"PercentDoesNotTakeAShare", "200+10%", "200.1", ""},
        KeyCase{"ClearEntryKeepsThePendingOperator", "5+3" + Escape + "2=", "7", ""},
        KeyCase{"ClearTwiceClearsAll", "5+3" + Escape + Escape + "2=", "2.", ""},
        KeyCase{"FifteenDigitsCarry", "1/3=X3=", "0.999999999999999", ""},
        KeyCase{"RecallMidEntryThenADigit", "12" + MemoryAdd + Escape + "3" + MemoryRecall + "5",
                "15.", "", "Mem:  12"},
        KeyCase{"MemoryRecallOfZeroKeepsTheEntry", "8" + MemoryAdd + MemorySubtract + MemoryRecall,
                "8.", ""},
        // Memory keys leave the entry open; a clear starts the next one.
        KeyCase{"MemoryAdds", "2.5" + MemoryAdd, "2.5", "", "Mem:  2.5"},
        KeyCase{"MemorySubtracts", "2.5" + MemoryAdd + Escape + "4" + MemorySubtract, "4.", "",
                "Mem:  -1.5"},
        KeyCase{"MemoryOfZeroShowsNothing",
                "2.5" + MemoryAdd + Escape + "4" + MemorySubtract + Escape + "1.5" + MemoryAdd,
                "1.5", "", ""},
        KeyCase{"MemoryCleared", "9" + MemoryAdd + "\x0c", "9.", "", ""}, // Ctrl+L
        KeyCase{"OverflowResetsAllButTheMemory",
                "4" + MemoryAdd + std::string(200, '9') + "X" + std::string(200, '9') + "+3=", "3.",
                "Sorry, Overflow!", "Mem:  4"},
        KeyCase{"Overflow", std::string(200, '9') + "X" + std::string(200, '9') + "=", "0.",
                "Sorry, Overflow!"}),
    [](const testing::TestParamInfo<KeyCase>& info) { return std::string(info.param.name); });

TEST(CalculatorMachine, ClearCountsPressesInARowAcrossOperators) {
    CalculatorMachine machine;
    typeKeys(machine, "0");
    EXPECT_EQ(machine.lastInput(), LastInputKind::None);
    typeKeys(machine, "5" + Escape);
    EXPECT_EQ(machine.lastInput(), LastInputKind::ClearEntry);
    EXPECT_EQ(machine.clearPresses(), 1);
    typeKeys(machine, "+~" + Escape);
    EXPECT_EQ(machine.clearPresses(), 0);
    EXPECT_EQ(machine.pendingOperator(), " ");
    EXPECT_EQ(machine.lastInput(), LastInputKind::None);
    typeKeys(machine, Escape + "%");
    EXPECT_EQ(machine.clearPresses(), 0);
}

TEST(NumericText, ReadsTheLongestPrefixAndWritesFifteenDigits) {
    EXPECT_EQ(NumericValue("12."), 12);
    EXPECT_EQ(NumericValue("-3.5x"), -3.5);
    EXPECT_EQ(NumericValue("1E+20"), 1e20);
    EXPECT_EQ(NumericValue("  7E"), 7);
    EXPECT_EQ(NumericValue(""), 0);
    EXPECT_EQ(NumericValue("abc"), 0);
    EXPECT_EQ(NumericValue("1E-400"), 0);
    EXPECT_TRUE(std::isinf(NumericValue("-1E+400")));
    EXPECT_EQ(FloatText(5), "5");
    EXPECT_EQ(FloatText(0.5), "0.5");
    EXPECT_EQ(FloatText(1e20), "1E+20");
    EXPECT_EQ(FloatText(-0.0), "0");
    EXPECT_EQ(FloatText(123456789012345678.0), "1.23456789012346E+17");
}

} // namespace

} // namespace tessera
