#include "review/quiz_summ_rows.h"

#include "core/card_rows.h"
#include "core/text_masks.h"
#include "review/review_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tessera {

namespace {

// Blanks on the left, as a mask of `width` "@" characters; a longer text stays whole.
std::string PadLeft(const std::string& text, size_t width) {
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

int AskedOf(const CardRow& row) {
    return std::clamp<int>(row.record.ItemCount, 0, PositionSlots);
}

// "##.#0": two decimals, no digit before the point when the whole part is 0.
std::string RatioText(double ratio) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", ratio);
    std::string shown = text;
    if (shown.starts_with("0."))
        shown.erase(0, 1);
    return shown;
}

std::string TypeText(uint8_t type) {
    switch (type) {
    case AllItemsTest:
        return "All Items    ";
    case RetakeAllTest:
        return "Retake All   ";
    case RetakeMissedTest:
        return "Retake Missed";
    default:
        return "Retake Wild  ";
    }
}

std::string DateText(const std::string& date) {
    std::string shown = date;
    std::replace(shown.begin(), shown.end(), '\0', ' ');
    return shown;
}

// Integer = Integer + Single * Integer: the sum is rounded, halves to even, at each row.
long RoundedSum(long total, double addend) {
    return static_cast<long>(std::nearbyint(static_cast<double>(total) + addend));
}

double WildShare(const CardRow& row) {
    const int asked = AskedOf(row);
    return asked == 0 ? 0.0 : static_cast<double>(row.wild) / asked;
}

} // namespace

std::vector<CardRow> LoadCardRows(const std::vector<ReviewTestRecord>& records) {
    std::vector<CardRow> rows;
    rows.reserve(records.size());
    for (const ReviewTestRecord& record : records) {
        CardRow row{record, 0, static_cast<int>(rows.size()) + 1};
        for (int k = 1; k <= AskedOf(row); ++k) {
            if (record.Misses[static_cast<size_t>(k)] > 1)
                ++row.wild;
        }
        rows.push_back(row);
    }
    return rows;
}

std::string FormatTimeUsed(float minutes) {
    const double m = std::max(0.0, static_cast<double>(minutes));
    long wholeMinutes = static_cast<long>(std::floor(m));
    long seconds = std::lround((m - std::floor(m)) * 60.0);
    if (seconds == 60) {
        seconds = 0;
        ++wholeMinutes;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", wholeMinutes / 60, wholeMinutes % 60,
                  seconds);
    return text;
}

std::string CardRowText(const CardRow& row) {
    const ReviewTestRecord& r = row.record;
    std::string text = TypeText(r.TestType);
    text += PadLeft(DateText(r.Date), 12);
    text += PadLeft(PercentText(r.Score), 8);
    text += PadLeft(NumberForm(AskedOf(row)), 7);
    text += PadLeft(NumberForm(row.wild), 9);
    text += PadLeft(RatioText(r.TriesRatio), 10);
    text += r.Scrambled != 0 ? "     Yes" : "      No";
    text += PadLeft(FormatTimeUsed(r.MinutesUsed), 12);
    return text;
}

std::string CardTotalsText(const std::vector<CardRow>& rows) {
    if (rows.empty())
        return "Total:";
    long right = 0;
    long asked = 0;
    long wild = 0;
    long tries = 0;
    float minutes = 0;
    for (const CardRow& row : rows) {
        const int n = AskedOf(row);
        right = RoundedSum(right, static_cast<double>(n) * row.record.Score);
        asked += n;
        wild += row.wild;
        tries = RoundedSum(tries, static_cast<double>(n) * row.record.TriesRatio);
        minutes += row.record.MinutesUsed;
    }
    const double share = asked == 0 ? 0.0 : static_cast<double>(right) / asked;
    const double ratio = asked == 0 ? 0.0 : static_cast<double>(tries) / asked;
    return " Total:" + PadLeft(PercentText(static_cast<float>(share)), 11) +
           PadLeft(GroupedText(asked, false), 7) + PadLeft(GroupedText(wild, true), 9) +
           PadLeft(RatioText(ratio), 10) + std::string(9, ' ') +
           PadLeft(FormatTimeUsed(minutes), 11);
}

std::string RelatedTopicText(int topic, const std::string& title) {
    return "Related Topic " + std::to_string(topic) + ": " + title;
}

bool CardRowsStandWrong(CardSort sort, const CardRow& upper, const CardRow& lower) {
    const ReviewTestRecord& a = upper.record;
    const ReviewTestRecord& b = lower.record;
    switch (sort) {
    case CardSort::EarliestDate:
        return a.Date > b.Date;
    case CardSort::LatestDate:
        return a.Date < b.Date;
    case CardSort::PercentCorrect:
        return a.Score < b.Score;
    case CardSort::TopicSequence:
        return a.Topic > b.Topic;
    case CardSort::PercentWild:
        return WildShare(upper) < WildShare(lower);
    }
    return false;
}

void SortCardRows(std::vector<CardRow>& rows, CardSort sort) {
    GapSortRows(rows, [sort](const CardRow& upper, const CardRow& lower) {
        return CardRowsStandWrong(sort, upper, lower);
    });
}

int EraseCardRow(std::vector<CardRow>& rows, int row) {
    return EraseRowSelectingAbove(rows, row);
}

std::vector<ReviewTestRecord> KeptRecords(const std::vector<CardRow>& rows) {
    std::vector<ReviewTestRecord> kept;
    kept.reserve(rows.size());
    for (const CardRow& row : rows)
        kept.push_back(row.record);
    return kept;
}

std::array<bool, 3> OfferedRetakes(const CardRow& row, int takeCount, int topicItems) {
    std::array<bool, 3> offered{true, true, true};
    const float score = row.record.Score;
    if (score == 1.0F) {
        offered[1] = false;
        offered[2] = false;
    }
    if (row.wild == 0)
        offered[2] = false;
    if (takeCount >= 3) {
        if (AskedOf(row) == topicItems)
            offered[0] = false;
        if (score == 0.0F)
            offered[1] = false;
        if (row.wild == topicItems)
            offered[2] = false;
    }
    return offered;
}

void BuildCardRetake(SessionState& state, const CardRow& row, RetakeChoice choice) {
    const int n = AskedOf(row);
    std::vector<int16_t> items(row.record.Items.begin() + 1, row.record.Items.begin() + 1 + n);
    std::vector<int16_t> misses(row.record.Misses.begin() + 1, row.record.Misses.begin() + 1 + n);
    BuildRetake(state, row.record.Topic, items, misses, choice);
}

} // namespace tessera
