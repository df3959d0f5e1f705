// The wishes dialog: what it offers, and what OK, Cancel, the close box and Help spend.

#include "review/aladdin.h"
#include "tests/support/recording_screens.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace tessera {

class AladdinTest : public QObject {
    Q_OBJECT

private:
    SessionState state;
    RecordingScreenHost screens;

private Q_SLOTS:
    void init() {
        state = SessionState{};
        state.WishesLeft = {0, 2, 0, 1};
        state.ActiveWish = 2;
        screens.clearCalls();
    }

    void opensWithNoChoiceAndDropsAnArmedFreeGuess() {
        Aladdin dialog(state, screens, 4, nullptr);
        QCOMPARE(state.ActiveWish, 0);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Aladdin"));
        QCOMPARE(dialog.Label2[0]->text(), QStringLiteral(" 2"));
        QCOMPARE(dialog.Label2[1]->text(), QStringLiteral(" 0"));
        QVERIFY(dialog.Option1[0]->isEnabled());
        QVERIFY(!dialog.Option1[1]->isEnabled());
        for (QRadioButton* option : dialog.Option1)
            QVERIFY(!option->isChecked());
    }

    void closing_data() {
        QTest::addColumn<int>("choice"); // the option chosen, -1 for none
        QTest::addColumn<int>("button"); // 0 OK, 1 Cancel, -1 the close box by Escape
        QTest::addColumn<int>("spent");  // the wish spent and made active, 0 for none
        QTest::newRow("OK spends the chosen wish") << 2 << 0 << 3;
        QTest::newRow("OK without a choice") << -1 << 0 << 0;
        QTest::newRow("Cancel") << 0 << 1 << 0;
        QTest::newRow("close box") << 0 << -1 << 0;
    }
    void closing() {
        QFETCH(int, choice);
        QFETCH(int, button);
        QFETCH(int, spent);
        Aladdin dialog(state, screens, 4, nullptr);
        dialog.show();
        if (choice >= 0)
            QTest::mouseClick(dialog.Option1[static_cast<size_t>(choice)], Qt::LeftButton);
        if (button >= 0)
            QTest::mouseClick(dialog.Command1[static_cast<size_t>(button)], Qt::LeftButton);
        else
            QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(state.ActiveWish, spent);
        QCOMPARE(state.WishesLeft, (std::array<int16_t, 4>{0, 2, 0, int16_t(spent == 3 ? 0 : 1)}));
    }

    void helpOpensTopicSixteenModally() {
        Aladdin dialog(state, screens, 4, nullptr);
        QTest::mouseClick(dialog.Command1[2], Qt::LeftButton);
        QCOMPARE(state.HelpTopic, 16);
        const std::vector<ScreenCall> expected = {{ScreenCallKind::Unload, ScreenName::Help},
                                                  {ScreenCallKind::ShowModal, ScreenName::Help}};
        QCOMPARE(screens.calls(), expected);

        RecordingScreenHost without;
        without.setMissing(ScreenName::Help);
        Aladdin bare(state, without, 4, nullptr);
        QVERIFY(!bare.Command1[2]->isEnabled());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::AladdinTest)
#include "aladdin_test.moc"
