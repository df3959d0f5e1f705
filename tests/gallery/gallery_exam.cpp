// The screening exam screens in the states a candidate meets them: the builder with exams in
// their drills, the exam in both approaches with items answered, unsure and remaining, the exam
// whose time ran out, and the results with the first page of their print.

#include "exam/exam_items.h"
#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"
#include "tests/gallery/gallery.h"

#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace tessera {

namespace {

// A custom exam of 20 items from the first four topics, half an hour, driven by its buttons:
// 0 to 3 the answers, 5 Next, 6 Previous, 10 Unsure.
ExamTest* CustomExam(GalleryScene& scene, int structured, std::initializer_list<int> presses) {
    scene.loadDefaultCourse();
    SessionState& s = scene.state;
    s.ExamKind = s.ExamType = 3;
    s.ExamItemCount = 20;
    s.ExamMinutes = 30;
    s.ExamStructured = static_cast<int16_t>(structured);
    s.ExamTopics.fill(false);
    std::fill_n(s.ExamTopics.begin() + 1, 4, true);
    auto* exam = new ExamTest(scene.context);
    for (int index : presses)
        Control<QPushButton>(exam, QStringLiteral("Command1_%1").arg(index))->click();
    return exam;
}

const GalleryEntry authorBuilder("exam_builder_author_prepared", [](GalleryScene& scene) {
    scene.loadDefaultCourse();
    scene.state.TakeCounts[10] = 1;
    scene.state.TakeCounts[12] = 2;
    return new ExamSet(scene.context);
});

// Items 1 to 5 answered, the third one unsure; item 6 passed over; item 7 on screen with an
// answer not yet committed.
const GalleryEntry traditional("exam_test_traditional", [](GalleryScene& scene) -> QWidget* {
    return CustomExam(scene, 0, {1, 5, 3, 5, 0, 10, 5, 2, 5, 1, 5, 5, 2});
});

// Three items answered and gone back to in turn; on the fourth a third answer marks the item
// unsure by itself.
const GalleryEntry structured("exam_test_structured", [](GalleryScene& scene) -> QWidget* {
    return CustomExam(scene, 1, {0, 5, 6, 2, 5, 6, 3, 5, 6, 1, 1, 3});
});

// A suspended exam resumed after its time ran out: the clock reads at once on opening.
const GalleryEntry expired("exam_test_time_expired", [](GalleryScene& scene) -> QWidget* {
    scene.loadDefaultCourse();
    SessionState& s = scene.state;
    s.ExamKind = s.ExamType = 2;
    s.ExamItemCount = std::min<int16_t>(s.content.ItemCounts[2][2], 150);
    s.ExamMinutes = 195;
    s.ExamPosition = 12;
    s.ExamElapsed = 195.1 / 1440.0;
    const int base = s.content.ItemCounts[1][2];
    for (int p = 1; p <= s.ExamItemCount; ++p) {
        s.ExamItems[p] = static_cast<int16_t>(base + p);
        s.ExamAnswers[p] = p < s.ExamItemCount - 6 ? static_cast<int16_t>(1 + p % 4) : 0;
        s.ExamUnsure[p] = p % 17 == 0 ? 63 : 0;
    }
    return new ExamTest(scene.context);
});

// A finished custom exam of 150 items: mostly right, every fifth wrong, every ninth left
// unanswered, some marked unsure.
void FinishExam(GalleryScene& scene) {
    const int count = 150;
    scene.loadDefaultCourse();
    SessionState& s = scene.state;
    s.UserName = "Pat Doe";
    s.ExamKind = s.ExamType = 3;
    s.ExamItemCount = static_cast<int16_t>(count);
    s.ExamScrambled = true;
    s.ExamElapsed = (52 * 60 + 17) / 86400.0;
    int right = 0;
    for (int p = 1; p <= count; ++p) {
        s.ExamItems[p] = static_cast<int16_t>((p * 37) % 700 + 1);
        const int key = ExamKeyOf(ExamItemText(s, p));
        const int answer = p % 9 == 0 ? 0 : (p % 5 == 0 ? key % 4 + 1 : key);
        s.ExamAnswers[p] = static_cast<int16_t>(answer);
        s.ExamUnsure[p] = answer != 0 && p % 6 == 0 ? 63 : 0;
        right += answer == key ? 1 : 0;
    }
    s.ExamScore = static_cast<float>(right) / static_cast<float>(count);
}

const GalleryEntry results("exam_results", [](GalleryScene& scene) -> QWidget* {
    FinishExam(scene);
    auto* screen = new Results(scene.context);
    Control<QListWidget>(screen, "List1")->setCurrentRow(4);
    return screen;
});

// The first page of its print: 110 items in two columns.
const GalleryEntry printedResults("exam_results_printed", [](GalleryScene& scene) {
    FinishExam(scene);
    return PrintedFirstPage(QStringLiteral("exam_results_printed"), [&scene](Printer& printer) {
        PrintingContext paper(scene, printer);
        Results results(paper.context);
        Control<QPushButton>(&results, "Command1_1")->click();
    });
});

} // namespace

} // namespace tessera
