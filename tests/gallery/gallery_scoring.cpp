// The screening exam report card with a term's worth of exams of every kind, sorted two ways,
// and empty; and the first page of its print, made through the PDF path of the real printer.

#include "core/progress_file.h"
#include "platform/card_print.h"
#include "reports/scoring.h"
#include "reports/scoring_print.h"
#include "tests/gallery/gallery.h"
#include "tests/gallery/gallery_print.h"

#include <QListWidget>
#include <QRadioButton>

#include <fstream>

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

constexpr std::array<SampleExam, 9> SampleExams = {{
    {10, 1, "09-19-2026", 150, 104, 148, 17, 195, 171.5F, {}},
    {12, 3, "10-03-2026", 60, 41, 60, 8, 90, 74.25F, {0, 1, 0, 1, 0, 0, 0, 0, 0, 1}},
    {10, 5, "10-10-2026", 46, 33, 46, 6, 60, 38.0F, {}},
    {11, 2, "10-24-2026", 150, 119, 150, 11, 195, 160.75F, {}},
    {12, 3, "11-07-2026", 40, 28, 39, 5, 0, 41.5F, {0, 0, 1, 0, 0, 1, 0, 1, 0, 0}},
    {11, 6, "11-14-2026", 11, 9, 11, 11, 15, 8.5F, {}},
    {10, 4, "11-21-2026", 150, 127, 150, 6, 195, 150.0F, {}},
    {11, 4, "12-12-2026", 150, 131, 150, 4, 195, 142.0F, {}},
    {10, 5, "01-09-2027", 23, 19, 23, 2, 30, 20.25F, {}},
}};

ExamRecord SampleRecord(const SampleExam& exam) {
    ExamRecord r;
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
    for (int j = 1; j <= exam.asked; ++j) {
        const bool right = j <= exam.right;
        const bool unsure = j > exam.asked - exam.unsure;
        r.Items[static_cast<size_t>(j)] = static_cast<int16_t>(j);
        r.AnswerCodes[static_cast<size_t>(j)] =
            j > exam.answered ? 0 : EncodeAnswerCode(1, !right, 1, unsure);
    }
    return r;
}

void WriteSampleCard(int copies) {
    std::ofstream file(ProgressFile, std::ios::binary | std::ios::trunc);
    const RecordBytes header = EncodeHeader(ProgressHeader{});
    file.write(reinterpret_cast<const char*>(header.data()), RecordSize);
    for (int copy = 0; copy < copies; ++copy) {
        for (const SampleExam& exam : SampleExams) {
            const RecordBytes record = EncodeExam(SampleRecord(exam));
            file.write(reinterpret_cast<const char*>(record.data()), RecordSize);
        }
    }
}

void CountTakes(GalleryScene& scene) {
    scene.state.content.ItemCounts[1][2] = 150;
    scene.state.content.ItemCounts[2][2] = 150;
    scene.state.TakeCounts[10] = 3;
    scene.state.TakeCounts[11] = 2;
}

} // namespace

const GalleryEntry scoringCard("reports_scoring_card", [](GalleryScene& scene) {
    CountTakes(scene);
    WriteSampleCard(1);
    auto* card = new Scoring(scene.context);
    card->List1->setCurrentRow(2); // a custom exam, with its topics
    return card;
});

const GalleryEntry scoringByPercent("reports_scoring_by_percent", [](GalleryScene& scene) {
    CountTakes(scene);
    WriteSampleCard(1);
    auto* card = new Scoring(scene.context);
    card->Option1[2]->setChecked(true);
    card->List1->setCurrentRow(0);
    return card;
});

const GalleryEntry scoringEmpty("reports_scoring_empty",
                                [](GalleryScene& scene) { return new Scoring(scene.context); });

// Seven times the sample: 63 exams, 14 of them custom, over two pages.
const GalleryEntry scoringPrint("reports_scoring_print", [](GalleryScene&) {
    WriteSampleCard(7);
    std::vector<ScoringRow> rows = LoadScoringRows(ReadExamRecords());
    SortScoringRows(rows, ScoringSort::EarliestDate);
    return PrintedFirstPage(QStringLiteral("reports_scoring_print"), [&rows](Printer& printer) {
        PrintCard(printer, ScoringPaper(rows, ""));
    });
});

} // namespace tessera
