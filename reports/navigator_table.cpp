#include "reports/navigator_table.h"

#include "core/course_catalogue.h"
#include "core/text_masks.h"

namespace tessera {

namespace {
constexpr std::size_t LongTitle = 50;
constexpr std::size_t CutTitle = 46;
constexpr int LoadedRowHeight = 20; // 300 twips

int Part(int whole, double share) {
    return static_cast<int>(whole * share);
}
} // namespace

MonitorRows FoldProgressLog(const ProgressHeader& header) {
    MonitorRows rows;
    for (int i = 1; i <= LogSlotCount; ++i) {
        const std::string& date = header.LogDates[i];
        if (date.empty() || date[0] == '\0')
            break;
        const int c = header.LogCodes[i];
        if (c < 1 || c > MonitorRowCount)
            continue;
        const float score = header.LogScores[i];
        MonitorRow& row = rows[c];
        if (row.InitialDates.empty()) {
            row.InitialDates = date;
            row.FirstScores = score;
            row.HighScores = score;
        }
        ++row.FullTakes;
        // Of two equal highest scores the later take gives the date.
        if (!(score < row.HighScores)) {
            row.HighScores = score;
            row.HighDates = date;
        }
        row.takes.push_back({date, score});
    }
    return rows;
}

std::array<std::string, MonitorColumnCount> MonitorHeads(const std::string& crLf) {
    return {crLf + "Topic Title",           "Initial Date" + crLf + "of Test/Exam",
            "First Drill" + crLf + "Score", "Full" + crLf + "Takes",
            "Highest" + crLf + "Score",     "Date of" + crLf + "Highest Score"};
}

std::string MonitorTitle(const CourseCatalogue& catalogue, int row) {
    const std::string& title =
        row <= TopicCount ? catalogue.TopicTitles[row] : catalogue.ExamNames[row - TopicCount];
    return title.size() >= LongTitle ? title.substr(0, CutTitle) + "..." : title;
}

std::array<std::string, MonitorColumnCount> MonitorCells(const MonitorRow& row,
                                                         const std::string& title) {
    const bool taken = row.FullTakes != 0;
    return {title,
            row.InitialDates,
            taken ? ShareText(row.FirstScores) : std::string(),
            " " + std::to_string(row.FullTakes),
            taken ? ShareText(row.HighScores) : std::string(),
            row.HighDates};
}

MonitorGridSizes LoadedGridSizes(int width) {
    MonitorGridSizes sizes;
    sizes.bodyHeight = LoadedRowHeight;
    sizes.headHeight = 2 * LoadedRowHeight;
    sizes.columnWidths = {Part(width, 0.43), Part(width, 0.11), Part(width, 0.11),
                          Part(width, 0.11), Part(width, 0.11), Part(width, 0.11)};
    return sizes;
}

MonitorGridSizes ResizedGridSizes(int width, int height) {
    MonitorGridSizes sizes;
    sizes.bodyHeight = height / (MonitorRowCount + 1 + 2);
    sizes.headHeight = 2 * sizes.bodyHeight;
    sizes.columnWidths = {Part(width, 0.43), Part(width, 0.13), Part(width, 0.1),
                          Part(width, 0.1),  Part(width, 0.1),  Part(width, 0.1)};
    return sizes;
}

} // namespace tessera
