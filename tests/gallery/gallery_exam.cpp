// The screening exam screens in the states a candidate meets them: the builder for an
// author-prepared and a custom exam, the exam in both approaches with items answered, unsure
// and remaining, the two-minute warning, time expired, and the results.

#include "exam/exam_items.h"
#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"
#include "tests/gallery/gallery.h"
#include "tests/gallery/gallery_print.h"

#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace tessera {

namespace {

void Press(QWidget* screen, int index) {
    screen->findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index))->click();
}

// A custom exam of 20 items from the first four topics, traditional, half an hour.
ExamTest* CustomExam(GalleryScene& scene, int structured) {
    scene.loadDefaultCourse();
    SessionState& s = scene.state;
    s.ExamKind = s.ExamType = 3;
    s.ExamItemCount = 20;
    s.ExamMinutes = 30;
    s.ExamStructured = static_cast<int16_t>(structured);
    s.ExamTopics.fill(false);
    for (int t = 1; t <= 4; ++t) {
        s.ExamTopics[t] = true;
    }
    return new ExamTest(scene.context);
}

const GalleryEntry authorBuilder("exam_builder_author_prepared", [](GalleryScene& scene) {
    scene.loadDefaultCourse();
    scene.state.TakeCounts[10] = 1;
    scene.state.TakeCounts[12] = 2;
    return new ExamSet(scene.context);
});

const GalleryEntry traditional("exam_test_traditional", [](GalleryScene& scene) -> QWidget* {
    ExamTest* exam = CustomExam(scene, 0);
    // Items 1 to 5 answered, the third one unsure; item 6 passed over; item 7 on screen with
    // an answer not yet committed.
    for (int answer : {1, 3, 0, 2, 1}) {
        Press(exam, answer);
        if (scene.state.ExamPosition == 3) {
            Press(exam, 10);
        }
        Press(exam, 5);
    }
    Press(exam, 5); // item 6 passed over
    Press(exam, 2);
    return exam;
});

const GalleryEntry structured("exam_test_structured", [](GalleryScene& scene) -> QWidget* {
    ExamTest* exam = CustomExam(scene, 1);
    for (int answer : {0, 2, 3}) {
        Press(exam, answer);
        Press(exam, 5);
        Press(exam, 6);
    }
    Press(exam, 1);
    Press(exam, 1);
    Press(exam, 3); // a third answer marks the item unsure by itself
    return exam;
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

// A finished custom exam of the given length: mostly right, every fifth wrong, every ninth left
// unanswered, some marked unsure.
void FinishExam(GalleryScene& scene, int count) {
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
    FinishExam(scene, 40);
    auto* screen = new Results(scene.context);
    screen->findChild<QListWidget*>(QStringLiteral("List1"))->setCurrentRow(4);
    return screen;
});

// The first page of a 150-item exam: 110 items in two columns.
const GalleryEntry printedResults("exam_results_printed", [](GalleryScene& scene) {
    FinishExam(scene, 150);
    return PrintedFirstPage(QStringLiteral("exam_results_printed"), [&scene](Printer& printer) {
        PrintingContext paper(scene, printer);
        Results results(paper.context);
        results.findChild<QPushButton*>(QStringLiteral("Command1_1"))->click();
    });
});

} // namespace

} // namespace tessera
