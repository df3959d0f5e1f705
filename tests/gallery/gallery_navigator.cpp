// The monitor spreadsheet with its chart: before any take on a display of 800 by 600, in
// mid-course and with every slot of the log used on a wider one; and its printed page.

#include "core/date_value.h"
#include "core/progress_file.h"
#include "reports/navigator.h"
#include "tests/gallery/gallery.h"
#include "tests/gallery/gallery_print.h"

#include <QTableWidget>

#include <memory>
#include <vector>

namespace tessera {

namespace {

struct Take {
    std::string date;
    int row;
    float score;
};

void WriteLog(const std::vector<Take>& takes) {
    ProgressHeader header;
    for (std::size_t i = 0; i < takes.size() && i < LogSlotCount; ++i) {
        header.LogDates[i + 1] = takes[i].date;
        header.LogCodes[i + 1] = static_cast<uint8_t>(takes[i].row);
        header.LogScores[i + 1] = takes[i].score;
    }
    WriteProgressHeader(header);
}

const std::vector<Take> MidCourse = {
    {"09-14-2026", 1, 0.62F}, {"09-21-2026", 2, 0.74F},  {"10-02-2026", 1, 0.78F},
    {"10-09-2026", 3, 0.55F}, {"10-12-2026", 1, 0.86F},  {"10-30-2026", 4, 0.81F},
    {"11-04-2026", 3, 0.71F}, {"11-18-2026", 10, 0.68F}, {"11-19-2026", 9, 0.7F},
};

// Three takes of every row, two or three days apart from August 3, most rising, a few falling back.
std::vector<Take> FullLog() {
    std::vector<Take> takes;
    DateValue day = DateFromParts(2026, 8, 3);
    for (int i = 0; i < LogSlotCount; ++i, day += 2 + i % 2) {
        const int row = i % MonitorRowCount + 1;
        const int round = i / MonitorRowCount;
        const float score = 0.58F + 0.01F * static_cast<float>((row * 7) % 11) +
                            (row % 5 == 0 && round == 2 ? -0.04F : 0.11F * round);
        takes.push_back({DateText(day), row, score});
    }
    return takes;
}

Navigator* Open(GalleryScene& scene, ScreenContext& context, const std::vector<Take>& takes,
                int row) {
    scene.state.UserName = "Pat Doe";
    scene.state.PassingGrade = 70;
    WriteLog(takes);
    auto* navigator = new Navigator(context);
    navigator->Grid1->setCurrentCell(row, 2);
    return navigator;
}

const GalleryEntry empty("reports_navigator_empty", [](GalleryScene& scene) -> QWidget* {
    return Open(scene, scene.context, {}, 1);
});

// As on a display wider than the gallery's, with the chart beside the table.
const GalleryEntry midCourse("reports_navigator_mid_course", [](GalleryScene& scene) -> QWidget* {
    Navigator* navigator = Open(scene, scene.context, MidCourse, 1);
    navigator->resize(1180, 460);
    return navigator;
});

const GalleryEntry full("reports_navigator_full", [](GalleryScene& scene) -> QWidget* {
    Navigator* navigator = Open(scene, scene.context, FullLog(), 5);
    navigator->resize(1180, 460);
    return navigator;
});

const GalleryEntry printed("reports_navigator_printed", [](GalleryScene& scene) {
    return PrintedFirstPage(
        QStringLiteral("reports_navigator_printed"), [&scene](Printer& printer) {
            PrintingContext paper(scene, printer);
            const std::unique_ptr<Navigator> navigator(Open(scene, paper.context, FullLog(), 1));
            navigator->Command1_Click(0);
        });
});

} // namespace

} // namespace tessera
