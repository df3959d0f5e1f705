// The monitor spreadsheet with its chart: before any take on a display of 800 by 600, in
// mid-course and with every slot of the log used on a wider one; and its printed page.

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
    const char* date;
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

// Three takes of every row, most rising, a few falling back.
std::vector<Take> FullLog() {
    static const std::array<const char*, 36> dates = {
        "08-03-2026", "08-05-2026", "08-10-2026", "08-12-2026", "08-17-2026", "08-19-2026",
        "08-24-2026", "08-26-2026", "08-31-2026", "09-02-2026", "09-09-2026", "09-14-2026",
        "09-16-2026", "09-21-2026", "09-23-2026", "09-28-2026", "09-30-2026", "10-05-2026",
        "10-07-2026", "10-12-2026", "10-14-2026", "10-19-2026", "10-21-2026", "10-26-2026",
        "10-28-2026", "11-02-2026", "11-04-2026", "11-09-2026", "11-11-2026", "11-16-2026",
        "11-18-2026", "11-19-2026", "11-20-2026", "11-23-2026", "11-24-2026", "11-25-2026"};
    std::vector<Take> takes;
    for (int i = 0; i < LogSlotCount; ++i) {
        const int row = i % MonitorRowCount + 1;
        const int round = i / MonitorRowCount;
        const float score = 0.58F + 0.01F * static_cast<float>((row * 7) % 11) +
                            (row % 5 == 0 && round == 2 ? -0.04F : 0.11F * round);
        takes.push_back({dates[static_cast<std::size_t>(i)], row, score});
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
