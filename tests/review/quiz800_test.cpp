// Quiz800 driven as the candidate drives it: answers by click and by key, the wishes in their
// dialog, the clocks, stepping back, breaking off, resuming and finishing, and what reaches the
// progress file. The texts, sums and draws behind it are the rules test's.

#include "core/button_menu.h"
#include "core/progress_file.h"
#include "core/run_journal.h"
#include "core/screen_colours.h"
#include "platform/rich_text_view.h"
#include "review/aladdin.h"
#include "review/pict_form.h"
#include "review/quiz800.h"
#include "review/review_test.h"
#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"

#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace tessera {

class Quiz800Test : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<Quiz800> quiz;
    QStringList said; // the feedback after each step, after a wish what Aladdin offered first
    QString offer;

    // Topic 1 holds six items, enough for one wish of each kind, keyed A B C D A B.
    void course() {
        FillSmallCourse(f->state, {6, 3, 2, 2, 2, 8, 2, 2, 2});
        f->state.IncludeProgressReport = true;
        f->state.PassingGrade = 70;
    }
    void open(int topic = 0) {
        if (topic != 0)
            f->state.CurrentTopic = static_cast<int16_t>(topic);
        quiz.reset();
        quiz = std::make_unique<Quiz800>(f->context);
    }
    QLabel* label(const char* name) const { return Control<QLabel>(quiz.get(), name); }
    QString text(const char* name) const { return label(name)->text(); }
    // The colour value (0xBBGGRR) a label is painted in.
    int colour(const char* name) const {
        const QColor c = label(name)->palette().color(QPalette::WindowText);
        return c.red() | c.green() << 8 | c.blue() << 16;
    }
    QPushButton* button(int index) const { return quiz->Command1[static_cast<size_t>(index)]; }
    QString document() const { return quiz->RichTextBox1->text(); }
    // The right answer of the item on screen, read from its key letter, and the wrong ones.
    int right() const {
        const SessionState& s = f->state;
        return s.content.ReviewItems[static_cast<size_t>(s.TestItems[s.TestPosition])][10] - 'A';
    }
    int wrong(int k) const { return (right() + 1 + k) % 4; }
    void click(int index) { QTest::mouseClick(button(index), Qt::LeftButton); }

    // Opens Aladdin, notes what it offers (each wish's count, '-' where closed), and then '1' to
    // '3' takes that wish, '+' presses OK with none chosen, '0' Cancel, 'e' the close box, 'h'
    // Help and then Cancel.
    void aladdin(char step) {
        QTimer::singleShot(0, quiz.get(), [this, step] {
            auto* dialog = quiz->findChild<Aladdin*>();
            for (size_t i = 0; i < 3; ++i)
                offer +=
                    dialog->Option1[i]->isEnabled() ? dialog->Label2[i]->text().trimmed() : u"-"_s;
            offer += u'>';
            if (step >= '1' && step <= '3')
                dialog->Option1[static_cast<size_t>(step - '1')]->setChecked(true);
            if (step == 'h')
                dialog->Command1[2]->click();
            if (step == 'e')
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                dialog->Command1[step == '0' || step == 'h' ? 1 : 0]->click();
        });
        click(5);
    }
    // Steps: 'A' to 'D' click an answer, 'a' to 'd' type it where the focus rests; 'r' clicks
    // the right answer, 'x' and 'y' the first and second wrong one; 'n' Next, 'p' Previous,
    // 'k' Break or Cancel, 'q' closes the window; the rest open Aladdin.
    void run(const QString& steps) {
        for (const QChar c : steps) {
            const char step = c.toLatin1();
            offer.clear();
            if (step >= 'A' && step <= 'D')
                click(step - 'A');
            else if (step >= 'a' && step <= 'd')
                QTest::keyClick(quiz->RichTextBox1, step);
            else if (step == 'r' || step == 'x' || step == 'y')
                click(step == 'r' ? right() : wrong(step - 'x'));
            else if (step == 'n' || step == 'p' || step == 'k')
                click(step == 'n' ? 6 : step == 'p' ? 11 : 7);
            else if (step == 'q')
                quiz->close();
            else
                aladdin(step);
            said << offer + text("Label2").replace(u'\n', u'/');
        }
    }
    // The feedback; the commands A to D, Wish, Next or Done, Cancel or Break, Previous and
    // pIcture, small when closed; the panel's figures; the wishes left.
    QString view() const {
        const QString letters = u"ABCDW"_s + (button(6)->text() == u"&Done"_s ? u'D' : u'N') +
                                (button(7)->text() == u"&Break"_s ? u'B' : u'C') + u"PI"_s;
        const std::array<int, 9> shown = {0, 1, 2, 3, 5, 6, 7, 11, 12};
        QString commands;
        for (size_t k = 0; k < shown.size(); ++k)
            commands += button(shown[k])->isEnabled() ? letters[k] : letters[k].toLower();
        QStringList panel;
        for (const char* name : {"Label3", "Label4", "Label5", "Label6", "Label11"})
            panel << text(name).section(u':', -1).trimmed();
        const auto& w = f->state.WishesLeft;
        return text("Label2").replace(u'\n', u'/') + u" | "_s + commands + u" | "_s +
               panel.join(u' ') + QStringLiteral(" | %1%2%3").arg(w[1]).arg(w[2]).arg(w[3]);
    }
    // What the progress file holds: the first log entry, the topic's takes, the suspended
    // record, and each review test's topic, type, position/furthest, tally and wishes left.
    QString saved() const {
        if (!QFile::exists(QString::fromLatin1(ProgressFile)))
            return u"none"_s;
        const ProgressHeader h = ReadProgressHeader();
        QString shown = QStringLiteral("log %1:%2 takes %3 suspended %4")
                            .arg(h.LogCodes[1])
                            .arg(h.LogScores[1])
                            .arg(h.TakeCounts[static_cast<size_t>(f->state.CurrentTopic)])
                            .arg(h.SuspendedTestRecord);
        for (const ReviewTestRecord& r : ReadReviewTestRecords())
            shown += QStringLiteral(" | topic %1 type %2 at %3/%4 tally %5 %6 %7 wishes %8%9%10")
                         .arg(r.Topic)
                         .arg(r.TestType)
                         .arg(r.Position)
                         .arg(r.Furthest)
                         .arg(r.Tally[1])
                         .arg(r.Tally[2])
                         .arg(r.Tally[3])
                         .arg(r.WishesLeft[1])
                         .arg(r.WishesLeft[2])
                         .arg(r.WishesLeft[3]);
        return shown;
    }
    // A later run: a fresh session that restores what the progress file holds.
    void startNewRun() {
        quiz.reset();
        f->state = SessionState{};
        course();
        const ProgressHeader header = ReadProgressHeader();
        for (int i = 1; i <= TakeCounterCount; ++i)
            f->state.TakeCounts[i] = header.TakeCounts[i];
        RestoreSuspended(f->state);
        open();
    }
    // A first drill of 100 items of topic 1 standing revealed at its last item.
    void atTheEndOfADrill(int right) {
        SessionState& s = f->state;
        s.CurrentTopic = 1;
        s.TestType = AllItemsTest;
        s.TestItemCount = 100;
        for (int p = 1; p <= 100; ++p) {
            s.TestItems[p] = static_cast<int16_t>((p - 1) % 6 + 1);
            s.TestMisses[p] = p <= 100 - right ? 1 : 0;
        }
        s.TestTally = {0, static_cast<int16_t>(right), static_cast<int16_t>(100 - right),
                       static_cast<int16_t>(200 - right), 0};
        s.TestPosition = s.TestFurthest = 100;
        open();
    }
    // The title, text and kind of every message box shown.
    QString boxes() const {
        QStringList shown;
        for (const ShownMessage& box : f->dialogs.messages())
            shown << box.title + u": "_s + QString(box.text).replace(u"\r\n"_s, u"/"_s) +
                         (box.icon == MessageIcon::Exclamation ? u" (!)"_s : u" (?)"_s);
        return shown.join(u'|');
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        course();
        said.clear();
    }
    void cleanup() {
        quiz.reset();
        f.reset();
    }

    // Topic 1's first item is keyed A, the second B.
    void steps_data() {
        QTest::addColumn<int>("topic");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("feedback"); // after each step
        QTest::addColumn<QString>("shown");    // at the end
        QTest::newRow("a new test")
            << 2 << QString() << QString()
            << u"All Items Review Test/Item 1 of 3 | ABCDWnCpi | 0 0 0   | 111"_s;
        QTest::newRow("right at the first click")
            << 1 << u"A"_s << u"<A> is the best choice."_s
            << u"<A> is the best choice. | abcdwNBpi | 1 0 1 100.0% 0 | 111"_s;
        QTest::newRow("right key at the first try")
            << 1 << u"a"_s << u"<A> is the best choice.  (Answer is A)"_s
            << u"<A> is the best choice.  (Answer is A) | abcdwNBpi | 1 0 1 100.0% 0 | 111"_s;
        // The same wrong key again finds its button closed; a revealed item takes no answer.
        QTest::newRow("a wrong key twice, then right, then any key")
            << 1 << u"bbac"_s
            << u"<B> is not the best choice. Try Again...|<B> is not the best choice. Try "
               "Again...|<A> is the best choice.|<A> is the best choice."_s
            << u"<A> is the best choice. | abcdwNBpi | 0 1 2 0.0% 0 | 111"_s;
        QTest::newRow("three misses are one wild guess")
            << 1 << u"BCDA"_s
            << u"<B> is not the best choice. Try Again...|<C> is not the best choice either. "
               "Try Again...|<D> is not the best choice either. Try Again...|<A> is the best "
               "choice."_s
            << u"<A> is the best choice. | abcdwNBpi | 0 1 4 0.0% 1 | 111"_s;
        QTest::newRow("a free guess forgives one miss")
            << 1 << u"2BCA"_s
            << u"111>Take a Free Guess!|<B> Try Again...|<C> is not the best choice. Try "
               "Again...|<A> is the best choice."_s
            << u"<A> is the best choice. | abcdwNBpi | 0 1 3 0.0% 0 | 101"_s;
        QTest::newRow("the expert's advice keeps the item open")
            << 1 << u"3r"_s
            << u"111>Here's what the expert says!/(Scroll down as needed.)|<A> is the best "
               "choice."_s
            << u"<A> is the best choice. | abcdwNBpi | 1 0 1 100.0% 0 | 110"_s;
        QTest::newRow("Cancel, the close box and OK without a choice spend nothing")
            << 1 << u"0e+"_s
            << u"111>All Items Review Test/Item 1 of 6|111>All Items Review Test/Item 1 of "
               "6|111>All Items Review Test/Item 1 of 6"_s
            << u"All Items Review Test/Item 1 of 6 | ABCDWnCpi | 0 0 0   | 111"_s;
        QTest::newRow("three wishes spent close Aladdin for the test")
            << 1 << u"213rn"_s
            << u"111>Take a Free Guess!|1-1>Now it's a coin toss!|--1>Here's what the expert "
               "says!/(Scroll down as needed.)|<A> is the best choice.|All Items Review Test/Item "
               "2 "
               "of 6"_s
            << u"All Items Review Test/Item 2 of 6 | ABCDwnbpi | 1 0 1 100.0% 0 | 000"_s;
        QTest::newRow("stepping back shows the answered item with its letter")
            << 1 << u"rnxrpn"_s
            << u"<A> is the best choice.|All Items Review Test/Item 2 of 6|<C> is not the best "
               u"choice. Try Again...|<B> is "
               "the best choice.|All Items Review Test/Item 1 of 6  (Answer is A)|All Items "
               "Review Test/Item 2 of 6  (Answer is B)"_s
            << u"All Items Review Test/Item 2 of 6  (Answer is B) | abcdwNBPi | 1 1 3 50.0% 0 "
               "| 111"_s;
    }
    void steps() {
        QFETCH(int, topic);
        QFETCH(QString, steps);
        QFETCH(QString, feedback);
        QFETCH(QString, shown);
        open(topic);
        run(steps);
        QCOMPARE(said.join(u'|'), feedback);
        QCOMPARE(view(), shown);
        QVERIFY2(f->sound.tones().empty(), "no tone with the sound off");
    }

    void aMissShowsInRedWithATone() {
        f->state.SoundOn = true;
        open(1);
        run(u"b"_s);
        QCOMPARE(colour("Label2"), int(WrongColour));
        QCOMPARE(label("Label2")->textFormat(), Qt::PlainText); // "<B>" is not markup
        QCOMPARE(f->sound.tones(), (std::vector<Tone>{{440, 200}}));
        // On the score's dark board the red is lightened, still a pure red, until it reads.
        const QColor score = ColourOf(colour("Label6"));
        QVERIFY(score.hue() == 0 && score.red() == 255 && score.green() == score.blue() &&
                score.green() > 0);
        QVERIFY(!label("HandShake")->isVisibleTo(quiz.get()));
        QCOMPARE(Control<QFrame>(quiz.get(), "Shape1")->height(), 0);
    }

    void coinTossAfterAWrongTry() {
        open(1);
        const int first = wrong(0);
        const int survivor = wrong(1);
        run(u"x"_s);
        // Draws land on the right answer, then on the wrong try's answer, then on a live one.
        f->random.script({(right() + 0.5) / 4.0, (first + 0.5) / 4.0, (survivor + 0.5) / 4.0});
        run(u"10"_s); // with two answers left the dialog offers no second coin toss
        QCOMPARE(said.mid(1).join(u'|'), u"111>Now it's a coin toss!|-11>Now it's a coin toss!"_s);
        QCOMPARE(colour("Label2"), int(WrongColour)); // a wish changes the words, not the red
        QCOMPARE(view().section(u" | "_s, 1, 2), u"AbCdWnCpi | 0 1 1 0.0% 0"_s);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(document().contains(QStringLiteral("%1. ").arg(QChar(u'A' + i))),
                     i == 0 || i == 2);
        QCOMPARE(f->state.TestMisses[1], 1);
    }

    void expertAdviceStopsTheClockAndAGaugeWithoutScoreKeepsItsScale() {
        f->state.TimerActive = true;
        f->state.IncludeProgressReport = false;
        open(1);
        const auto shown = [this](const char* part) {
            return Control<QWidget>(quiz.get(), "Gauge")
                ->findChild<QWidget*>(QString::fromLatin1(part))
                ->isVisibleTo(quiz.get());
        };
        QVERIFY(shown("Shape2") && !shown("Shape1") && !shown("Label9"));
        QVERIFY(quiz->Timer1->isActive());
        QVERIFY(document().contains(u"Question 1.1"_s) && !document().contains(u"Explanation"_s));
        run(u"3"_s);
        QVERIFY(document().contains(u"Explanation 1.1"_s));
        QVERIFY(!quiz->Timer1->isActive());
        QCOMPARE(f->state.ActiveWish, 0);
    }

    void clocks_data() {
        QTest::addColumn<bool>("active");
        // The item and elapsed clocks after 65 seconds, then the elapsed clock an hour into the
        // next item.
        QTest::addColumn<QString>("shown");
        QTest::newRow("timer on") << true
                                  << u"Item Time: 0:01:05|Elapsed Time: 0:01:05|Elapsed Time: "
                                     "1:01:05"_s;
        QTest::newRow("timer off") << false << u"Item Time:|Elapsed Time:|Elapsed Time:"_s;
    }
    void clocks() {
        QFETCH(bool, active);
        QFETCH(QString, shown);
        f->state.TimerActive = active;
        open(1);
        QCOMPARE(quiz->Timer1->isActive(), active);
        f->clock.advanceSeconds(65);
        quiz->Timer1_Timer();
        QStringList clocks{text("Label8"), text("Label7")};
        run(u"r"_s); // the time counts with or without the clocks
        QVERIFY(!quiz->Timer1->isActive());
        QCOMPARE(qRound(f->state.TestElapsed * 86400), 65);
        run(u"n"_s);
        f->clock.advanceSeconds(3600);
        quiz->Timer1_Timer();
        QCOMPARE((clocks << text("Label7")).join(u'|'), shown);
    }

    void aladdinHelpOpensTopicSixteenModally() {
        open(1);
        f->screens.clearCalls();
        run(u"h"_s);
        QCOMPARE(f->state.HelpTopic, 16);
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Unload, ScreenName::Help},
                                          {ScreenCallKind::ShowModal, ScreenName::Help}}));
    }

    void pictureOpensWithItsItemAndClosesWithTheNext() {
        f->state.CurrentTopic = 6;
        f->state.content.ItemPicture[6 + 3 + 2 + 2 + 2 + 8] = 1; // topic 6's last item
        BuildAllItemsTest(f->state, f->random, 0);
        f->state.TestPosition = f->state.TestFurthest = 7;
        open();
        PictForm picture; // what the host loads for the next item
        f->screens.place(ScreenName::PictForm, &picture);
        run(u"n"_s);
        QCOMPARE(view(), u"All Items Review Test/Item 8 of 8 | ABCDWnbpI | 0 0 0   | 111"_s);
        QCOMPARE(picture.twips().windowWidth, 263 * 15 + 70);
        QCOMPARE(picture.twips().imageHeight, 232 * 15);
        f->screens.clearCalls();
        run(u"rp"_s);
        QCOMPARE(view(), u"All Items Review Test/Item 7 of 8  (Answer is C) | abcdwNBPi | 1 0 1 "
                         "100.0% 0 | 111"_s);
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Unload, ScreenName::PictForm}}));
    }

    void aCleanRunEndsWithThePassedBoxAndALogEntry() {
        open(2);
        run(u"rnrnr"_s);
        QCOMPARE(view(), u"<C> is the best choice. | abcdwDBPi | 3 0 3 100.0% 0 | 111"_s);
        QCOMPARE(colour("Label2"), int(RightColour));
        QCOMPARE(colour("Label6"), int(PassingColour));
        QCOMPARE(quiz->findChild<QProgressBar*>()->value(), 100);
        QVERIFY(label("HandShake")->isVisibleTo(quiz.get()));
        f->dialogs.answer(MessageAnswer::Ok);
        run(u"n"_s);
        QCOMPARE(boxes(), u"Finished: Congratulations! You passed this review test./You missed 0 "
                          "questions. (!)"_s);
        QCOMPARE(f->dialogs.messages().front().buttons, MessageButtons::OkCancel);
        QVERIFY(!quiz->isVisible());
        QCOMPARE((QList<int>{f->state.TakeCounts[2], f->state.TestPosition}), (QList<int>{1, 0}));
        QCOMPARE(saved(), u"log 2:1 takes 1 suspended 0 | topic 2 type 1 at 3/3 tally 3 0 3 "
                          "wishes 111"_s);
    }

    void cancelInTheFinishedBoxGoesOn() {
        open(2);
        run(u"rnrnr"_s);
        f->dialogs.answer(MessageAnswer::Cancel);
        run(u"n"_s);
        f->dialogs.answer(MessageAnswer::Cancel);
        run(u"n"_s); // pressing Done again asks again
        QCOMPARE(f->dialogs.messages().size(), size_t{2});
        QCOMPARE(view(), u"<C> is the best choice. | abcdwDBPi | 3 0 3 100.0% 0 | 111"_s);
        QCOMPARE(saved(), u"none"_s);
    }

    // A first drill counts at the lower of seventy and the passing grade.
    void drills_data() {
        QTest::addColumn<int>("grade");
        QTest::addColumn<int>("right");
        QTest::addColumn<QString>("file");
        QTest::newRow("0.75 at a grade of 85") << 85 << 75 << u"log 1:0.75 takes 1"_s;
        QTest::newRow("0.69 at a grade of 70") << 70 << 69 << u"log 1:0.69 takes 0"_s;
    }
    void drills() {
        QFETCH(int, grade);
        QFETCH(int, right);
        QFETCH(QString, file);
        f->state.PassingGrade = static_cast<int16_t>(grade);
        atTheEndOfADrill(right);
        f->dialogs.answer(MessageAnswer::Ok);
        run(u"n"_s);
        QCOMPARE(boxes(), QStringLiteral("Finished: Sorry, you failed this review test./You "
                                         "missed %1 questions. (?)")
                              .arg(100 - right));
        QVERIFY(saved().startsWith(file));
        QCOMPARE(QString(file).endsWith(u'1'), f->state.TakeCounts[1] == 1);
    }

    void aFailedSaveOnDoneCountsTheDrillOnceWhenFinishedAgain() {
        atTheEndOfADrill(80);
        {
            FaultyFiles full(FaultyFiles::Fault::DiskFull, 2); // takes one record and no more
            f->dialogs.answer(MessageAnswer::Ok);
            run(u"n"_s);
        }
        QCOMPARE(f->dialogs.titles().back(), u"Progress Not Saved"_s);
        QCOMPARE((QList<int>{f->state.TakeCounts[1], f->state.TestPosition}), (QList<int>{0, 100}));
        QCOMPARE(saved(), u"none"_s);
        open();
        f->dialogs.answer(MessageAnswer::Ok);
        run(u"n"_s);
        QVERIFY(saved().startsWith(u"log 1:0.8 takes 1"_s));
        QCOMPARE(ReadProgressHeader().LogCodes[2], 0);
        QCOMPARE(f->state.TakeCounts[1], 1);
    }

    void cancelOnTheFirstItemLeavesNoTrace() {
        open(1);
        run(u"x"_s);
        QVERIFY(QFile::exists(QString::fromLatin1(JournalFile))); // written after every answer
        run(u"k"_s);
        QCOMPARE(f->state.TestPosition, 0);
        QCOMPARE(saved(), u"none"_s);
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile)));
    }

    void breakAfterItemFiveThenResumeInANewRun() {
        open(1);
        run(u"rnrnrnrnrk"_s);
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile))); // the break saved it all
        QCOMPARE(saved(), u"log 0:0 takes 0 suspended 2 | topic 1 type 1 at 5/5 tally 5 0 5 "
                          "wishes 111"_s);
        startNewRun();
        QCOMPARE(view(), u"All Items Review Test/Item 5 of 6  (Answer is A) | abcdwNBPi | 5 0 5 "
                         "100.0% 0 | 111"_s);
        run(u"n"_s);
        QCOMPARE(view(), u"All Items Review Test/Item 6 of 6 | ABCDWnbpi | 5 0 5 100.0% 0 | 111"_s);
    }

    void windowClosedOnAnOpenItemWithAWrongTry() {
        open(1);
        run(u"rnrnrnrnrnxq"_s);
        QCOMPARE(saved(), u"log 0:0 takes 0 suspended 2 | topic 1 type 1 at 5/5 tally 5 1 6 "
                          "wishes 111"_s);
        QCOMPARE(ReadReviewTestRecords().front().Misses[6], 1);
        open();       // the same run: the session still holds the test
        run(u"nr"_s); // the wrong try still counts
        QCOMPARE(view(), u"<B> is the best choice. | abcdwDBPi | 5 1 7 83.3% 0 | 111"_s);
    }

    void aRetakeCannotBeCancelledAndKeepsAClosedFirstItem() {
        std::vector<int16_t> items(100), misses(100, 1);
        for (size_t k = 0; k < items.size(); ++k)
            items[k] = static_cast<int16_t>(k % 6 + 1);
        BuildRetake(f->state, 1, items, misses, RetakeChoice::MissedQuestions);
        f->state.WishesLeft[1] = 1; // one 50:50 already spent on the first item
        open();
        run(u"0xq"_s);
        QCOMPARE(said.front(), u"122>Retake of Missed Items/Item 1 of 100"_s);
        // Kept at its first item, still open, with the wrong try and the wishes.
        QCOMPARE(saved(), u"log 0:0 takes 0 suspended 2 | topic 1 type 3 at 1/0 tally 0 1 1 "
                          "wishes 122"_s);
        startNewRun();
        QCOMPARE(view(),
                 u"Retake of Missed Items/Item 1 of 100 | ABCDWnbpi | 0 1 1 0.0% 0 | 122"_s);
        run(u"r"_s);
        QCOMPARE(view(), u"<A> is the best choice. | abcdwNBpi | 0 1 2 0.0% 0 | 122"_s);
    }

    void navigationFollowsTheClose() {
        ButtonMenu menu(f->context);
        f->screens.place(ScreenName::ButtonMenu, &menu);
        open(3);
        QVERIFY(!menu.isEnabled());
        run(u"rk"_s);
        QCOMPARE((QList<int>{f->state.TestPosition, f->state.TestFurthest}), (QList<int>{1, 1}));
        QVERIFY(menu.isEnabled());
        QCOMPARE(Control<QRadioButton>(&menu, "Option1_0")->text(),
                 u"Resume Topic 3 &Review, All Items"_s);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::Quiz800Test)
#include "quiz800_test.moc"
