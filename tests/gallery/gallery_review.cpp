// The review test screen and the wishes dialog in the states a candidate meets them.

#include "review/aladdin.h"
#include "review/quiz800.h"
#include "review/review_test.h"
#include "tests/gallery/gallery.h"

#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tessera {

namespace {

struct SampleItem {
    char right;
    const char* stem;
    std::array<const char*, 4> answers;
    const char* explanation;
};

// Three valuation items, as the content file carries them.
const std::array<SampleItem, 3> Samples = {{
    {'C',
     "A buyer will not pay more for a house than the cost of buying an equally desirable house "
     "nearby. This illustrates the principle of",
     {"conformity.", "contribution.", "substitution.", "anticipation."},
     "The principle of \\b substitution\\b0  says that the value of a property tends to be set by "
     "the cost of acquiring an equally desirable substitute. It underlies all three approaches to "
     "value.\r\n\\par Conformity concerns how alike the properties of an area are; contribution, "
     "the value one feature adds; anticipation, the value of expected future benefits."},
    {'B',
     "To be the highest and best use of a site, a use must be",
     {"the use the current owner prefers.",
      "legally permissible, physically possible, financially feasible and maximally productive.",
      "the use that produces the greatest gross income, whatever its costs.",
      "the use permitted by zoning that needs the smallest investment."},
     "The four tests are applied in order: legally permissible, physically possible, financially "
     "feasible, and among the uses that pass, maximally productive.\r\n\\par The owner's "
     "preference does not control, and gross income ignores costs."},
    {'A',
     "An owner spends $40,000 remodelling a kitchen, and the appraiser finds that the remodel "
     "adds $25,000 to the market value. Which principle explains the difference?",
     {"Contribution", "Substitution", "Progression", "Plottage"},
     "Under the principle of \\b contribution\\b0 , a component is worth what it adds to the "
     "whole, not what it cost.\r\n\\par Plottage is the value added by joining parcels."},
}};

std::string contentItem(int ordinal, const SampleItem& item) {
    char key[8];
    std::snprintf(key, sizeof key, "06%03d", ordinal);
    std::string text = "\\par " + std::string(key) + item.right + "\r\n\\par " + item.stem + "\r\n";
    for (size_t i = 0; i < item.answers.size(); ++i)
        text +=
            "\\par " + std::string(1, static_cast<char>('A' + i)) + ". " + item.answers[i] + "\r\n";
    return text + "\\par \r\n\\par *\r\n\\par " + item.explanation + "\r\n\\par }\r\n";
}

// Topic 6 holds the three samples, again and again, as 30 items.
void fillSampleCourse(GalleryScene& scene) {
    SessionState& state = scene.state;
    state.content.RtfHeader =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}\r\n"
        "\\viewkind4\\uc1\\pard\\plain\\f0\\fs24 ";
    int running = 0;
    for (int t = 1; t <= TopicCount; ++t) {
        const int count = t == 6 ? 30 : 5;
        state.content.ItemCounts[t][1] = static_cast<int16_t>(count);
        for (int j = 1; j <= count; ++j)
            state.content.ReviewItems[++running] =
                contentItem(j, Samples[static_cast<size_t>(j - 1) % Samples.size()]);
    }
    state.CurrentTopic = 6;
    state.PassingGrade = 70;
    state.IncludeProgressReport = true;
    state.TimerActive = true;
}

// A test of topic 6 standing at a position, its earlier items scored with this tally.
Quiz800* resumedQuiz(GalleryScene& scene, int position, int right, int wrong) {
    fillSampleCourse(scene);
    BuildAllItemsTest(scene.state, scene.random, 0);
    scene.state.TestPosition = static_cast<int16_t>(position);
    scene.state.TestFurthest = static_cast<int16_t>(position);
    scene.state.TestTally = {0, static_cast<int16_t>(right), static_cast<int16_t>(wrong),
                             static_cast<int16_t>(right + 2 * wrong), 1};
    for (int p = 1; p <= wrong; ++p)
        scene.state.TestMisses[p * 2] = p == 1 ? 2 : 1;
    scene.state.TestElapsed = (position * 47.0) / 86400.0;
    return new Quiz800(scene.context);
}

Quiz800* newQuiz(GalleryScene& scene) {
    fillSampleCourse(scene);
    return new Quiz800(scene.context);
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
    quiz->Command1[1]->click();
    scene.clock.advanceSeconds(75);
    quiz->Timer1_Timer();
    return quiz;
});

const GalleryEntry revealed("review_quiz_revealed", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = resumedQuiz(scene, 4, 2, 1);
    quiz->Command1[6]->click(); // the second sample: B is right
    quiz->Command1[0]->click();
    quiz->Command1[1]->click();
    return quiz;
});

const GalleryEntry coinToss("review_quiz_coin_toss", [](GalleryScene& scene) -> QWidget* {
    Quiz800* quiz = newQuiz(scene); // the first sample: C is right
    quiz->Command1[0]->click();
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
    Quiz800* quiz = resumedQuiz(scene, 30, 24, 6);
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
