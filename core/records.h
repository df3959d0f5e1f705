#pragma once
// The three record shapes of the progress file and their 940-byte encoding, field by field.
//
// Every field keeps the raw value it had on disk, so decoding and encoding a record gives back
// the same 940 bytes: flags stay bytes (on only when exactly 1), texts keep their padding, and
// the header's reserved tail passes through untouched.

#include "core/course_catalogue.h"
#include "core/date_value.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

struct SessionState;

inline constexpr int RecordSize = 940;
inline constexpr int UserNameLength = 30;
inline constexpr int DateFieldLength = 10;
inline constexpr int ReservedHeaderBytes = 351;
inline constexpr int PositionSlots = ExamItemLimit; // the 300 positions of a test or an exam

using RecordBytes = std::array<uint8_t, RecordSize>;

// A flag byte of the file is on only when it is exactly 1.
inline bool FlagOn(uint8_t byte) {
    return byte == 1;
}

// Record 1: options, suspended record numbers, user name, take counters and the log.
struct ProgressHeader {
    uint8_t ScrambleQuestions = 0;
    uint8_t SoundOn = 0;
    uint8_t TimerActive = 0;
    uint8_t IncludeProgressReport = 0;
    uint8_t PassingGrade = 0;
    uint8_t SuspendedTestRecord = 0;
    uint8_t SuspendedExamRecord = 0;
    std::string UserName = std::string(UserNameLength, '\0'); // first byte 0: never initialised
    std::array<uint8_t, TakeCounterCount + 1> TakeCounts{};   // 1..12
    std::array<std::string, LogSlotCount + 1> LogDates;       // 1..36, first byte 0: free slot
    std::array<uint8_t, LogSlotCount + 1> LogCodes{};
    std::array<float, LogSlotCount + 1> LogScores{};
    std::array<uint8_t, ReservedHeaderBytes> Reserved{};

    ProgressHeader();
    bool isFirstRun() const { return UserName.empty() || UserName[0] == '\0'; }
};

// A review test, finished or suspended. The first byte is its topic, 1 to 9.
struct ReviewTestRecord {
    uint8_t Topic = 0;
    std::string Date = std::string(DateFieldLength, '\0');
    int16_t Position = 0;
    int16_t Furthest = 0;
    int16_t ItemCount = 0;
    uint8_t TestType = 0;
    float Score = 0;
    float TriesRatio = 0;
    uint8_t Scrambled = 0;
    float MinutesUsed = 0;
    std::array<int16_t, 4> Tally{};      // 1..3
    std::array<uint8_t, 4> WishesLeft{}; // 1..3
    std::array<int16_t, PositionSlots + 1> Items{};
    std::array<uint8_t, PositionSlots + 1> Misses{};
};

// A screening exam, finished or suspended. The first byte is its ExamKind plus 9.
struct ExamRecord {
    uint8_t Kind = 0;
    std::string Date = std::string(DateFieldLength, '\0');
    int16_t Position = 0;
    int16_t ItemCount = 0;
    int16_t AnsweredCount = 0;
    uint8_t ExamType = 0;
    float Score = 0;
    int16_t UnsureCount = 0;
    uint8_t Scrambled = 0;
    float MinutesUsed = 0;
    uint8_t TimeLimit = 0;
    uint8_t Structured = 0;
    std::array<uint8_t, TopicCount + 1> Topics{}; // 1..9
    std::array<int16_t, PositionSlots + 1> Items{};
    std::array<uint8_t, PositionSlots + 1> AnswerCodes{};
};

RecordBytes EncodeHeader(const ProgressHeader& header);
ProgressHeader DecodeHeader(const RecordBytes& bytes);
RecordBytes EncodeReviewTest(const ReviewTestRecord& record);
ReviewTestRecord DecodeReviewTest(const RecordBytes& bytes);
RecordBytes EncodeExam(const ExamRecord& record);
ExamRecord DecodeExam(const RecordBytes& bytes);

// Which shape a record has, told by its first byte.
inline bool IsReviewTestByte(uint8_t first) {
    return first <= 9;
}
inline bool IsExamByte(uint8_t first) {
    return first > 9;
}

// The exam answer code: one byte packing answer, verdict, answer count and the unsure mark.
struct AnswerCode {
    int answer = 0;      // 1 for A
    bool right = false;  // the answer equals the key
    int answerCount = 0; // 1, 2 or 3 (3 stands for 3 or more)
    bool unsure = false;
};

inline constexpr int UnsureMark = 63; // the code of "?"

uint8_t EncodeAnswerCode(int answer, bool wrong, int answerCount, bool unsure);
// Empty for 0 (no answer) and for every value outside the code table.
std::optional<AnswerCode> DecodeAnswerCode(uint8_t code);

// The buffers that operations load, change and write back; scratch between operations.
struct RecordBuffers {
    ProgressHeader header;
    ReviewTestRecord review;
    ExamRecord exam;
};

// Header fields start-up takes into the session: the four options, grade, name, counters.
void ApplyHeader(const ProgressHeader& header, SessionState& state);

// Fills a review test record from the session as a save does; table entries past
// TestItemCount keep what the record held. The tries ratio is TestTally(3) over TestItemCount.
void FillReviewTestRecord(const SessionState& state, const std::string& date,
                          ReviewTestRecord& record);

// Restores a suspended review test into the session, as start-up does.
void RestoreReviewTest(const ReviewTestRecord& record, SessionState& state);

// Fills an exam record from the session as a save does. A position not committed to the
// answered list loses its answer, mark and count and counts as missed; ExamScore becomes the
// share right. Table entries past ExamItemCount keep what the record held.
void FillExamRecord(SessionState& state, const std::string& date, ExamRecord& record);

// Restores a suspended exam into the session, as start-up does. ExamScrambled is not restored.
void RestoreExam(const ExamRecord& record, SessionState& state);

} // namespace tessera
