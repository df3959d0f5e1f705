#pragma once
// The monitor spreadsheet's table: the log of 36 slots in ProgressHeader folded into one row for
// each topic and exam, the cell texts, and the sizes of rows and columns.

#include "core/records.h"

#include <array>
#include <string>
#include <vector>

namespace tessera {

struct CourseCatalogue;

inline constexpr int MonitorRowCount = 12; // nine topics, then exam I, exam II and the custom exam
inline constexpr int MonitorColumnCount = 6;
inline constexpr int MonitorHelpTopic = 14;

// One take of a row as the log holds it.
struct MonitorTake {
    std::string date; // month-day-year
    float score = 0;  // share right, 0 to 1
};

// The figures of one row, each from the row's slots in the order of writing.
struct MonitorRow {
    std::string InitialDates;
    float FirstScores = 0;
    int FullTakes = 0;
    float HighScores = 0;
    std::string HighDates;
    std::vector<MonitorTake> takes;
};

// Rows 1 to 12; row 0 holds nothing.
using MonitorRows = std::array<MonitorRow, MonitorRowCount + 1>;

// Folds the slots up to the first free one. A slot whose code names no row is passed over.
MonitorRows FoldProgressLog(const ProgressHeader& header);

// The six column heads, each two lines joined by crLf.
std::array<std::string, MonitorColumnCount> MonitorHeads(const std::string& crLf);

// The title of row r: the topic's, or the exam's from row 10 on; 50 characters or more are cut
// to 46 and "...".
std::string MonitorTitle(const CourseCatalogue& catalogue, int row);

// The six cell texts of a row: title, first date, first score, takes, highest score and its date.
// The scores stay empty for a row never taken.
std::array<std::string, MonitorColumnCount> MonitorCells(const MonitorRow& row,
                                                         const std::string& title);

// Row heights and column widths, in pixels, as fractions of the grid's own size.
struct MonitorGridSizes {
    int headHeight = 0; // row 0, the two-line heads
    int bodyHeight = 0; // rows 1 to 12
    std::array<int, MonitorColumnCount> columnWidths{};
};

// At load: the title column takes 0.43 of the width, the others 0.11 each; rows keep a fixed
// height of 300 twips.
MonitorGridSizes LoadedGridSizes(int width);

// On a resize the rows share the height and the date of the first take gets a wider column.
MonitorGridSizes ResizedGridSizes(int width, int height);

} // namespace tessera
