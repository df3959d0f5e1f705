#pragma once
// Finished review tests and exams as the report cards read them, and the orders they sort in.

#include "core/records.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace tessera {

// Numbers the positions from `firstItem`, gives each its mark (wrong tries or an answer code)
// and returns how many there are.
template <class Items, class Marks>
int16_t FillPositions(Items& items, Marks& marks, std::initializer_list<int> given, int firstItem) {
    int16_t k = 0;
    for (int mark : given) {
        marks[++k] = static_cast<uint8_t>(mark);
        items[k] = static_cast<int16_t>(firstItem + k - 1);
    }
    return k;
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

// An exam of `kind` 10 to 12 and `type` 1 to 6, answered and unsure as its answer codes say.
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

// The rows' keys in order after a sort each way, a word of digits a way.
template <class Row, class Sort>
std::string SortedKeys(const std::vector<Row>& rows, std::initializer_list<Sort> sorts,
                       void (*sortRows)(std::vector<Row>&, Sort), int Row::*key) {
    std::string words;
    for (Sort sort : sorts) {
        std::vector<Row> sorted = rows;
        sortRows(sorted, sort);
        words += words.empty() ? "" : " ";
        for (const Row& row : sorted)
            words += std::to_string(row.*key);
    }
    return words;
}

} // namespace tessera
