// The desk tools' rules: the calculator's state machine driven key by key through
// CalculatorKey's table, its numbers as text, and the alarm clock's time arithmetic.

#include "tools/alarm_time.h"
#include "tools/calculator_keys.h"
#include "tools/calculator_machine.h"
#include "tools/numeric_text.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tessera {

namespace {

// The readout, the memory line, the pending operator, the clears in a row, the last key's
// kind, and the messages shown. '~' stands for F9, the sign key, which has no character code.
std::string AfterKeys(const std::string& keys) {
    CalculatorMachine machine;
    std::string messages;
    for (const char key : keys) {
        const CalculatorKeyPress press = key == '~'
                                             ? CalculatorKeyPress{CalculatorControl::Number, 10}
                                             : CalculatorKeyFor(static_cast<unsigned char>(key));
        if (auto message = machine.press(press.control, press.index))
            messages += "|" + message->text;
    }
    static const char* kinds[] = {"None", "ClearEntry", "Nums", "Ops"};
    return machine.readout() + "|" + machine.memoryLine() + "|" + machine.pendingOperator() +
           std::to_string(machine.clearPresses()) + " " + kinds[int(machine.lastInput())] +
           messages;
}

const std::string Esc = "\x1b";
const std::string MemAdd = "\x10";    // Ctrl+P
const std::string MemRecall = "\x12"; // Ctrl+R
const std::string MemMinus = "\r";    // Ctrl+M
const std::string Nines = std::string(200, '9');

TEST(CalculatorMachine, KeysGiveTheReadoutMemoryAndMessages) {
    const std::pair<std::string, std::string> cases[] = {
        {"0", "0.|| 0 None"},
        {".05", "0.05|| 0 Nums"},
        {"5+=", "10||=0 Ops"},
        {"5++3=", "8||=0 Ops"},
        {"2*3=7-1=", "6||=0 Ops"},
        {"7/0=+1=", "8||=0 Ops|Can't divide by zero"},
        {"~", "0.|| 0 None"},
        {"5~~", "5.|| 0 Nums"},
        {"4~@", "-4.|| 0 Nums|Change sign to +."},
        {"2.25@", "1.5||=0 Ops"},
        {"200X10%", "20||=0 Ops"}, // a percent scales the entry, and takes no share
        {"200+10%", "200.1||=0 Ops"},
        {"5+3" + Esc + "2=", "7||=0 Ops"},
        {"5+3" + Esc + Esc + "2=", "2.||=0 Ops"},
        {"1/3=X3=", "0.999999999999999||=0 Ops"},
        {"5" + Esc, "0.|| 1 ClearEntry"},
        {"5" + Esc + "+~" + Esc, "0.|| 0 None"}, // a clear after an operator clears all
        {"12" + MemAdd + Esc + "3" + MemRecall + "5", "15.|Mem:  12| 0 Nums"},
        {"8" + MemAdd + MemMinus + MemRecall, "8.|| 0 Nums"},
        // Memory keys leave the entry open; a clear starts the next one.
        {"2.5" + MemAdd + Esc + "4" + MemMinus, "4.|Mem:  -1.5| 0 Nums"},
        {"2.5" + MemAdd + Esc + "4" + MemMinus + Esc + "1.5" + MemAdd, "1.5|| 0 Nums"},
        {"9" + MemAdd + "\x0c", "9.|| 0 Nums"}, // Ctrl+L
        {"4" + MemAdd + Nines + "X" + Nines + "+3=", "3.|Mem:  4|=0 Ops|Sorry, Overflow!"},
    };
    for (const auto& [keys, expected] : cases)
        EXPECT_EQ(AfterKeys(keys), expected) << keys;
}

TEST(NumericText, ReadsTheLongestPrefixAndWritesFifteenDigits) {
    const std::pair<const char*, double> read[] = {
        {"12.", 12}, {"-3.5x", -3.5}, {"1E+20", 1e20}, {"  7E", 7},
        {"", 0},     {"abc", 0},      {"1E-400", 0},   {"-1E+400", -HUGE_VAL},
    };
    for (const auto& [text, value] : read)
        EXPECT_EQ(NumericValue(text), value) << text;
    EXPECT_EQ(FloatText(5) + " " + FloatText(0.5) + " " + FloatText(1e20) + " " + FloatText(-0.0) +
                  " " + FloatText(123456789012345678.0),
              "5 0.5 1E+20 0 1.23456789012346E+17");
}

constexpr int at(int hours, int minutes, int seconds = 0) {
    return hours * 3600 + minutes * 60 + seconds;
}

TEST(AlarmTime, ReadsTwelveAndTwentyFourHourTimes) {
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"7:30", at(7, 30)},     {"19:30", at(19, 30)},      {"7:30:15 pm", at(19, 30, 15)},
        {"7 PM", at(19, 0)},     {" 2:00 ", at(2, 0)},       {"0:05", at(0, 5)},
        {"25:00", std::nullopt}, {"13:00 PM", std::nullopt}, {"7:60", std::nullopt},
        {"7", std::nullopt},     {"", std::nullopt},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(ParseTimeOfDay(QString::fromLatin1(text)), expected) << text;
    for (int time = 0; time < SecondsPerDay; time += 61)
        ASSERT_EQ(ParseTimeOfDay(LongTimeText(time)), time);
}

} // namespace

} // namespace tessera
