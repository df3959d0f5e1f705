// The review test screen and the wishes dialog in the states a candidate meets them, on the
// default course's valuation topic.

#include "core/item_text.h"
#include "review/aladdin.h"
#include "review/quiz800.h"
#include "tests/gallery/gallery.h"

#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tessera {

namespace {

constexpr int Valuation = 6;

// The test standing at a position (0: the last), its earlier items scored with this tally.
Quiz800* resumedQuiz(GalleryScene& scene, int position, int right, int wrong) {
    scene.setUpReviewTest(Valuation, 1);
    SessionState& s = scene.state;
    s.TestPosition = s.TestFurthest =
        static_cast<int16_t>(position > 0 ? position : s.TestItemCount);
    s.TestTally = {0, static_cast<int16_t>(right), static_cast<int16_t>(wrong),
                   static_cast<int16_t>(right + 2 * wrong), 1};
    for (int p = 1; p <= wrong; ++p)
        s.TestMisses[p * 2] = p == 1 ? 2 : 1;
    s.TestElapsed = (s.TestPosition * 47.0) / 86400.0;
    s.TimerActive = true;
    return new Quiz800(scene.context);
}

Quiz800* newQuiz(GalleryScene& scene) {
    scene.setUpReviewTest(Valuation, 1);
    scene.state.TimerActive = true;
    return new Quiz800(scene.context);
}

// The answer button of the item on screen: its right answer, or the one after it.
QPushButton* answer(GalleryScene& scene, Quiz800& quiz, bool right) {
    const SessionState& s = scene.state;
    const int letter = ItemAnswerLetter(s.content.ReviewItems[s.TestItems[s.TestPosition]]) - 'A';
    return quiz.Command1[static_cast<size_t>(right ? letter : (letter + 1) % 4)];
}

// Opens Aladdin from the screen and takes a wish.
void takeWish(Quiz800& quiz, int wish) {
    QTimer::singleShot(0, &quiz, [&quiz, wish] {
        auto* dialog = quiz.findChild<Aladdin*>();
        dialog->Option1[static_cast<size_t>(wish - 1)]->setChecked(true);
        dialog->Command1[0]->click();
    });
    quiz.Command1[5]->click();
}

const GalleryEntry openItem("review_quiz_open_item", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = newQuiz(scene);
    scene.clock.advanceSeconds(42);
    quiz->Timer1_Timer();
    return quiz;
});

const GalleryEntry wrongTry("review_quiz_wrong_try", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = newQuiz(scene);
    answer(scene, *quiz, false)->click();
    scene.clock.advanceSeconds(75);
    quiz->Timer1_Timer();
    return quiz;
});

const GalleryEntry revealed("review_quiz_revealed", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = resumedQuiz(scene, 4, 2, 1);
    quiz->Command1[6]->click();
    answer(scene, *quiz, false)->click();
    answer(scene, *quiz, true)->click();
    return quiz;
});

const GalleryEntry coinToss("review_quiz_coin_toss", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = newQuiz(scene);
    answer(scene, *quiz, false)->click();
    takeWish(*quiz, 1);
    return quiz;
});

const GalleryEntry expert("review_quiz_expert_advice", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = resumedQuiz(scene, 6, 4, 1);
    quiz->Command1[6]->click();
    takeWish(*quiz, 3);
    return quiz;
});

const GalleryEntry passing("review_quiz_gauge_passing", [](GalleryScene& scene) -> QWidget* {
    return resumedQuiz(scene, 12, 10, 2);
});

const GalleryEntry failing("review_quiz_gauge_failing", [](GalleryScene& scene) -> QWidget* {
    return resumedQuiz(scene, 12, 6, 6);
});

const GalleryEntry large("review_quiz_maximised", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = resumedQuiz(scene, 9, 7, 2);
    quiz->setWindowState(Qt::WindowMaximized);
    return quiz;
});

const GalleryEntry finished("review_finished_box", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = resumedQuiz(scene, 0, 24, 6);
    quiz->Command1[6]->click(); // the scripted box answers Cancel and the test goes on
    delete quiz;
    // The box as the message service shows it: lines broken, the icon of its kind.
    const ShownMessage& shown = scene.dialogs.messages().at(0);
    QString text = shown.text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QMessageBox::Icon icon =
        shown.icon == MessageIcon::Exclamation ? QMessageBox::Warning : QMessageBox::Question;
    return new QMessageBox(icon, shown.title, text, QMessageBox::Ok | QMessageBox::Cancel);
});

const GalleryEntry aladdin("review_aladdin", [](GalleryScene& scene) -> QWidget* {
    scene.state.WishesLeft = {0, 1, 0, 2};
    return new Aladdin(scene.state, scene.screens, 4, nullptr);
});

} // namespace

} // namespace tessera
