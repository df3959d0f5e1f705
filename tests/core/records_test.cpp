#include "core/records.h"
#include "core/session_state.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

using namespace tessera;

namespace {

RecordBytes RandomBytes(unsigned seed) {
    std::mt19937 random(seed);
    RecordBytes bytes;
    for (auto& b : bytes)
        b = static_cast<uint8_t>(random() & 0xFF);
    return bytes;
}

// The little-endian value of size bytes at offset.
uint32_t At(const RecordBytes& b, int offset, int size) {
    uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = value << 8 | b[offset + i];
    return value;
}

using Field = std::tuple<int, int, uint32_t>; // offset, size, expected bytes

void ExpectFields(const RecordBytes& record, std::initializer_list<Field> fields,
                  const char* kind) {
    for (const auto& [offset, size, value] : fields)
        EXPECT_EQ(At(record, offset, size), value) << kind << " offset " << offset;
}
using Ints = std::vector<int>;

} // namespace

TEST(Records, EveryByteSurvivesDecodeAndEncode) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const RecordBytes bytes = RandomBytes(seed);
        EXPECT_EQ(EncodeHeader(DecodeHeader(bytes)), bytes);
        EXPECT_EQ(EncodeReviewTest(DecodeReviewTest(bytes)), bytes);
        EXPECT_EQ(EncodeExam(DecodeExam(bytes)), bytes);
    }
}

TEST(Records, HeaderFieldsStandAtTheirOffsets) {
    ProgressHeader h;
    h.ScrambleQuestions = 1;
    h.SoundOn = 2;
    h.IncludeProgressReport = 1;
    h.PassingGrade = 70;
    h.SuspendedTestRecord = 5;
    h.SuspendedExamRecord = 7;
    h.UserName = "Pat";
    h.TakeCounts[1] = 3;
    h.TakeCounts[12] = 2;
    h.LogDates[2] = "11-19-2026";
    h.LogCodes[2] = 11;
    h.LogScores[2] = 0.75f;
    h.LogScores[36] = -2.0f;
    h.Reserved[0] = 0xAB;
    h.Reserved[350] = 0xCD;
    const RecordBytes b = EncodeHeader(h);
    // A log score of 0.75 is 0x3F400000, of -2 0xC0000000; TakeCounts slot 1 stays free.
    ExpectFields(b,
                 {Field{0, 1, 1}, Field{1, 1, 2}, Field{2, 1, 0}, Field{3, 1, 1}, Field{4, 1, 70},
                  Field{5, 1, 5}, Field{6, 1, 7}, Field{37, 1, 3}, Field{48, 1, 2}, Field{49, 1, 0},
                  Field{410, 1, 11}, Field{449, 4, 0x3F400000}, Field{588, 1, 0xC0},
                  Field{589, 1, 0xAB}, Field{939, 1, 0xCD}},
                 "header");
    EXPECT_EQ(std::string(b.begin() + 7, b.begin() + 37), "Pat" + std::string(27, ' '));
    EXPECT_EQ(std::string(b.begin() + 59, b.begin() + 69), "11-19-2026");

    SessionState state;
    ApplyHeader(DecodeHeader(b), state);
    EXPECT_TRUE(state.ScrambleQuestions);
    EXPECT_FALSE(state.SoundOn) << "a flag byte of 2 is off";
    EXPECT_FALSE(state.TimerActive);
    EXPECT_EQ(state.PassingGrade, 70);
    EXPECT_EQ(state.TakeCounts[12], 2);
    EXPECT_EQ(state.UserName.size(), 30u);
}

TEST(Records, TestAndExamFieldsStandAtTheirOffsets) {
    ReviewTestRecord t;
    t.Topic = 4;
    t.Date = "11-19-2026";
    t.Position = 0x0102;
    t.Furthest = -2;
    t.ItemCount = 40;
    t.TestType = 3;
    t.Score = 0.5f;
    t.TriesRatio = 2.0f;
    t.Scrambled = 1;
    t.MinutesUsed = 64.0f;
    t.Tally = {0, 9, 10, 12};
    t.WishesLeft = {0, 1, 0, 2};
    t.Items[1] = 796;
    t.Items[300] = 7;
    t.Misses[1] = 2;
    t.Misses[300] = 4;
    const RecordBytes r = EncodeReviewTest(t);
    ExpectFields(r,
                 {Field{0, 1, 4}, Field{11, 2, 0x0102}, Field{13, 2, 0xFFFE}, Field{15, 2, 40},
                  Field{17, 1, 3}, Field{18, 4, 0x3F000000}, Field{22, 4, 0x40000000},
                  Field{26, 1, 1}, Field{27, 4, 0x42800000}, Field{31, 2, 9}, Field{33, 2, 10},
                  Field{35, 2, 12}, Field{37, 1, 1}, Field{38, 1, 0}, Field{39, 1, 2},
                  Field{40, 2, 796}, Field{638, 2, 7}, Field{640, 1, 2}, Field{939, 1, 4}},
                 "review test");
    EXPECT_EQ(std::string(r.begin() + 1, r.begin() + 11), "11-19-2026");

    ExamRecord e;
    e.Kind = 12;
    e.Position = 7;
    e.ItemCount = 150;
    e.AnsweredCount = 149;
    e.ExamType = 6;
    e.Score = 1.0f;
    e.UnsureCount = 3;
    e.Scrambled = 1;
    e.MinutesUsed = 2.0f;
    e.TimeLimit = 195;
    e.Structured = 1;
    e.Topics[1] = 1;
    e.Topics[9] = 1;
    e.Items[2] = 300;
    e.AnswerCodes[2] = 80;
    const RecordBytes x = EncodeExam(e);
    ExpectFields(x,
                 {Field{0, 1, 12}, Field{11, 2, 7}, Field{13, 2, 150}, Field{15, 2, 149},
                  Field{17, 1, 6}, Field{18, 4, 0x3F800000}, Field{22, 2, 3}, Field{24, 1, 1},
                  Field{25, 4, 0x40000000}, Field{29, 1, 195}, Field{30, 1, 1}, Field{31, 1, 1},
                  Field{32, 1, 0}, Field{39, 1, 1}, Field{42, 2, 300}, Field{641, 1, 80}},
                 "exam");
}

TEST(Records, AnswerCodeFollowsTheTableBothWays) {
    // answer 2, wrong, answered twice, unsure: 2 + 5 + 10 + 63
    EXPECT_EQ(EncodeAnswerCode(2, true, 2, true), 80);
    EXPECT_EQ(EncodeAnswerCode(4, false, 1, false), 4);
    EXPECT_EQ(EncodeAnswerCode(1, false, 7, false), 21) << "three or more answers add 20";
    for (int answer = 1; answer <= 4; ++answer)
        for (int count = 1; count <= 3; ++count)
            for (bool wrong : {false, true})
                for (bool unsure : {false, true}) {
                    const uint8_t code = EncodeAnswerCode(answer, wrong, count, unsure);
                    const auto decoded = DecodeAnswerCode(code);
                    ASSERT_TRUE(decoded) << int(code);
                    EXPECT_EQ(decoded->answer, answer);
                    EXPECT_EQ(decoded->right, !wrong);
                    EXPECT_EQ(decoded->answerCount, count);
                    EXPECT_EQ(decoded->unsure, unsure);
                }
    for (int code : {0, 31, 40, 63, 94, 200, 255})
        EXPECT_FALSE(DecodeAnswerCode(static_cast<uint8_t>(code))) << code;
    EXPECT_EQ(DecodeAnswerCode(93)->answer, 5);
    EXPECT_EQ(DecodeAnswerCode(64)->answer, 1);
}

TEST(Records, ReviewTestGoesToItsRecordAndComesBack) {
    SessionState state;
    FillCatalogue(state);
    state.CurrentTopic = 6;
    state.TestType = 2;
    state.TestItemCount = 4;
    state.TestPosition = 3;
    state.TestFurthest = 3;
    state.TestScore = 0.5f;
    state.TestTally = {0, 1, 1, 6, 0};
    state.WishesLeft = {0, 1, 0, 1};
    state.TestElapsed = 90.0 / MinutesPerDay;
    state.ScrambleQuestions = true;
    state.TestItems = {0, 401, 402, 403, 404, 999};
    state.TestMisses = {0, 0, 2, 1, 0};
    ReviewTestRecord record;
    record.Items[5] = 77; // past the count: kept as the buffer held it
    FillReviewTestRecord(state, "11-19-2026", record);
    EXPECT_EQ(record.Topic, 6);
    EXPECT_EQ(record.TriesRatio, 1.5f);
    EXPECT_EQ(record.MinutesUsed, 90.0f);
    EXPECT_EQ(record.Scrambled, 1);
    EXPECT_EQ(record.Items[5], 77);

    SessionState restored;
    FillCatalogue(restored);
    RestoreReviewTest(DecodeReviewTest(EncodeReviewTest(record)), restored);
    EXPECT_EQ((Ints{restored.CurrentTopic, restored.TestType, restored.TestPosition,
                    restored.TestItemCount, restored.TestItems[4], restored.TestItems[5],
                    restored.TestMisses[2], restored.TestTally[3], restored.WishesLeft[3]}),
              (Ints{6, 2, 3, 4, 404, 0, 2, 6, 1}));
    EXPECT_DOUBLE_EQ(restored.TestElapsed * MinutesPerDay, 90.0);
    for (const int topic : {0, TopicCount + 1}) { // a topic no table holds leaves the current one
        record.Topic = static_cast<uint8_t>(topic);
        RestoreReviewTest(record, restored);
        EXPECT_EQ(restored.CurrentTopic, 6) << topic;
    }
}

TEST(Records, ExamSaveWipesUncommittedPositionsAndRestores) {
    SessionState state;
    FillCatalogue(state);
    state.ExamKind = 2;
    state.ExamType = 5;
    state.ExamItemCount = 4;
    state.ExamPosition = 2;
    state.ExamStructured = 1;
    state.ExamTopics[4] = false;
    state.ExamItems = {0, 11, 12, 13, 14};
    state.ExamKey = {0, 1, 2, 3, 4};
    state.ExamAnswered = {0, 1, 1, 0, 1};
    state.ExamAnswers = {0, 1, 3, 2, 4};
    state.ExamAnswerCounts = {0, 1, 2, 1, 3};
    state.ExamUnsure = {0, 0, 63, 63, 0};
    ExamRecord record;
    FillExamRecord(state, "01-02-2027", record);
    EXPECT_EQ((std::array<uint8_t, 5>{record.AnswerCodes[1], record.AnswerCodes[2],
                                      record.AnswerCodes[3], record.AnswerCodes[4], record.Kind}),
              (std::array<uint8_t, 5>{1, 3 + 5 + 10 + 63, 0, 4 + 20, 11}));
    EXPECT_EQ(record.AnsweredCount, 3);
    EXPECT_EQ(record.UnsureCount, 1);
    EXPECT_FLOAT_EQ(state.ExamScore, 0.5f) << "an uncommitted item counts as missed";
    EXPECT_EQ(state.ExamUnsure[3], 0);
    EXPECT_EQ(record.Topics[4], 0);
    EXPECT_EQ(record.TimeLimit, 195);

    SessionState restored;
    FillCatalogue(restored);
    RestoreExam(DecodeExam(EncodeExam(record)), restored);
    EXPECT_EQ((Ints{restored.ExamKind, restored.ExamType, restored.ExamPosition,
                    restored.ExamStructured, restored.ExamTopics[4], restored.ExamTopics[5],
                    restored.ExamAnswers[2], restored.ExamAnswerCounts[2], restored.ExamUnsure[2],
                    restored.ExamAnswers[3], restored.ExamAnswerCounts[4], restored.ExamItems[4]}),
              (Ints{2, 5, 2, 1, 0, 1, 3, 2, 63, 0, 3, 14}));
}
