// The screening exam report card with a term's worth of exams of every kind, and the monitor
// spreadsheet in mid-course with its chart beside it; and the first page of the print of each.

#include "core/progress_file.h"
#include "platform/card_print.h"
#include "reports/navigator.h"
#include "reports/scoring.h"
#include "reports/scoring_print.h"
#include "tests/gallery/gallery.h"

#include <QListWidget>
#include <QTableWidget>

#include <memory>
#include <tuple>

namespace tessera {

namespace {

struct SampleExam {
    int kind; // 10 exam I, 11 exam II, 12 custom
    int type;
    const char* date;
    int asked;
    int right;
    int answered;
    int unsure;
    int minutes;
    float used;
    std::array<uint8_t, TopicCount + 1> topics;
};

constexpr std::array<SampleExam, 7> SampleExams = {{
    {10, 1, "09-19-2026", 150, 104, 148, 17, 195, 171.5F, {}},
    {12, 3, "10-03-2026", 60, 41, 60, 8, 90, 74.25F, {0, 1, 0, 1, 0, 0, 0, 0, 0, 1}},
    {10, 5, "10-10-2026", 46, 33, 46, 6, 60, 38.0F, {}},
    {11, 2, "10-24-2026", 150, 119, 150, 11, 195, 160.75F, {}},
    {12, 3, "11-07-2026", 40, 28, 39, 5, 0, 41.5F, {0, 0, 1, 0, 0, 1, 0, 1, 0, 0}},
    {11, 6, "11-14-2026", 11, 9, 11, 11, 15, 8.5F, {}},
    {10, 4, "11-21-2026", 150, 127, 150, 6, 195, 150.0F, {}},
}};

// The sample written the given number of times over as the exam records of the progress file.
void WriteSampleCard(GalleryScene& scene, int copies) {
    std::vector<ExamRecord> records;
    for (int copy = 0; copy < copies; ++copy) {
        for (const SampleExam& exam : SampleExams) {
            ExamRecord& r = records.emplace_back();
            r.Kind = static_cast<uint8_t>(exam.kind);
            r.ExamType = static_cast<uint8_t>(exam.type);
            r.Date = exam.date;
            r.ItemCount = static_cast<int16_t>(exam.asked);
            r.AnsweredCount = static_cast<int16_t>(exam.answered);
            r.UnsureCount = static_cast<int16_t>(exam.unsure);
            r.Score = static_cast<float>(exam.right) / static_cast<float>(exam.asked);
            r.Scrambled = exam.kind == 11 ? 0 : 1;
            r.TimeLimit = static_cast<uint8_t>(exam.minutes);
            r.MinutesUsed = exam.used;
            r.Topics = exam.topics;
        }
    }
    WriteProgressHeader({});
    RewriteProgressFile(scene.state, records, 0);
}

const GalleryEntry scoringCard("reports_scoring_card", [](GalleryScene& scene) {
    scene.state.content.ItemCounts[1][2] = 150;
    scene.state.content.ItemCounts[2][2] = 150;
    scene.state.TakeCounts[10] = 3;
    scene.state.TakeCounts[11] = 2;
    WriteSampleCard(scene, 1);
    auto* card = new Scoring(scene.context);
    card->List1->setCurrentRow(1); // a custom exam, with its topics
    return card;
});

// Nine times the sample: 63 exams, 18 of them custom, over two pages.
const GalleryEntry scoringPrint("reports_scoring_print", [](GalleryScene& scene) {
    WriteSampleCard(scene, 9);
    std::vector<ScoringRow> rows = LoadScoringRows(ReadExamRecords());
    SortScoringRows(rows, ScoringSort::EarliestDate);
    return PrintedFirstPage(QStringLiteral("reports_scoring_print"), [&rows](Printer& printer) {
        PrintCard(printer, ScoringPaper(rows, ""));
    });
});

// Ten takes from September to November, six of them of topic 1 so that its chart has to leave
// out labels that would overlap, the last two a day apart; the navigator opened on them with the
// first row's take selected.
Navigator* MidCourse(GalleryScene& scene, ScreenContext& context) {
    const std::array<std::tuple<const char*, int, float>, 10> takes = {{
        {"09-14-2026", 1, 0.62F},
        {"09-21-2026", 2, 0.74F},
        {"09-28-2026", 1, 0.66F},
        {"10-05-2026", 1, 0.71F},
        {"10-12-2026", 1, 0.86F},
        {"10-30-2026", 4, 0.81F},
        {"11-02-2026", 1, 0.69F},
        {"11-09-2026", 1, 0.78F},
        {"11-18-2026", 10, 0.68F},
        {"11-19-2026", 9, 0.7F},
    }};
    ProgressHeader header;
    for (std::size_t i = 0; i < takes.size(); ++i) {
        header.LogDates[i + 1] = std::get<0>(takes[i]);
        header.LogCodes[i + 1] = static_cast<uint8_t>(std::get<1>(takes[i]));
        header.LogScores[i + 1] = std::get<2>(takes[i]);
    }
    WriteProgressHeader(header);
    scene.state.UserName = "Pat Doe";
    scene.state.PassingGrade = 70;
    auto* navigator = new Navigator(context);
    navigator->Grid1->setCurrentCell(1, 2);
    return navigator;
}

// As on a display wider than the gallery's, with the chart beside the table.
const GalleryEntry navigator("reports_navigator_mid_course", [](GalleryScene& scene) -> QWidget* {
    Navigator* navigator = MidCourse(scene, scene.context);
    navigator->resize(1180, 460);
    return navigator;
});

const GalleryEntry printed("reports_navigator_printed", [](GalleryScene& scene) {
    return PrintedFirstPage(
        QStringLiteral("reports_navigator_printed"), [&scene](Printer& printer) {
            PrintingContext paper(scene, printer);
            const std::unique_ptr<Navigator> navigator(MidCourse(scene, paper.context));
            navigator->Command1_Click(0);
        });
});

} // namespace

} // namespace tessera
