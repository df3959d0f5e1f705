#pragma once
// Finished review tests and exams as the report cards read them from the progress file, and
// the orders the cards sort them in.

#include "core/records.h"

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

namespace tessera {

// Numbers the positions from `firstItem`, gives each its mark (wrong tries or an answer code)
// and returns how many there are.
template <class Items, class Marks>
int16_t FillPositions(Items& items, Marks& marks, std::initializer_list<int> given, int firstItem) {
    size_t k = 0;
    for (int mark : given) {
        ++k;
        items[k] = static_cast<int16_t>(firstItem + static_cast<int>(k) - 1);
        marks[k] = static_cast<uint8_t>(mark);
    }
    return static_cast<int16_t>(k);
}

// A review test of a topic, of `type` 1 to 4, with the wrong tries given by position.
inline ReviewTestRecord CardRecord(int topic, const std::string& date, float score, int type,
                                   std::initializer_list<int> misses, int firstItem = 1) {
    ReviewTestRecord r;
    r.Topic = static_cast<uint8_t>(topic);
    r.Date = date;
    r.Score = score;
    r.TestType = static_cast<uint8_t>(type);
    r.TriesRatio = 1.25F;
    r.MinutesUsed = 65.5F;
    r.Scrambled = 1;
    r.ItemCount = FillPositions(r.Items, r.Misses, misses, firstItem);
    return r;
}

// An exam of `kind` 10 to 12 and `type` 1 to 6; the answered and unsure counts follow the
// answer codes given.
inline ExamRecord CardExam(int kind, int type, const std::string& date, float score,
                           std::initializer_list<int> codes, int firstItem = 1) {
    ExamRecord r;
    r.Kind = static_cast<uint8_t>(kind);
    r.ExamType = static_cast<uint8_t>(type);
    r.Date = date;
    r.Score = score;
    r.Scrambled = 1;
    r.TimeLimit = 195;
    r.MinutesUsed = 90.5F;
    r.ItemCount = FillPositions(r.Items, r.AnswerCodes, codes, firstItem);
    for (int code : codes) {
        r.AnsweredCount = static_cast<int16_t>(r.AnsweredCount + (code != 0 ? 1 : 0));
        r.UnsureCount = static_cast<int16_t>(r.UnsureCount + (code >= 64 && code <= 93 ? 1 : 0));
    }
    return r;
}

// The rows' keys in order after a sort each way, a word of digits a way; a second sort of the
// same way that moves a row shows after a '/'.
template <class Row, class Sort>
std::string SortedKeys(const std::vector<Row>& rows, std::initializer_list<Sort> sorts,
                       void (*sortRows)(std::vector<Row>&, Sort), int Row::*key) {
    std::string words;
    for (Sort sort : sorts) {
        std::vector<Row> sorted = rows;
        std::array<std::string, 2> passes;
        for (std::string& pass : passes) {
            sortRows(sorted, sort);
            for (const Row& row : sorted)
                pass += std::to_string(row.*key);
        }
        words += (words.empty() ? "" : " ") + passes[0] +
                 (passes[1] == passes[0] ? "" : "/" + passes[1]);
    }
    return words;
}

} // namespace tessera
