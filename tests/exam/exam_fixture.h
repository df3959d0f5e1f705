#pragma once
// A small course for the exam tests, beside the shared clock, random and dialog doubles.

#include "core/session_state.h"
#include "tests/support/fake_clock.h"
#include "tests/support/fake_random.h"
#include "tests/support/scripted_dialogs.h"

#include <cstdio>
#include <string>
#include <vector>

namespace tessera::testing {

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
