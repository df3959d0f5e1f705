#pragma once
// A small course and the clock, random and dialog doubles the exam tests share.

#include "core/session_state.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/random_source.h"

#include <cstdio>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tessera::testing {

class FakeClock final : public Clock {
public:
    DateValue current = 46000.5; // noon of a day in 2025
    DateValue now() const override { return current; }
    double secondsSinceMidnight() const override { return 43200; }
    bool setTimeOfDay(int, int, int) override { return false; }
    void advanceSeconds(double seconds) { current += seconds / 86400.0; }
};

// Plays back a list of draws, round and round.
class FakeRandom final : public Random {
public:
    std::vector<double> values{0.5};
    std::size_t at = 0;
    double next() override { return values[at++ % values.size()]; }
    void seed(uint32_t) override {}
};

struct ShownMessage {
    QString text;
    QString title;
    MessageIcon icon;
    MessageButtons buttons;
};

// Answers message boxes from a script (Ok when the script runs out) and keeps every one shown.
class ScriptedDialogs final : public Dialogs {
public:
    std::deque<MessageAnswer> answers;
    std::vector<ShownMessage> shown;
    std::function<void()> whileShown; // time passing while the box is up, for instance
    MessageAnswer message(const QString& text, const QString& title, MessageIcon icon,
                          MessageButtons buttons) override {
        shown.push_back({text, title, icon, buttons});
        if (whileShown) {
            whileShown();
        }
        if (answers.empty()) {
            return MessageAnswer::Ok;
        }
        const MessageAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    QString input(const QString&, const QString&, const QString&) override { return {}; }
};

// The right letter of item ordinal j: A, B, C, D, A, ...
inline char KeyLetter(int j) {
    return static_cast<char>('A' + (j - 1) % 4);
}

inline std::string Fragment(int header, int ordinal, char key) {
    char head[16];
    std::snprintf(head, sizeof head, "\\par %02d%03d%c", header, ordinal, key);
    const std::string name = std::to_string(header) + "." + std::to_string(ordinal);
    return std::string(head) + "\r\n\\par Question " + name + "\r\n\\par A. one\r\n" +
           "\\par B. two\r\n\\par C. three\r\n\\par D. four\r\n\\par \r\n\\par *\r\n" +
           "\\par Explanation " + name + "\r\n\\par }\r\n";
}

// Fills the catalogue and a course of the given topic and exam sizes into the session.
inline void MakeCourse(SessionState& state, const std::vector<int>& topicCounts,
                       const std::vector<int>& examCounts) {
    FillCatalogue(state);
    auto& content = state.content;
    content.RtfHeader = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 ";
    int running = 0;
    for (int t = 1; t <= TopicCount; ++t) {
        const int count = t <= static_cast<int>(topicCounts.size()) ? topicCounts[t - 1] : 0;
        content.ItemCounts[t][1] = static_cast<int16_t>(count);
        for (int j = 1; j <= count; ++j) {
            content.ReviewItems[++running] = Fragment(t, j, KeyLetter(j));
        }
    }
    running = 0;
    for (int e = 1; e <= 2; ++e) {
        content.ItemCounts[e][2] = static_cast<int16_t>(examCounts[e - 1]);
        for (int j = 1; j <= examCounts[e - 1]; ++j) {
            content.ExamItemTexts[++running] = Fragment(e, j, KeyLetter(j));
        }
    }
}

} // namespace tessera::testing
