// Quiz800 at the grain of one item: answers by click and by key, feedback, tallies, colours,
// the wishes, the clocks and stepping back.

#include "core/screen_colours.h"
#include "quiz800_screen.h"
#include "review/item_scoring.h"
#include "review/pict_form.h"
#include "review/review_test.h"
#include "tests/support/screen_checks.h"

#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace tessera {

class Quiz800ItemsTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;

    std::unique_ptr<Quiz800Driver> open(int topic) { return OpenQuiz(*f, topic); }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        FillReviewCourse(f->state);
    }
    void cleanup() { f.reset(); }

    void newTestOpensOnItsFirstItem() {
        auto quiz = open(2);
        QCOMPARE(quiz->screen().windowTitle(), QStringLiteral("Preliminary Evaluation"));
        QCOMPARE(quiz->label("Label2"), QStringLiteral("All Items Review Test\nItem 1 of 3"));
        QCOMPARE(quiz->labelColour("Label2"), int(NeutralColour));
        QCOMPARE(quiz->button(7)->text(), QStringLiteral("&Cancel"));
        QCOMPARE(quiz->enabled({5, 6, 7, 11, 12}), (QList<bool>{true, false, true, false, false}));
        QCOMPARE(quiz->label("Label6"), QString()); // blank before any try, as designed
        QCOMPARE(quiz->screen().findChild<QProgressBar*>()->value(), 0);
        QVERIFY(quiz->documentText().contains(QStringLiteral("Question 2.1")));
        QVERIFY(!quiz->documentText().contains(QStringLiteral("Explanation 2.1")));

        // The right margin follows the line under the text as the window grows.
        quiz->screen().resize(900, 640);
        quiz->screen().show();
        QVERIFY(QTest::qWaitForWindowExposed(&quiz->screen()));
        const int narrow = quiz->screen().RichTextBox1->rightMargin();
        quiz->screen().resize(1200, 700);
        QTRY_VERIFY(quiz->screen().RichTextBox1->rightMargin() > narrow + 15 * 250);
    }

    void eachMnemonicOneButton() {
        auto quiz = open(1);
        QCOMPARE(ControlsWithoutNames(quiz->screen()), QStringList());
        const QList<QChar> keys = ButtonMnemonics(quiz->screen());
        QCOMPARE(QSet<QChar>(keys.begin(), keys.end()).size(), keys.size());
        QCOMPARE(keys.size(), 8);
    }

    // Topic 1's first item is keyed A. Steps: a capital clicks that answer's button, a small
    // letter is typed as a key, F takes the free guess; an empty label is not looked at.
    void answering_data() {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QList<int>>("tally"); // right, wrong, tries, wild guesses
        QTest::addColumn<int>("misses");
        QTest::newRow("right at the first click")
            << u"A"_s << QStringList{u"<A> is the best choice."_s} << QList<int>{1, 0, 1, 0} << 0;
        QTest::newRow("right key at the first try")
            << u"a"_s << QStringList{u"<A> is the best choice.  (Answer is A)"_s}
            << QList<int>{1, 0, 1, 0} << 0;
        // The same wrong key again finds its button disabled; a revealed item takes no answer.
        QTest::newRow("a wrong key twice, then right, then any key")
            << u"bbac"_s
            << QStringList{u"<B> is not the best choice. Try Again..."_s, u""_s,
                           u"<A> is the best choice."_s, u"<A> is the best choice."_s}
            << QList<int>{0, 1, 2, 0} << 1;
        QTest::newRow("three misses are one wild guess")
            << u"BCDA"_s
            << QStringList{u""_s, u""_s, u"<D> is not the best choice either. Try Again..."_s,
                           u""_s}
            << QList<int>{0, 1, 4, 1} << 3;
        QTest::newRow("a free guess forgives one miss")
            << u"FBCA"_s
            << QStringList{u"Take a Free Guess!"_s, u"<B> Try Again..."_s, u""_s, u""_s}
            << QList<int>{0, 1, 3, 0} << 1;
    }
    void answering() {
        QFETCH(QString, steps);
        QFETCH(QStringList, labels);
        QFETCH(QList<int>, tally);
        QFETCH(int, misses);
        auto quiz = open(1);
        for (int k = 0; k < steps.size(); ++k) {
            const char step = steps.at(k).toLatin1();
            if (step == 'F')
                quiz->wish(2);
            else if (step >= 'a')
                quiz->type(step);
            else
                quiz->click(step - 'A');
            if (!labels.at(k).isEmpty())
                QCOMPARE(quiz->label("Label2"), labels.at(k));
        }
        const std::array<int16_t, 5>& kept = f->state.TestTally;
        QCOMPARE((QList<int>{kept[1], kept[2], kept[3], kept[4]}), tally);
        QCOMPARE(int(f->state.TestMisses[1]), misses);
        QCOMPARE(quiz->label("Label4"), QStringLiteral("Wrong: %1").arg(tally[1]));
        QCOMPARE(quiz->label("Label11"), QStringLiteral("Wild Guesses: %1").arg(tally[3]));
        QVERIFY2(f->sound.tones().empty(), "no tone with the sound off");
    }

    void aMissShowsInRedWithATone() {
        f->state.SoundOn = true;
        auto quiz = open(1);
        quiz->type('b');
        QCOMPARE(quiz->labelColour("Label2"), int(WrongColour));
        // "<B>" must show as written, not be taken for markup.
        QCOMPARE(quiz->screen().findChild<QLabel*>(QStringLiteral("Label2"))->textFormat(),
                 Qt::PlainText);
        QVERIFY(!quiz->button(1)->isEnabled());
        QCOMPARE(f->sound.tones(), (std::vector<Tone>{{440, 200}}));
        QCOMPARE(quiz->label("Label6"), QStringLiteral("0.0%"));
        // On the score's dark board the red is lightened, still a pure red, until it reads.
        const QColor score = ColourOf(quiz->labelColour("Label6"));
        QCOMPARE(score.hue(), 0);
        QVERIFY(score.red() == 255 && score.green() > 0 && score.green() == score.blue());
        QVERIFY(!quiz->screen()
                     .findChild<QLabel*>(QStringLiteral("HandShake"))
                     ->isVisibleTo(&quiz->screen()));
        QCOMPARE(quiz->screen().findChild<QFrame*>(QStringLiteral("Shape1"))->height(), 0);
    }

    void coinTossAfterAWrongTry() {
        auto quiz = open(1);
        const int first = quiz->wrong(0);
        quiz->click(first);
        const std::array<int16_t, 5> tally = f->state.TestTally;
        // Draws land on the right answer, then on the wrong try's answer, then on a live one.
        const int survivor = quiz->wrong(1);
        f->random.script(
            {(quiz->right() + 0.5) / 4.0, (first + 0.5) / 4.0, (survivor + 0.5) / 4.0});
        quiz->wish(1);
        QVERIFY(quiz->offered()[0]);
        QCOMPARE(quiz->label("Label2"), QStringLiteral("Now it's a coin toss!"));
        QCOMPARE(quiz->labelColour("Label2"), 255); // a wish changes the words, not the red
        for (int i = 0; i < 4; ++i)
            QCOMPARE(quiz->button(i)->isEnabled(), i == quiz->right() || i == survivor);
        const QString text = quiz->documentText();
        for (int i = 0; i < 4; ++i) {
            const QString answer = QStringLiteral("%1. ").arg(QChar('A' + i));
            QCOMPARE(text.contains(answer), i == quiz->right() || i == survivor);
        }
        QCOMPARE(f->state.TestTally, tally);
        QCOMPARE(f->state.TestMisses[1], 1);

        // With two answers left the dialog offers no second coin toss.
        quiz->wish(0);
        QVERIFY(!quiz->offered()[0]);
    }

    void expertAdviceKeepsTheItemOpen() {
        f->state.TimerActive = true;
        f->state.IncludeProgressReport = false; // the gauge keeps only its scale line
        auto quiz = open(1);
        const auto shown = [&quiz](const char* part) {
            const auto* gauge = quiz->screen().findChild<QWidget*>(QStringLiteral("Gauge"));
            return gauge->findChild<QWidget*>(QString::fromLatin1(part))
                ->isVisibleTo(&quiz->screen());
        };
        QVERIFY(shown("Shape2") && !shown("Shape1") && !shown("Label9"));
        QVERIFY(quiz->screen().Timer1->isActive());
        quiz->wish(3);
        QCOMPARE(quiz->label("Label2"),
                 QStringLiteral("Here's what the expert says!\n(Scroll down as needed.)"));
        QVERIFY(quiz->documentText().contains(QStringLiteral("Explanation 1.1")));
        // Still the first item of a new test: "&Cancel" stays.
        QCOMPARE(quiz->enabled({0, 1, 2, 3, 6, 7}),
                 (QList<bool>{true, true, true, true, false, true}));
        QVERIFY(!quiz->screen().Timer1->isActive());
        QCOMPARE(f->state.ActiveWish, 0);

        quiz->answerRight();
        QCOMPARE(f->state.TestTally[1], 1);
        QVERIFY(quiz->button(6)->isEnabled());
    }

    void clocks_data() {
        QTest::addColumn<bool>("active");
        // The item and elapsed clocks after 65 seconds, then the elapsed clock an hour into the
        // next item.
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("timer on") << true
                                  << QStringList{u"Item Time: 0:01:05"_s,
                                                 u"Elapsed Time: 0:01:05"_s,
                                                 u"Elapsed Time: 1:01:05"_s};
        QTest::newRow("timer off")
            << false << QStringList{u"Item Time:"_s, u"Elapsed Time:"_s, u"Elapsed Time:"_s};
    }
    void clocks() {
        QFETCH(bool, active);
        QFETCH(QStringList, shown);
        f->state.TimerActive = active;
        auto quiz = open(1);
        QCOMPARE(quiz->screen().Timer1->isActive(), active);
        f->clock.advanceSeconds(65);
        quiz->screen().Timer1_Timer();
        QCOMPARE((QStringList{quiz->label("Label8"), quiz->label("Label7")}), shown.mid(0, 2));
        quiz->answerRight(); // the time counts with or without the clocks
        QVERIFY(!quiz->screen().Timer1->isActive());
        QCOMPARE(qRound(f->state.TestElapsed * 86400), 65);
        quiz->next();
        f->clock.advanceSeconds(3600);
        quiz->screen().Timer1_Timer();
        QCOMPARE(quiz->label("Label7"), shown[2]);
    }

    void threeWishesUsedDisableAladdinForTheRestOfTheTest() {
        auto quiz = open(1); // six items: one wish of each kind
        quiz->wish(2);
        quiz->wish(1);
        QVERIFY(quiz->button(5)->isEnabled());
        quiz->wish(3);
        QVERIFY(!quiz->button(5)->isEnabled());
        QCOMPARE(f->state.ActiveWish, 0); // opening the dialog dropped the free guess
        quiz->answerRight();
        quiz->next();
        QVERIFY(!quiz->button(5)->isEnabled());
    }

    void pictureOpensWithItsItemAndClosesWithTheNext() {
        f->state.CurrentTopic = 6;
        f->state.content.ItemPicture[6 + 3 + 2 + 2 + 2 + 8] = 1; // topic 6's last item
        BuildAllItemsTest(f->state, f->random, 0);
        f->state.TestPosition = 7;
        f->state.TestFurthest = 7;
        Quiz800Driver quiz(*f);
        QVERIFY(!quiz.button(12)->isEnabled());
        PictForm picture; // what the host loads for the next item
        f->screens.place(ScreenName::PictForm, &picture);
        quiz.next();
        QVERIFY(quiz.button(12)->isEnabled());
        QCOMPARE(picture.twips().windowWidth, 263 * 15 + 70);
        QCOMPARE(picture.twips().imageHeight, 232 * 15);
        quiz.answerRight();
        f->screens.clearCalls();
        quiz.click(11);
        QVERIFY(!quiz.button(12)->isEnabled());
        const std::vector<ScreenCall> unloaded = {{ScreenCallKind::Unload, ScreenName::PictForm}};
        QCOMPARE(f->screens.calls(), unloaded);
    }

    void steppingBackShowsTheAnsweredItemWithItsLetter() {
        auto quiz = open(1);
        const QChar first('A' + quiz->right());
        quiz->answerRight();
        quiz->next();
        quiz->click(quiz->wrong(0));
        quiz->answerRight();
        const std::array<int16_t, 5> tally = f->state.TestTally;
        quiz->click(11);
        QCOMPARE(f->state.TestPosition, 1);
        QCOMPARE(quiz->label("Label2"),
                 QStringLiteral("All Items Review Test\nItem 1 of 6  (Answer is %1)").arg(first));
        QCOMPARE(quiz->labelColour("Label2"), int(NeutralColour));
        QCOMPARE(quiz->enabled({0, 1, 2, 3, 5, 11}), QList<bool>(6, false));
        QVERIFY(quiz->documentText().contains(QStringLiteral("Explanation 1.1")));
        QCOMPARE(f->state.TestTally, tally);
        quiz->next();
        QCOMPARE(f->state.TestPosition, 2);
        QCOMPARE(f->state.TestFurthest, 2);
        QVERIFY2(quiz->button(6)->isEnabled(), "an answered item is revealed again");
    }
};

} // namespace tessera

QTEST_MAIN(tessera::Quiz800ItemsTest)
#include "quiz800_items_test.moc"
