#pragma once
// Finished tests and exams made up for the progress file tests, and the file's bytes.

#include "core/records.h"

#include <string>
#include <vector>

namespace tessera {

// A progress file of the given records, the header first.
inline std::string File(std::initializer_list<RecordBytes> records) {
    std::string file;
    for (const RecordBytes& record : records)
        file.append(record.begin(), record.end());
    return file;
}

// The whole records of a file, the header first.
inline std::vector<std::string> RecordsOf(const std::string& file) {
    std::vector<std::string> records;
    for (std::size_t at = 0; at + RecordSize <= file.size(); at += RecordSize)
        records.push_back(file.substr(at, RecordSize));
    return records;
}

inline ReviewTestRecord TestOfTopic(int topic, int position = 0) {
    ReviewTestRecord r;
    r.Topic = static_cast<uint8_t>(topic);
    r.Date = "03-04-2026";
    r.Position = static_cast<int16_t>(position);
    r.Furthest = static_cast<int16_t>(position);
    r.ItemCount = 4;
    r.TestType = 1;
    for (int p = 1; p <= 4; ++p)
        r.Items[p] = static_cast<int16_t>(topic * 10 + p);
    return r;
}

inline ExamRecord ExamOfKind(int kind, int position = 0) {
    ExamRecord e;
    e.Kind = static_cast<uint8_t>(kind + 9);
    e.Date = "05-06-2026";
    e.Position = static_cast<int16_t>(position);
    e.ItemCount = 3;
    e.ExamType = static_cast<uint8_t>(kind);
    e.TimeLimit = 30;
    for (int p = 1; p <= 3; ++p) {
        e.Items[p] = static_cast<int16_t>(kind * 100 + p);
        e.AnswerCodes[p] = 1;
    }
    return e;
}

} // namespace tessera
