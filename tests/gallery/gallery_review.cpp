// The review test screen, the wishes dialog, the picture window and the review test report card,
// in the states a candidate meets them, on the default course's valuation topic.

#include "core/item_text.h"
#include "core/picture_window.h"
#include "core/progress_file.h"
#include "review/aladdin.h"
#include "review/pict_form.h"
#include "review/quiz800.h"
#include "review/quiz_summ.h"
#include "tests/gallery/gallery.h"

#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {

constexpr int Valuation = 6;

// The topic's All Items test resumed past a position, its items so far scored with this tally,
// standing on the next item.
Quiz800* ResumedQuiz(GalleryScene& scene, int position, int right, int wrong) {
    scene.loadDefaultCourse();
    SessionState& s = scene.state;
    s.PassingGrade = 70;
    s.IncludeProgressReport = true;
    s.CurrentTopic = Valuation;
    s.TestType = 1;
    s.TestItemCount = s.content.ItemCounts[Valuation][1];
    for (int j = 1; j <= s.TestItemCount; ++j)
        s.TestItems[j] = static_cast<int16_t>(RunningItemNumber(s.content, Valuation, j));
    for (int i = 1; i <= 3; ++i)
        s.WishesLeft[i] = static_cast<int16_t>(s.TestItemCount / 40 + 1);
    s.TestPosition = s.TestFurthest = static_cast<int16_t>(position);
    s.TestTally = {0, static_cast<int16_t>(right), static_cast<int16_t>(wrong),
                   static_cast<int16_t>(right + 2 * wrong), 1};
    for (int p = 1; p <= wrong; ++p)
        s.TestMisses[p * 2] = p == 1 ? 2 : 1;
    s.TestElapsed = (position * 47.0) / 86400.0;
    s.TimerActive = true;
    auto* quiz = new Quiz800(scene.context);
    quiz->Command1[ReviewCommand::Next]->click();
    return quiz;
}

// The item on screen answered right, or with the answer after the right one.
Quiz800* Answered(GalleryScene& scene, Quiz800* quiz, bool right) {
    const SessionState& s = scene.state;
    const int letter = ItemAnswerLetter(s.content.ReviewItems[s.TestItems[s.TestPosition]]) - 'A';
    quiz->Command1[static_cast<size_t>(right ? letter : (letter + 1) % 4)]->click();
    return quiz;
}

// The feedback in each of its colours: the item's heading, a miss on a failing test and a right
// answer on a passing one; the first with the window maximised and the large document.
const GalleryEntry large("review_quiz_maximised", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = ResumedQuiz(scene, 9, 7, 2);
    quiz->setWindowState(Qt::WindowMaximized);
    return quiz;
});

const GalleryEntry wrongTry("review_quiz_wrong_try", [](GalleryScene& scene) -> QWidget* {
    return Answered(scene, ResumedQuiz(scene, 12, 6, 6), false);
});

const GalleryEntry rightAnswer("review_quiz_right_answer", [](GalleryScene& scene) -> QWidget* {
    return Answered(scene, ResumedQuiz(scene, 9, 7, 2), true);
});

const GalleryEntry aladdin("review_aladdin", [](GalleryScene& scene) -> QWidget* {
    scene.state.WishesLeft = {0, 1, 0, 2};
    return new Aladdin(scene.state, scene.screens, 4, nullptr);
});

const GalleryEntry pictureWindow("platform_picture_window", [](GalleryScene& scene) -> QWidget* {
    const PictureEntry entry = parsePictureEntry(scene.state.catalogue.PictureItems[1]);
    const QString fileName = QString::fromStdString(entry.fileName());
    QFile::copy(QStringLiteral(TESSERA_SOURCE_ROOT "/course/pictures/") + fileName, fileName);
    auto* form = new PictForm(scene.context);
    form->showPicture(entry.width, entry.height, fileName);
    return form;
});

ReviewTestRecord SampleTest(int topic, const char* date, int type, int asked, int right, int wild,
                            float minutes) {
    ReviewTestRecord r;
    r.Topic = static_cast<uint8_t>(topic);
    r.Date = date;
    r.TestType = static_cast<uint8_t>(type);
    r.ItemCount = static_cast<int16_t>(asked);
    r.Score = static_cast<float>(right) / static_cast<float>(asked);
    int tries = 0;
    for (int k = 1; k <= asked; ++k) {
        const int misses = k <= wild ? 2 : k <= asked - right ? 1 : 0;
        r.Items[static_cast<size_t>(k)] = static_cast<int16_t>(k);
        r.Misses[static_cast<size_t>(k)] = static_cast<uint8_t>(misses);
        tries += misses + 1;
    }
    r.TriesRatio = static_cast<float>(tries) / static_cast<float>(asked);
    r.Scrambled = topic % 2 == 0 ? 1 : 0;
    r.MinutesUsed = minutes;
    return r;
}

// A few tests of every type, sorted by their percent right.
const GalleryEntry quizSumm("review_quiz_summ_by_percent", [](GalleryScene& scene) {
    for (int t = 1; t <= TopicCount; ++t)
        scene.state.content.ItemCounts[t][1] = 88;
    scene.state.TakeCounts[1] = 2;
    WriteProgressHeader({});
    RewriteProgressFile(scene.state,
                        {SampleTest(1, "09-14-2026", 1, 88, 61, 9, 74.5F),
                         SampleTest(1, "09-21-2026", 3, 27, 20, 3, 18.25F),
                         SampleTest(2, "10-02-2026", 2, 92, 70, 6, 81.0F),
                         SampleTest(4, "11-04-2026", 4, 14, 12, 0, 8.5F),
                         SampleTest(6, "11-18-2026", 1, 30, 30, 0, 21.0F)},
                        0);
    auto* card = new QuizSumm(scene.context);
    card->Option1[2]->setChecked(true);
    card->Option2[1]->setChecked(true);
    return card;
});

} // namespace

} // namespace tessera
