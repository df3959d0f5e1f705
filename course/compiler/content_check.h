#pragma once
// Validates a content file line by line against its format and lists every violation.

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tessera::course {

struct Violation {
    int line = 0; // 1-based line of the content text
    std::string message;
};

struct ContentSummary {
    std::array<int, 10> topicItems{}; // 1..9
    std::array<int, 3> examItems{};   // 1..2
    int glossaryEntries = 0;
    int texts = 0;
    int helpTexts = 0;
    std::vector<Violation> violations;
};

// The text is the whole file but its last byte, as the program reads it.
ContentSummary CheckContent(std::string_view text);

// "ok: N review items (t1 ... t9), N exam items (e1 e2), N glossary entries, 7 texts, 17 help
// texts"
std::string OkLine(const ContentSummary& summary);

} // namespace tessera::course
