#include "core/records.h"
#include "core/session_state.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tessera;

namespace {

// Each run of bytes that are not zero as offset:hex, with stretches of text quoted.
std::string Layout(const RecordBytes& bytes) {
    const auto isText = [](uint8_t c) { return c >= ' ' && c < 0x7F; };
    std::string layout;
    for (size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] == 0)
            continue;
        if (at == 0 || bytes[at - 1] == 0)
            layout += ' ' + std::to_string(at) + ':';
        size_t end = at;
        while (end < bytes.size() && isText(bytes[end]))
            ++end;
        if (end - at > 2) {
            layout += '\'' + std::string(bytes.begin() + at, bytes.begin() + end) + '\'';
            at = end - 1;
        } else {
            layout += "0123456789abcdef"[bytes[at] >> 4];
            layout += "0123456789abcdef"[bytes[at] & 15];
        }
    }
    return layout;
}

using Ints = std::vector<int>;

} // namespace

TEST(Records, FieldsStandAtTheirOffsets) {
    ProgressHeader h;
    std::tie(h.ScrambleQuestions, h.SoundOn, h.IncludeProgressReport, h.PassingGrade,
             h.SuspendedTestRecord, h.SuspendedExamRecord, h.UserName) =
        std::tuple(1, 2, 1, 70, 5, 7, "Pat");
    std::tie(h.TakeCounts[2], h.TakeCounts[12], h.Reserved[0], h.Reserved[350]) =
        std::tuple(3, 2, 0xAB, 0xCD);
    std::tie(h.LogDates[2], h.LogCodes[2], h.LogScores[2], h.LogScores[36]) =
        std::tuple("11-19-2026", 11, 0.75f, -2.0f);
    EXPECT_EQ(Layout(EncodeHeader(h)), " 0:0102 3:01460507'Pat" + std::string(27, ' ') +
                                           "' 38:03 48:02 59:'11-19-2026' 410:0b 451:403f "
                                           "588:c0ab 939:cd");
    SessionState state;
    ApplyHeader(DecodeHeader(EncodeHeader(h)), state);
    EXPECT_EQ((Ints{state.ScrambleQuestions, state.SoundOn, state.TimerActive, state.PassingGrade,
                    state.TakeCounts[12], static_cast<int>(state.UserName.size())}),
              (Ints{1, 0, 0, 70, 2, 30}))
        << "a flag is on only when its byte is 1";

    ReviewTestRecord t;
    std::tie(t.Topic, t.Date, t.Position, t.Furthest, t.ItemCount, t.TestType, t.Score,
             t.TriesRatio, t.Scrambled, t.MinutesUsed, t.Tally, t.WishesLeft) =
        std::tuple(4, "11-19-2026", 0x0102, -2, 40, 3, 0.5f, 2.0f, 1, 64.0f,
                   std::array<int16_t, 4>{0, 9, 10, 12}, std::array<uint8_t, 4>{0, 1, 0, 2});
    std::tie(t.Items[1], t.Items[300], t.Misses[1], t.Misses[300]) = std::tuple(796, 7, 2, 4);
    EXPECT_EQ(Layout(EncodeReviewTest(t)), " 0:04'11-19-2026'0201feff28 17:03 21:3f 25:4001 "
                                           "29:804209 33:0a 35:0c 37:01 39:021c03 638:07 "
                                           "640:02 939:04");

    ExamRecord e;
    std::tie(e.Kind, e.Position, e.ItemCount, e.AnsweredCount, e.ExamType, e.Score, e.UnsureCount,
             e.Scrambled, e.MinutesUsed, e.TimeLimit, e.Structured) =
        std::tuple(12, 7, 150, 149, 6, 1.0f, 3, 1, 2.0f, 195, 1);
    std::tie(e.Topics[1], e.Topics[9], e.Items[2], e.AnswerCodes[2]) = std::tuple(1, 1, 300, 80);
    EXPECT_EQ(Layout(EncodeExam(e)), " 0:0c 11:07 13:96 15:95 17:06 20:803f03 24:01 "
                                     "28:40c30101 39:01 42:2c01 641:50");
    // Answer codes as answer, right or wrong, answers given, unsure: six bands of five, 63 added
    // when unsure; anything else is no code.
    std::string codes;
    for (const int code : {1, 30, 64, 93, 0, 31, 63, 94, 255})
        if (const auto c = DecodeAnswerCode(static_cast<uint8_t>(code)))
            codes += std::to_string(c->answer) + "wr"[c->right] + std::to_string(c->answerCount) +
                     (c->unsure ? "? " : " ");
        else
            codes += "- ";
    EXPECT_EQ(codes, "1r1 5w3 1r1? 5w3? - - - - - ");
}

// A save writes what the run holds, an uncommitted exam item counted as missed and without its
// unsure mark; a restore takes back what stays within the tables.
TEST(Records, RunsGoToTheirRecordsAndComeBack) {
    SessionState state;
    FillCatalogue(state);
    std::tie(state.TestItemCount, state.TestElapsed) = std::tuple(4, 90.0 / MinutesPerDay);
    state.TestTally = {0, 1, 1, 6, 0};
    ReviewTestRecord test;
    test.Items[5] = 77; // past the count: kept as the buffer held it
    FillReviewTestRecord(state, "11-19-2026", test);
    EXPECT_EQ(std::tuple(test.TriesRatio, test.MinutesUsed, test.Items[5]),
              std::tuple(1.5f, 90.0f, 77));

    std::tie(state.ExamKind, state.ExamType, state.ExamItemCount, state.ExamPosition,
             state.ExamStructured, state.ExamTopics[4]) = std::tuple(2, 5, 4, 2, 1, false);
    state.ExamItems = {0, 11, 12, 13, 14};
    state.ExamKey = {0, 1, 2, 3, 4};
    state.ExamAnswered = {0, 1, 1, 0, 1};
    state.ExamAnswers = {0, 1, 3, 2, 4};
    state.ExamAnswerCounts = {0, 1, 2, 1, 3};
    state.ExamUnsure = {0, 0, 63, 63, 0};
    ExamRecord record;
    FillExamRecord(state, "01-02-2027", record);
    EXPECT_EQ((Ints{record.AnswerCodes[1], record.AnswerCodes[2], record.AnswerCodes[3],
                    record.AnswerCodes[4], record.Kind, record.AnsweredCount, record.UnsureCount,
                    record.Topics[4], record.TimeLimit, state.ExamUnsure[3]}),
              (Ints{1, 3 + 5 + 10 + 63, 0, 4 + 20, 11, 3, 1, 0, 195, 0}));
    EXPECT_FLOAT_EQ(state.ExamScore, 0.5f);

    SessionState restored;
    FillCatalogue(restored);
    RestoreExam(DecodeExam(EncodeExam(record)), restored);
    EXPECT_EQ((Ints{restored.ExamKind, restored.ExamType, restored.ExamPosition,
                    restored.ExamStructured, restored.ExamTopics[4], restored.ExamTopics[5],
                    restored.ExamAnswers[2], restored.ExamAnswerCounts[2], restored.ExamUnsure[2],
                    restored.ExamAnswers[3], restored.ExamAnswerCounts[4], restored.ExamItems[4]}),
              (Ints{2, 5, 2, 1, 0, 1, 3, 2, 63, 0, 3, 14}));
    // As a damaged file holds them: counts and positions are bounded, item numbers past the
    // table dropped, and a topic or kind no table has leaves the current one.
    std::tie(restored.CurrentTopic, test.Topic, test.ItemCount, test.Position) =
        std::tuple(5, TopicCount + 1, 1000, 900);
    test.Items = {0, 797, -1, 796};
    std::tie(record.Kind, record.ItemCount, record.Position) = std::tuple(200, -7, -2);
    RestoreReviewTest(test, restored);
    RestoreExam(record, restored);
    EXPECT_EQ((Ints{restored.CurrentTopic, restored.TestItemCount, restored.TestPosition,
                    restored.TestItems[1], restored.TestItems[2], restored.TestItems[3],
                    restored.ExamKind, restored.ExamItemCount, restored.ExamPosition}),
              (Ints{5, 300, 300, 0, 0, 796, 2, 0, 0}));
}
