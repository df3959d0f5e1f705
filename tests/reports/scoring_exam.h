#pragma once
// Exam records for the report card's tests.

#include "core/records.h"

#include <initializer_list>
#include <string>

namespace tessera {

// A finished exam of `kind` (10 to 12) and `type` (1 to 6); items numbered from `firstItem`,
// with the answer codes given, the answered and unsure counts taken from them.
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
    int j = 0;
    for (int code : codes) {
        ++j;
        r.Items[static_cast<size_t>(j)] = static_cast<int16_t>(firstItem + j - 1);
        r.AnswerCodes[static_cast<size_t>(j)] = static_cast<uint8_t>(code);
        r.AnsweredCount = static_cast<int16_t>(r.AnsweredCount + (code != 0 ? 1 : 0));
        r.UnsureCount = static_cast<int16_t>(r.UnsureCount + (code >= 64 && code <= 93 ? 1 : 0));
    }
    r.ItemCount = static_cast<int16_t>(j);
    return r;
}

} // namespace tessera
