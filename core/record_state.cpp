// Moving the session to and from its records: what a save stores and what start-up restores.

#include "core/records.h"
#include "core/session_state.h"

#include <algorithm>

namespace tessera {

namespace {

// A stored count used to walk a table: never past the table's 300 positions.
int PositionsToWalk(int16_t count) {
    return std::clamp<int>(count, 0, PositionSlots);
}

uint8_t FlagByte(bool on) {
    return on ? 1 : 0;
}

} // namespace

void ApplyHeader(const ProgressHeader& header, SessionState& state) {
    state.ScrambleQuestions = FlagOn(header.ScrambleQuestions);
    state.SoundOn = FlagOn(header.SoundOn);
    state.TimerActive = FlagOn(header.TimerActive);
    state.IncludeProgressReport = FlagOn(header.IncludeProgressReport);
    state.PassingGrade = header.PassingGrade;
    state.UserName = header.UserName;
    for (int i = 1; i <= TakeCounterCount; ++i)
        state.TakeCounts[i] = header.TakeCounts[i];
}

void FillReviewTestRecord(const SessionState& state, const std::string& date,
                          ReviewTestRecord& record) {
    record.Topic = static_cast<uint8_t>(state.CurrentTopic);
    record.Date = date;
    record.Position = state.TestPosition;
    record.Furthest = state.TestFurthest;
    record.ItemCount = state.TestItemCount;
    record.TestType = static_cast<uint8_t>(state.TestType);
    record.Score = state.TestScore;
    record.TriesRatio = state.TestItemCount == 0 ? 0.0f
                                                 : static_cast<float>(state.TestTally[3]) /
                                                       static_cast<float>(state.TestItemCount);
    record.Scrambled = FlagByte(state.ScrambleQuestions);
    record.MinutesUsed = static_cast<float>(state.TestElapsed * MinutesPerDay);
    for (int i = 1; i <= 3; ++i) {
        record.Tally[i] = state.TestTally[i];
        record.WishesLeft[i] = static_cast<uint8_t>(state.WishesLeft[i]);
    }
    for (int k = 1; k <= PositionsToWalk(state.TestItemCount); ++k) {
        record.Items[k] = state.TestItems[k];
        record.Misses[k] = static_cast<uint8_t>(state.TestMisses[k]);
    }
}

void RestoreReviewTest(const ReviewTestRecord& record, SessionState& state) {
    for (int i = 1; i <= 3; ++i) {
        state.WishesLeft[i] = record.WishesLeft[i];
        state.TestTally[i] = record.Tally[i];
    }
    state.TestElapsed = record.MinutesUsed / MinutesPerDay;
    state.TestType = record.TestType;
    state.TestItemCount = static_cast<int16_t>(PositionsToWalk(record.ItemCount));
    state.TestPosition = std::clamp<int16_t>(record.Position, 0, state.TestItemCount);
    state.TestFurthest = std::clamp<int16_t>(record.Furthest, 0, state.TestItemCount);
    if (record.Topic >= 1 && record.Topic <= TopicCount)
        state.CurrentTopic = record.Topic;
    for (int k = 1; k <= state.TestItemCount; ++k) {
        // An item number no table holds is dropped rather than carried into the screens.
        const int16_t item = record.Items[k];
        state.TestItems[k] = item >= 0 && item <= ReviewItemLimit ? item : 0;
        state.TestMisses[k] = record.Misses[k];
    }
}

void FillExamRecord(SessionState& state, const std::string& date, ExamRecord& record) {
    const int count = PositionsToWalk(state.ExamItemCount);
    int answered = 0;
    int unsure = 0;
    int missed = 0;
    for (int k = 1; k <= count; ++k) {
        if (state.ExamAnswered[k] == 0) {
            ++missed;
            state.ExamAnswers[k] = 0;
            state.ExamUnsure[k] = 0;
            state.ExamAnswerCounts[k] = 0;
            record.AnswerCodes[k] = 0;
            continue;
        }
        ++answered;
        if (state.ExamUnsure[k] != 0)
            ++unsure;
        const bool wrong = state.ExamAnswers[k] != state.ExamKey[k];
        if (wrong)
            ++missed;
        record.AnswerCodes[k] = EncodeAnswerCode(
            state.ExamAnswers[k], wrong, state.ExamAnswerCounts[k], state.ExamUnsure[k] != 0);
    }
    state.ExamScore =
        count == 0 ? 0.0f : static_cast<float>(count - missed) / static_cast<float>(count);

    record.Kind = static_cast<uint8_t>(state.ExamKind + 9);
    record.Date = date;
    record.Position = state.ExamPosition;
    record.ItemCount = state.ExamItemCount;
    record.AnsweredCount = static_cast<int16_t>(answered);
    record.ExamType = static_cast<uint8_t>(state.ExamType);
    record.Score = state.ExamScore;
    record.UnsureCount = static_cast<int16_t>(unsure);
    record.Scrambled = FlagByte(state.ExamScrambled);
    record.MinutesUsed = static_cast<float>(state.ExamElapsed * MinutesPerDay);
    record.TimeLimit = static_cast<uint8_t>(state.ExamMinutes);
    record.Structured = static_cast<uint8_t>(state.ExamStructured);
    for (int t = 1; t <= TopicCount; ++t)
        record.Topics[t] = FlagByte(state.ExamTopics[t]);
    for (int k = 1; k <= count; ++k)
        record.Items[k] = state.ExamItems[k];
}

void RestoreExam(const ExamRecord& record, SessionState& state) {
    for (int t = 1; t <= TopicCount; ++t)
        state.ExamTopics[t] = FlagOn(record.Topics[t]);
    if (record.Kind >= 10 && record.Kind <= 12)
        state.ExamKind = static_cast<int16_t>(record.Kind - 9);
    state.ExamMinutes = record.TimeLimit;
    state.ExamStructured = record.Structured;
    state.ExamType = record.ExamType;
    state.ExamItemCount = static_cast<int16_t>(PositionsToWalk(record.ItemCount));
    state.ExamPosition = std::clamp<int16_t>(record.Position, 0, state.ExamItemCount);
    state.ExamElapsed = record.MinutesUsed / MinutesPerDay;
    for (int k = 1; k <= state.ExamItemCount; ++k) {
        const int16_t item = record.Items[k];
        state.ExamItems[k] = item >= 0 && item <= ReviewItemLimit ? item : 0;
        // A code outside the table leaves the position's answer, count and mark untouched.
        if (const auto code = DecodeAnswerCode(record.AnswerCodes[k])) {
            state.ExamAnswers[k] = static_cast<int16_t>(code->answer);
            state.ExamAnswerCounts[k] = static_cast<int16_t>(code->answerCount);
            if (code->unsure)
                state.ExamUnsure[k] = UnsureMark;
        }
    }
}

} // namespace tessera
