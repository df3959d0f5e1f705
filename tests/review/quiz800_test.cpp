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
        click(ReviewCommand::Aladdin);
    }
    // Steps: 'A' to 'D' click an answer, 'a' to 'd' type it; 'r' clicks the right answer, 'x' a
    // wrong one; 'n' Next, 'p' Previous, 'k' Break or Cancel, 'q' closes; the rest open Aladdin.
    void run(const QString& steps) {
        for (const QChar c : steps) {
            const char step = c.toLatin1();
            offer.clear();
            if (step >= 'A' && step <= 'D')
                click(step - 'A');
            else if (step >= 'a' && step <= 'd')
                QTest::keyClick(quiz->RichTextBox1, step);
            else if (step == 'r' || step == 'x')
                click(step == 'r' ? right() : wrong(0));
            else if (step == 'n' || step == 'p' || step == 'k')
                click(step == 'n'   ? ReviewCommand::Next
                      : step == 'p' ? ReviewCommand::Previous
                                    : ReviewCommand::Break);
            else if (step == 'q')
                quiz->close();
            else
                aladdin(step);
            said << offer + text("Label2").replace(u'\n', u'/');
        }
    }
    // Runs "steps: shown" and gives back the feedback after each step, the view for the last.
    QString replay(const QString& script) {
        const QString steps = script.section(u": "_s, 0, 0);
        run(steps);
        said.last() = view();
        return steps + u": "_s + said.join(u'|');
    }
    // The feedback; the commands A to D, Wish, Next or Done, Cancel or Break, Previous and
    // pIcture, small when closed; the panel's figures; the wishes left.
    QString view() const {
        using C = ReviewCommand;
        const QString letters = u"ABCDW"_s + (button(C::Next)->text() == u"&Done"_s ? u'D' : u'N') +
                                (button(C::Break)->text() == u"&Break"_s ? u'B' : u'C') + u"PI"_s;
        const std::array<int, 9> shown = {C::AnswerA, 1,        2,           C::AnswerD, C::Aladdin,
                                          C::Next,    C::Break, C::Previous, C::Picture};
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
    // The study folder: a journal; the first log entry (code:score), the topic's takes and the
    // suspended record; each test's topic, type, position, furthest, tally, wishes, misses.
    QString saved() const {
        QStringList shown;
        if (QFile::exists(QString::fromLatin1(JournalFile)))
            shown << u"journal"_s;
        if (!QFile::exists(QString::fromLatin1(ProgressFile)))
            return shown.isEmpty() ? u"none"_s : shown.join(u" | "_s);
        const ProgressHeader h = ReadProgressHeader();
        shown << QString::asprintf("log %d:%g %d %d", h.LogCodes[1], double(h.LogScores[1]),
                                   h.TakeCounts[size_t(f->state.CurrentTopic)],
                                   h.SuspendedTestRecord);
        for (const ReviewTestRecord& r : ReadReviewTestRecords())
            shown << QString::asprintf("%d %d %d %d %d %d %d %d %d %d %d%d%d%d%d%d", r.Topic,
                                       r.TestType, r.Position, r.Furthest, r.Tally[1], r.Tally[2],
                                       r.Tally[3], r.WishesLeft[1], r.WishesLeft[2],
                                       r.WishesLeft[3], r.Misses[1], r.Misses[2], r.Misses[3],
                                       r.Misses[4], r.Misses[5], r.Misses[6]);
        return shown.join(u" | "_s);
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
        // The steps, then the feedback after each step and the view at the end.
        QTest::addColumn<QString>("script");
        QTest::newRow("right key at the first try")
            << u"a: <A> is the best choice.  (Answer is A) | abcdwNBpi | 1 0 1 100.0% 0 | 111"_s;
        // The same wrong key again finds its button closed; a revealed item takes no answer.
        QTest::newRow("a wrong key twice, then right, then any key")
            << u"bbac: <B> is not the best choice. Try Again...|"
               "<B> is not the best choice. Try Again...|<A> is the best choice.|"
               "<A> is the best choice. | abcdwNBpi | 0 1 2 0.0% 0 | 111"_s;
        QTest::newRow("three misses are one wild guess")
            << u"BCDA: <B> is not the best choice. Try Again...|"
               "<C> is not the best choice either. Try Again...|"
               "<D> is not the best choice either. Try Again...|<A> is the best choice. |"
               " abcdwNBpi | 0 1 4 0.0% 1 | 111"_s;
        QTest::newRow("a free guess forgives one miss")
            << u"2BCA: 111>Take a Free Guess!|<B> Try Again...|"
               "<C> is not the best choice. Try Again...|<A> is the best choice. | abcdwNBpi |"
               " 0 1 3 0.0% 0 | 101"_s;
        QTest::newRow("Cancel, the close box and OK without a choice spend nothing")
            << u"0e+: 111>All Items Review Test/Item 1 of 6|111>All Items Review Test/Item 1 of 6|"
               "All Items Review Test/Item 1 of 6 | ABCDWnCpi | 0 0 0   | 111"_s;
        QTest::newRow("three wishes spent close Aladdin for the test")
            << u"213rn: 111>Take a Free Guess!|1-1>Now it's a coin toss!|"
               "--1>Here's what the expert says!/(Scroll down as needed.)|"
               "<A> is the best choice.|All Items Review Test/Item 2 of 6 | ABCDwnbpi |"
               " 1 0 1 100.0% 0 | 000"_s;
        QTest::newRow("stepping back shows the answered item with its letter")
            << u"rnxrpn: <A> is the best choice.|All Items Review Test/Item 2 of 6|"
               "<C> is not the best choice. Try Again...|<B> is the best choice.|"
               "All Items Review Test/Item 1 of 6  (Answer is A)|"
               "All Items Review Test/Item 2 of 6  (Answer is B) | abcdwNBPi | 1 1 3 50.0% 0 |"
               " 111"_s;
    }
    void steps() {
        QFETCH(QString, script);
        open(1);
        QCOMPARE(replay(script), script);
        QVERIFY2(f->sound.tones().empty(), "no tone with the sound off");
    }

    // A miss shows in red with a tone; a wish changes the words, not the red.
    void aMissThenACoinTossAndAladdinsHelp() {
        f->state.SoundOn = true;
        open(1);
        run(u"x"_s);
        QCOMPARE(label("Label2")->textFormat(), Qt::PlainText); // "<B>" is not markup
        QCOMPARE(f->sound.tones(), (std::vector<Tone>{{440, 200}}));
        quiz->Timer1_Timer(); // with the timer off the clocks stay blank
        QCOMPARE(text("Label8") + text("Label7"), u"Item Time:Elapsed Time:"_s);
        // Draws land on the right answer, then on the wrong try's answer, then on a live one.
        f->random.script({(right() + 0.5) / 4.0, (wrong(0) + 0.5) / 4.0, (wrong(1) + 0.5) / 4.0});
        run(u"10"_s); // with two answers left the dialog offers no second coin toss
        QCOMPARE(said.mid(1).join(u'|'), u"111>Now it's a coin toss!|-11>Now it's a coin toss!"_s);
        QCOMPARE(colour("Label2"), int(WrongColour));
        QCOMPARE(view().section(u" | "_s, 1, 2), u"AbCdWnCpi | 0 1 1 0.0% 0"_s);
        const QString question = quiz->RichTextBox1->text();
        QVERIFY(question.contains(u"A. "_s) && !question.contains(u"B. "_s) &&
                question.contains(u"C. "_s) && !question.contains(u"D. "_s));
        f->screens.clearCalls();
        run(u"h"_s);
        QCOMPARE(f->state.HelpTopic, 16);
        QCOMPARE(f->screens.callsText(), "unload Help, modal Help");
    }

    // The clocks run on an open item; the expert's advice stops them as an answer does.
    void clocksAndTheExpertsAdvice() {
        f->state.TimerActive = true;
        f->state.IncludeProgressReport = false; // the gauge keeps only its scale
        open(1);
        const QWidget* gauge = Control<QWidget>(quiz.get(), "Gauge");
        QVERIFY(gauge->findChild<QWidget*>(u"Shape2"_s)->isVisibleTo(quiz.get()) &&
                !gauge->findChild<QWidget*>(u"Shape1"_s)->isVisibleTo(quiz.get()));
        f->clock.advanceSeconds(65);
        quiz->Timer1_Timer();
        QStringList clocks{text("Label8"), text("Label7")};
        run(u"3"_s);
        QVERIFY(quiz->RichTextBox1->text().contains(u"Explanation 1.1"_s));
        QVERIFY(!quiz->Timer1->isActive());
        run(u"rn"_s);
        QVERIFY(quiz->Timer1->isActive());
        f->clock.advanceSeconds(3600);
        quiz->Timer1_Timer();
        QCOMPARE((clocks << text("Label7")).join(u'|'),
                 u"Item Time: 0:01:05|Elapsed Time: 0:01:05|Elapsed Time: 1:01:05"_s);
    }

    // The menu waits while the test is open, and offers to resume it after a break.
    void pictureOpensWithItsItemAndClosesWithTheNextAndTheMenuFollows() {
        ButtonMenu menu(f->context);
        f->screens.place(ScreenName::ButtonMenu, &menu);
        f->state.CurrentTopic = 6;
        f->state.content.ItemPicture[6 + 3 + 2 + 2 + 2 + 8] = 1; // topic 6's last item
        BuildAllItemsTest(f->state, f->random, 0);
        f->state.TestPosition = f->state.TestFurthest = 7;
        open();
        PictForm picture; // what the host loads for the next item
        f->screens.place(ScreenName::PictForm, &picture);
        run(u"n"_s);
        QCOMPARE(view(), u"All Items Review Test/Item 8 of 8 | ABCDWnbpI | 0 0 0   | 111"_s);
        QVERIFY(picture.twips().imageHeight > 0); // shown with the item's picture
        f->screens.clearCalls();
        run(u"rp"_s);
        QCOMPARE(view(), u"All Items Review Test/Item 7 of 8  (Answer is C) | abcdwNBPi | 1 0 1 "
                         "100.0% 0 | 111"_s);
        QCOMPARE(f->screens.callsText(), "unload PictForm");
        QVERIFY(!menu.isEnabled());
        run(u"k"_s);
        QVERIFY(menu.isEnabled()); // and refreshed
        QCOMPARE(Control<QRadioButton>(&menu, "Option1_0")->text(),
                 u"Resume Topic 6 &Review, All Items"_s);
    }

    // A first drill counts at the lower of seventy and the passing grade: 5 of 6 fails at 85. A
    // save that fails keeps the journal for the next start.
    void aFailedSaveOnDoneCountsTheFailedDrillOnceWhenFinishedAgain() {
        f->state.PassingGrade = 85;
        open(1);
        run(u"xrnrnrnrnrnr"_s);
        {
            FaultyFiles full(FaultyFiles::Fault::DiskFull, 2); // takes one record and no more
            f->dialogs.answer(MessageAnswer::Ok);
            run(u"n"_s);
        }
        QCOMPARE(f->dialogs.titles().back(), u"Progress Not Saved"_s);
        QCOMPARE((QList<int>{f->state.TakeCounts[1], f->state.TestPosition}), (QList<int>{0, 6}));
        QCOMPARE(saved(), u"journal"_s);
        open();
        f->dialogs.answer(MessageAnswer::Cancel); // stays on the last item, nothing saved
        f->dialogs.answer(MessageAnswer::Ok);
        run(u"n"_s);
        QCOMPARE(saved(), u"journal"_s);
        run(u"n"_s);
        const ShownMessage& box = f->dialogs.messages().back();
        QVERIFY(box.icon == MessageIcon::Question && box.buttons == MessageButtons::OkCancel);
        QCOMPARE(box.title + u": "_s + box.text,
                 u"Finished: Sorry, you failed this review test.\r\nYou missed 1 question."_s);
        QCOMPARE(saved(), u"log 1:0.833333 1 0 | 1 1 6 6 5 1 7 1 1 1 100000"_s);
        QCOMPARE(ReadProgressHeader().LogCodes[2], 0);
        QCOMPARE(f->state.TakeCounts[1], 1);
    }

    void aPassedDrillEndsOnTheExclamationBox() {
        open(1);
        f->dialogs.answer(MessageAnswer::Ok);
        run(u"rnrnrnrnrnrn"_s);
        const ShownMessage& box = f->dialogs.messages().back();
        QVERIFY(box.icon == MessageIcon::Exclamation);
        QCOMPARE(
            box.title + u": "_s + box.text,
            u"Finished: Congratulations! You passed this review test.\r\nYou missed 0 questions."_s);
    }

    // Topic 1 broken off or closed, and opened again in the same run or in a new one.
    void breakingOffAndComingBack_data() {
        QTest::addColumn<bool>("retake"); // of the missed items of 100, one 50:50 spent
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("reopen");    // 0 not, 1 in the same run, 2 in a new run
        QTest::addColumn<QString>("after"); // the view on reopening, then steps as in a replay
        QTest::newRow("Cancel on the first item leaves no trace")
            << false << u"xk"_s << u"none"_s << 0 << QString();
        QTest::newRow("a break after item five, resumed in a new run")
            << false << u"rnrnrnrnrk"_s << u"log 0:0 0 2 | 1 1 5 5 5 0 5 1 1 1 000000"_s << 2
            << u"n: All Items Review Test/Item 5 of 6  (Answer is A) | abcdwNBPi | 5 0 5 100.0% 0 "
               "| 111|All Items Review Test/Item 6 of 6 | ABCDWnbpi | 5 0 5 100.0% 0 | 111"_s;
        // The wrong try still counts.
        QTest::newRow("closed on an open item with a wrong try, opened in the same run")
            << false << u"rnrnrnrnrnxq"_s << u"log 0:0 0 2 | 1 1 5 5 5 1 6 1 1 1 000001"_s << 1
            << u"nr: All Items Review Test/Item 5 of 6  (Answer is A) | abcdwNBPi | 5 1 6 83.3% 0 "
               "| 111|All Items Review Test/Item 6 of 6|<B> is the best choice. | abcdwDBPi | 5 1 "
               "7 "
               "83.3% 0 | 111"_s;
        // A retake cannot be cancelled; its first item is kept open with the wrong try.
        QTest::newRow("a retake closed on its first item")
            << true << u"0xq"_s << u"log 0:0 0 2 | 1 3 1 0 0 1 1 1 2 2 100000"_s << 2
            << u"r: Retake of Missed Items/Item 1 of 100 | ABCDWnbpi | 0 1 1 0.0% 0 | 122|<A> is "
               "the best choice. | abcdwNBpi | 0 1 2 0.0% 0 | 122"_s;
    }
    void breakingOffAndComingBack() {
        QFETCH(bool, retake);
        QFETCH(QString, steps);
        QFETCH(QString, file);
        QFETCH(int, reopen);
        QFETCH(QString, after);
        if (retake) {
            std::vector<int16_t> items(100), misses(100, 1);
            for (size_t k = 0; k < items.size(); ++k)
                items[k] = static_cast<int16_t>(k % 6 + 1);
            BuildRetake(f->state, 1, items, misses, RetakeChoice::MissedQuestions);
            f->state.WishesLeft[1] = 1;
        }
        open(1);
        run(steps);
        QCOMPARE(saved(), file);
        QCOMPARE(f->state.TestPosition == 0, reopen == 0);
        if (reopen == 0)
            return;
        reopen == 1 ? open() : startNewRun();
        said = {view()};
        QCOMPARE(replay(after), after);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::Quiz800Test)
#include "quiz800_test.moc"
