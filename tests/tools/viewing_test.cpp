// The text and glossary viewer driven as a reader would: letter buttons and keys, the find
// panel with its wrap round, and the discussion text's title, printing and help.

#include "core/screen_context.h"
#include "platform/rich_text_view.h"
#include "tests/support/screen_fixture.h"
#include "tools/viewing.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <memory>

namespace tessera {

class ViewingTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;

    std::unique_ptr<Viewing> open(int section) {
        f->state.ViewerSection = static_cast<int16_t>(section);
        auto viewing = std::make_unique<Viewing>(f->context);
        viewing->show();
        return viewing;
    }
    static QString selectedTerm(const Viewing& viewing) {
        return viewing.List1->currentItem()->text();
    }
    static void press(Viewing& viewing, int letter) {
        QTest::mouseClick(viewing.Command3[letter], Qt::LeftButton);
    }
    static constexpr int M = 12, Q = 16, T = 19, Z = 25;

private Q_SLOTS:
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() { f.reset(); }

    void letterButtonsFindTheFirstTermOfTheirLetter() {
        auto viewing = open(Viewing::GlossarySection);
        QCOMPARE(viewing->windowTitle(), QStringLiteral("Glossary of Key Terms"));
        QCOMPARE(viewing->List1->count(), GlossaryEntryCount);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Aterm 001"));
        QVERIFY(viewing->RichTextBox2->text().contains(QStringLiteral("Aterm 001")));
        QVERIFY(viewing->RichTextBox1->text().contains(QStringLiteral("Meaning number 1.")));
        QVERIFY(!viewing->Command3[Q]->isEnabled());
        QVERIFY(!viewing->Command1[0]->isVisible());
        const QSize definition = viewing->RichTextBox1->size(),
                    term = viewing->RichTextBox2->size();
        viewing->resize(viewing->width(), 2 * viewing->height()); // as maximising does
        QVERIFY(viewing->RichTextBox1->height() > definition.height());
        QVERIFY(viewing->RichTextBox2->height() > term.height());

        press(*viewing, M);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Mterm 001"));
        QVERIFY(viewing->RichTextBox2->text().contains(QStringLiteral("Mterm 001")));
        QCOMPARE(viewing->focusWidget(), viewing->Command3[M]);
        press(*viewing, M); // the same letter again walks on through its terms
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Mterm 002"));

        // Keys on a letter button jump too; a letter without terms does nothing.
        QTest::keyClick(viewing->Command3[M], Qt::Key_T);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Tterm 001"));
        QTest::keyClick(viewing->Command3[T], Qt::Key_Q);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Tterm 001"));
    }

    void repeatedPressesWalkAndWrapRound() {
        auto viewing = open(Viewing::GlossarySection);
        press(*viewing, 0); // "A" counts as the last letter used: the first press steps down
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Aterm 002"));
        for (int i = 0; i < 47; ++i)
            press(*viewing, 0);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Aterm 049"));
        press(*viewing, 0);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Aterm 001"));

        press(*viewing, Z);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Zterm 001"));
        for (int i = 0; i < 53; ++i)
            press(*viewing, Z);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Zterm 054"));
        QCOMPARE(viewing->List1->currentRow(), GlossaryEntryCount - 1);
        press(*viewing, Z); // on the last term the letter starts over
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Zterm 001"));
    }

    void findWrapsRoundOnceAndSaysSorryOnce() {
        auto viewing = open(Viewing::GlossarySection);
        QTest::mouseClick(viewing->Command1[6], Qt::LeftButton);
        QVERIFY(viewing->Frame1->isVisible());
        QVERIFY(!viewing->Command1[2]->isEnabled());
        QVERIFY(!viewing->Command1[4]->isEnabled());
        QCOMPARE(viewing->focusWidget(), viewing->Text2);

        QTest::keyClicks(viewing->Text2, QStringLiteral("  mterm 003  "));
        QVERIFY(viewing->Command1[4]->isEnabled());
        QTest::keyClick(viewing->Text2, Qt::Key_Return);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Mterm 003"));

        // Terms only: the whole list is searched once, then "Sorry!".
        viewing->Text2->setText(QStringLiteral("hidden needle"));
        QTest::mouseClick(viewing->Command1[4], Qt::LeftButton);
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& sorry = f->dialogs.messages().front();
        QCOMPARE(sorry.text, QStringLiteral("hidden needle not found."));
        QCOMPARE(sorry.title, QStringLiteral("Sorry!"));
        QCOMPARE(sorry.icon, MessageIcon::Question);
        QCOMPARE(selectedTerm(*viewing), QStringLiteral("Mterm 003"));

        // In the definitions it is found; from that entry on only after wrapping round.
        QTest::mouseClick(viewing->Option1[1], Qt::LeftButton);
        QTest::mouseClick(viewing->Command1[4], Qt::LeftButton);
        QCOMPARE(viewing->List1->currentRow(), 699);
        QVERIFY(viewing->RichTextBox1->text().contains(QStringLiteral("hidden needle")));
        QTest::mouseClick(viewing->Command1[4], Qt::LeftButton);
        QCOMPARE(viewing->List1->currentRow(), 699);
        viewing->Check1->setChecked(true);
        viewing->Text2->setText(QStringLiteral("Hidden Needle"));
        QTest::mouseClick(viewing->Command1[4], Qt::LeftButton);
        QCOMPARE(f->dialogs.messages().size(), size_t{2});

        QTest::mouseClick(viewing->Command1[5], Qt::LeftButton);
        QVERIFY(!viewing->Frame1->isVisible());
        QVERIFY(viewing->Command1[2]->isEnabled());
    }

    void discussionTextIsReadOnlyWithItsTitle() {
        auto viewing = open(3);
        QCOMPARE(viewing->windowTitle(), QStringLiteral("About Orlanda Academy"));
        QCOMPARE(viewing->Label1->text(), QStringLiteral("Please Read Carefully..."));
        QVERIFY(viewing->RichTextBox1->text().contains(QStringLiteral("Discussion 3")));
        QVERIFY(!viewing->List1->isVisible());
        QVERIFY(!viewing->Command1[6]->isVisible());
        QVERIFY(viewing->Command1[0]->isEnabled());

        const QString before = viewing->RichTextBox1->text();
        QTest::keyClicks(viewing->RichTextBox1, QStringLiteral("xyz"));
        QTest::keyClick(viewing->RichTextBox2, Qt::Key_A);
        QCOMPARE(viewing->RichTextBox1->text(), before);

        // Help on a text is topic 4, and a help window on another topic goes first.
        f->state.HelpTopic = 9;
        f->screens.clearCalls();
        QTest::mouseClick(viewing->Command1[3], Qt::LeftButton);
        QCOMPARE(f->state.HelpTopic, 4);
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Unload, ScreenName::Help},
                                          {ScreenCallKind::Show, ScreenName::Help}}));
        f->screens.clearCalls();
        QTest::mouseClick(viewing->Command1[3], Qt::LeftButton);
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Show, ScreenName::Help}}));
    }

    void printerProblemLeavesTheTextUnprintable() {
        f->state.PrinterProblem = true;
        f->state.ViewerSection = 2;
        Viewing viewing(f->context);
        QVERIFY(!viewing.Command1[0]->isEnabled());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ViewingTest)
#include "viewing_test.moc"
