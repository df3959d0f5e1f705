#pragma once
// Review test records for the report card's tests.

#include "core/records.h"

#include <initializer_list>
#include <string>

namespace tessera {

// A finished test of a topic, its items numbered from `firstItem` and wrong tries as given.
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
    int k = 0;
    for (int m : misses) {
        ++k;
        r.Items[static_cast<size_t>(k)] = static_cast<int16_t>(firstItem + k - 1);
        r.Misses[static_cast<size_t>(k)] = static_cast<uint8_t>(m);
    }
    r.ItemCount = static_cast<int16_t>(k);
    r.Position = r.Furthest = 0;
    return r;
}

} // namespace tessera
