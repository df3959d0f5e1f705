#include "reports/scoring_rows.h"

#include "core/card_rows.h"
#include "core/text_masks.h"

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr int FirstExamKind = 10; // ExamKind plus 9
constexpr int LastExamKind = 12;

int AskedOf(const ScoringRow& row) {
    return std::clamp<int>(row.record.ItemCount, 0, PositionSlots);
}

std::string TitleText(uint8_t type) {
    switch (type) {
    case 1:
        return "Exam I        ";
    case 2:
        return "Exam II       ";
    case 3:
        return "Custom        ";
    case 4:
        return "Retake All    ";
    case 5:
        return "Retake Missed ";
    default:
        return "Retake Unsure ";
    }
}

// The date as stored; bytes of a damaged field show as blanks.
std::string ShownDate(const std::string& date) {
    std::string shown = date;
    std::replace(shown.begin(), shown.end(), '\0', ' ');
    return shown;
}

double UnsureShare(const ScoringRow& row) {
    const int asked = AskedOf(row);
    return asked == 0 ? 0.0 : static_cast<double>(row.record.UnsureCount) / asked;
}

bool IsRight(uint8_t code) {
    const auto decoded = DecodeAnswerCode(code);
    return decoded && decoded->right;
}

bool IsUnsure(uint8_t code) {
    const auto decoded = DecodeAnswerCode(code);
    return decoded && decoded->unsure;
}

} // namespace

std::vector<ScoringRow> LoadScoringRows(const std::vector<ExamRecord>& records) {
    std::vector<ScoringRow> rows;
    for (const ExamRecord& record : records) {
        if (record.Kind < FirstExamKind || record.Kind > LastExamKind)
            continue;
        ScoringRow row{record, static_cast<int>(rows.size()) + 1};
        for (size_t j = static_cast<size_t>(AskedOf(row)) + 1; j <= PositionSlots; ++j) {
            row.record.Items[j] = 0;
            row.record.AnswerCodes[j] = 0;
        }
        rows.push_back(row);
    }
    return rows;
}

std::string TopicsText(const ScoringRow& row) {
    std::string text;
    for (int i = 1; i <= TopicCount; ++i) {
        if (row.record.Topics[static_cast<size_t>(i)] != 0)
            text += NumberText(i) + ",";
    }
    if (!text.empty())
        text.pop_back();
    return text;
}

std::string ScoringRowText(const ScoringRow& row) {
    const ExamRecord& r = row.record;
    std::string text = TitleText(r.ExamType);
    text += RightAligned(ShownDate(r.Date), 10);
    text += RightAligned(ShareText(r.Score), 7);
    text += RightAligned(NumberText(AskedOf(row)), 7);
    text += RightAligned(NumberText(r.AnsweredCount), 9);
    text += RightAligned(NumberText(r.UnsureCount), 9);
    text += RightAligned(FlagOn(r.Scrambled) ? "Yes" : "No", 9);
    text += RightAligned(DigitsOrNothing(r.TimeLimit), 8);
    text += RightAligned(HoursMinutesSeconds(r.MinutesUsed / MinutesPerDay), 10);
    return text;
}

std::string ScoringTotalsText(const std::vector<ScoringRow>& rows) {
    if (rows.empty())
        return "Total:";
    long correct = 0;
    long asked = 0;
    long answered = 0;
    long unsure = 0;
    long minutes = 0;
    float elapsed = 0;
    for (const ScoringRow& row : rows) {
        const int n = AskedOf(row);
        // Integer = Integer * Single + Integer: rounded at each row, a half to the even one.
        correct =
            std::lrint(static_cast<float>(n) * row.record.Score + static_cast<float>(correct));
        asked += n;
        answered += row.record.AnsweredCount;
        unsure += row.record.UnsureCount;
        minutes += row.record.TimeLimit;
        elapsed += row.record.MinutesUsed;
    }
    const double share = asked == 0 ? 0.0 : static_cast<double>(correct) / asked;
    return "Total:" + RightAligned(ShortShareText(share), 12) +
           RightAligned(GroupedText(asked), 7) + RightAligned(GroupedText(answered), 9) +
           RightAligned(GroupedText(unsure), 9) + std::string(8, ' ') +
           RightAligned(GroupedText(minutes), 9) +
           RightAligned(PaddedHoursMinutesSeconds(elapsed / MinutesPerDay), 10);
}

std::string TopicsCoveredText(const ScoringRow* row) {
    return "Topics Covered: " + (row != nullptr ? TopicsText(*row) : std::string());
}

bool ScoringRowsStandWrong(ScoringSort sort, const ScoringRow& upper, const ScoringRow& lower) {
    const ExamRecord& a = upper.record;
    const ExamRecord& b = lower.record;
    switch (sort) {
    case ScoringSort::EarliestDate:
        return a.Date > b.Date;
    case ScoringSort::LatestDate:
        return a.Date < b.Date;
    case ScoringSort::PercentCorrect:
        return a.Score < b.Score;
    case ScoringSort::QuestionsAsked:
        return AskedOf(upper) < AskedOf(lower);
    case ScoringSort::PercentUnsure:
        return UnsureShare(lower) > UnsureShare(upper);
    }
    return false;
}

void SortScoringRows(std::vector<ScoringRow>& rows, ScoringSort sort) {
    GapSortRows(rows, [sort](const ScoringRow& upper, const ScoringRow& lower) {
        return ScoringRowsStandWrong(sort, upper, lower);
    });
}

int EraseScoringRow(std::vector<ScoringRow>& rows, int row) {
    return EraseRowSelectingAbove(rows, row);
}

std::vector<ExamRecord> KeptExamRecords(const std::vector<ScoringRow>& rows) {
    std::vector<ExamRecord> kept;
    kept.reserve(rows.size());
    for (const ScoringRow& row : rows) {
        ExamRecord record = row.record;
        for (uint8_t& flag : record.Topics)
            flag = flag != 0 ? 1 : 0;
        record.Topics[0] = 0;
        kept.push_back(record);
    }
    return kept;
}

std::array<bool, 3> OfferedExamRetakes(const ScoringRow& row, int takeCount, int fullLength) {
    std::array<bool, 3> offered{true, true, true};
    const int asked = AskedOf(row);
    const int unsure = row.record.UnsureCount;
    if (unsure == 0)
        offered[2] = false;
    if (row.record.Score == 1.0F)
        offered[1] = false;
    if (takeCount >= 3) {
        if (asked == unsure)
            offered[2] = false;
        if (fullLength > 0) {
            if (unsure >= fullLength)
                offered[2] = false;
            if (asked >= fullLength)
                offered[0] = false;
        }
    }
    return offered;
}

void MarkIncludedTopics(SessionState& state, const ScoringRow& row) {
    state.ExamTopics.fill(false);
    for (size_t i = 1; i <= TopicCount; ++i)
        state.ExamTopics[i] = row.record.Topics[i] != 0;
}

void BuildExamRetake(SessionState& state, const ScoringRow& row, ExamRetake choice) {
    const ExamRecord& r = row.record;
    state.ExamMinutes = r.TimeLimit;
    state.ExamScrambled = FlagOn(r.Scrambled);
    state.ExamKind = static_cast<int16_t>(r.Kind - 9);
    state.ExamStructured = r.Structured;
    state.SuspendedExamRecord = 0;
    state.ExamPosition = 0;
    state.ExamItems.fill(0);
    int count = 0;
    for (size_t j = 1; j <= static_cast<size_t>(AskedOf(row)); ++j) {
        const uint8_t code = r.AnswerCodes[j];
        const bool wanted = choice == ExamRetake::AllQuestions ||
                            (choice == ExamRetake::MissedQuestions && !IsRight(code)) ||
                            (choice == ExamRetake::UnsureQuestions && IsUnsure(code));
        if (wanted)
            state.ExamItems[static_cast<size_t>(++count)] = r.Items[j];
    }
    state.ExamItemCount = static_cast<int16_t>(count);
    state.ExamType = static_cast<int16_t>(4 + static_cast<int>(choice));
    MarkIncludedTopics(state, row);
}

void LoadStoredExam(SessionState& state, const ScoringRow& row) {
    const ExamRecord& r = row.record;
    state.ExamAnswers.fill(0);
    state.ExamUnsure.fill(0);
    state.ExamItemCount = static_cast<int16_t>(AskedOf(row));
    state.ExamKind = static_cast<int16_t>(r.Kind - 9);
    state.ExamElapsed = r.MinutesUsed / MinutesPerDay;
    state.ExamScore = r.Score;
    for (size_t j = 1; j <= static_cast<size_t>(AskedOf(row)); ++j) {
        state.ExamItems[j] = r.Items[j];
        if (const auto decoded = DecodeAnswerCode(r.AnswerCodes[j])) {
            state.ExamAnswers[j] = static_cast<int16_t>(decoded->answer);
            state.ExamUnsure[j] = decoded->unsure ? UnsureMark : 0;
        }
    }
}

} // namespace tessera
