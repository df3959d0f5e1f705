// Navigator as the candidate meets it: the table folded from the file's log, its chart, the
// printed page, help on its topic, the sizes on a resize, and the keyboard.

#include "core/progress_file.h"
#include "reports/navigator.h"
#include "reports/navigator_chart.h"
#include "tests/support/screen_checks.h"
#include "tests/support/screen_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <memory>

namespace tessera {

namespace {

// A printed line as the recording printer keeps it: each text from its column, counted from 1,
// as if every character took one column; a text that runs into the next column pushes it on.
QString Line(std::initializer_list<std::pair<int, const char*>> texts) {
    QString line;
    for (const auto& [column, text] : texts)
        line = line.leftJustified(column - 1) + QString::fromLatin1(text);
    return line;
}

} // namespace

class NavigatorScreenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<Navigator> navigator;

    // Topic 3 twice, exam II once, on dates in slot order.
    void open() {
        ProgressHeader header;
        const std::array<const char*, 3> dates = {"09-01-2026", "09-08-2026", "10-02-2026"};
        const std::array<int, 3> codes = {3, 11, 3};
        const std::array<float, 3> scores = {0.65F, 0.72F, 0.9F};
        for (std::size_t i = 0; i < 3; ++i) {
            header.LogDates[i + 1] = dates[i];
            header.LogCodes[i + 1] = static_cast<uint8_t>(codes[i]);
            header.LogScores[i + 1] = scores[i];
        }
        WriteProgressHeader(header);
        navigator = std::make_unique<Navigator>(f->context);
    }

    void showActive() {
        navigator->show();
        navigator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(navigator.get()));
    }

    QString cell(int row, int column) const { return navigator->Grid1->item(row, column)->text(); }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        f->state.UserName = "Pat Doe" + std::string(23, ' ');
    }

    void cleanup() {
        navigator.reset();
        f.reset();
    }

    void tableFoldedFromTheLogWithItsChart() {
        open();
        QTableWidget* grid = navigator->Grid1;
        QCOMPARE(grid->rowCount(), 13);
        QCOMPARE(cell(0, 0), QStringLiteral("\nTopic Title"));
        QCOMPARE(cell(0, 1), QStringLiteral("Initial Date\nof Test/Exam"));
        QCOMPARE(cell(9, 0), QStringLiteral("Brokerage: Responsibilities and Functions of S..."));
        QCOMPARE(cell(12, 0), QStringLiteral("Custom Built"));
        const QStringList topic3 = {cell(3, 1), cell(3, 2), cell(3, 3), cell(3, 4), cell(3, 5)};
        QCOMPARE(topic3, (QStringList{QStringLiteral("09-01-2026"), QStringLiteral("65.0%"),
                                      QStringLiteral(" 2"), QStringLiteral("90.0%"),
                                      QStringLiteral("10-02-2026")}));
        QCOMPARE(cell(1, 3), QStringLiteral(" 0"));
        QCOMPARE(cell(1, 2), QString());
        QCOMPARE(grid->item(5, 2)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(navigator->Label1->text(),
                 QStringLiteral("Pat Doe                       \nThursday, November 19, 2026"));

        // The chart follows the current cell, which starts on row 1, column 1.
        QCOMPARE(grid->currentRow(), 1);
        QCOMPARE(grid->currentColumn(), 1);
        QCOMPARE(navigator->Chart1->chart().title, std::string("Definitions"));
        QVERIFY(navigator->Chart1->chart().points.empty());
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(navigator->Chart1->chart().points.size(), 2U);
        QCOMPARE(navigator->Chart1->accessibleDescription(),
                 QStringLiteral("Real Property and Laws Relating to Ownership: 2 full takes, "
                                "65.0% on 09-01-2026, 90.0% on 10-02-2026, passing grade 70%."));
        // The head column holds no current cell.
        QTest::keyClick(grid, Qt::Key_Left);
        QCOMPARE(grid->currentColumn(), 1);
    }

    void printsOnePageACopy() {
        f->state.UserName = "Pat Doe";
        open();
        f->printer.dialogAnswer = PrintChoice{2, false};
        showActive();
        navigator->Command1_Click(0);
        const RecordingPrinter& printer = f->printer;
        QCOMPARE(printer.jobsEnded, 1);
        QCOMPARE(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::Table});
        const QString rule = QString(5, QLatin1Char(' ')) + QString(48, QChar(0x2014));
        const QString separator = QString(10, QLatin1Char(' ')) + QString(88, QChar(0x2014));
        const std::vector<QString> page = printer.pageText(1);
        QCOMPARE(page.size(), std::size_t(4 + 3 + 12 + 11 + 1));
        const std::vector<QString> top = {
            QString(),
            Line({{6, "Pat Doe"}}),
            Line({{6, "Thursday, November 19, 2026"}}),
            rule,
            Line({{45, "Initial Date"},
                  {58, "First Drill"},
                  {71, "Full"},
                  {80, "Highest"},
                  {94, "Date of"}}),
            Line({{6, " Topic Title"},
                  {42, " of Topic Test"},
                  {61, "Score"},
                  {70, "Takes"},
                  {81, "Score"},
                  {91, "Highest Score"}}),
            rule,
            Line({{6, "Definitions"}, {72, " 0"}}),
            separator,
            Line({{6, "Preliminary Evaluation"}, {72, " 0"}}),
            separator,
            Line({{6, "Real Property and Laws Relating to Ownership"},
                  {45, "09-01-2026"},
                  {61, "65.0%"},
                  {72, " 2"},
                  {81, "90.0%"},
                  {93, "10-02-2026"}}),
        };
        for (std::size_t i = 0; i < top.size(); ++i)
            QCOMPARE(page[i], top[i]);
        QCOMPARE(page.back(), rule);
        QCOMPARE(printer.pageText(2), page); // the second copy, a page of its own
        QVERIFY(printer.pageText(3).empty());

        // Rows print bold in Arial 11; the rules between them are thin.
        const PrintedLine& row = printer.lines[7];
        QCOMPARE(row.fontName, QStringLiteral("Arial"));
        QCOMPARE(row.fontSize, 11.0);
        QVERIFY(row.bold);
        QCOMPARE(printer.lines[8].fontSize, 6.0);
        QVERIFY(!printer.lines[8].bold);
        QCOMPARE(QApplication::focusWidget(), navigator->Command1[2]);

        // Cancel prints nothing.
        f->printer.dialogAnswer.reset();
        navigator->Command1_Click(0);
        QCOMPARE(printer.jobsEnded, 1);

        f->state.PrinterProblem = true;
        open();
        QVERIFY(!navigator->Command1[0]->isEnabled());
    }

    void helpComesUpModalOnItsTopic() {
        open();
        showActive();
        f->state.HelpTopic = 14; // already on this topic: not loaded again
        navigator->Command1_Click(1);
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::ShowModal, ScreenName::Help}}));
        f->screens.clearCalls();
        f->state.HelpTopic = 3;
        QTest::keyClick(navigator.get(), Qt::Key_H, Qt::AltModifier);
        QTRY_COMPARE(f->state.HelpTopic, 14); // a mnemonic clicks late
        QCOMPARE(f->screens.calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Unload, ScreenName::Help},
                                          {ScreenCallKind::ShowModal, ScreenName::Help}}));
    }

    void sizesFollowTheGridOnAResize() {
        open();
        navigator->resize(1100, 600);
        navigator->show();
        QVERIFY(QTest::qWaitForWindowExposed(navigator.get()));
        QTableWidget* grid = navigator->Grid1;
        QTRY_COMPARE(grid->columnWidth(0), static_cast<int>(grid->width() * 0.43));
        QCOMPARE(grid->columnWidth(1), static_cast<int>(grid->width() * 0.13));
        QCOMPARE(grid->columnWidth(5), static_cast<int>(grid->width() * 0.1));
        QCOMPARE(grid->rowHeight(4), grid->height() / 15);
        QCOMPARE(grid->rowHeight(0), 2 * (grid->height() / 15));
    }

    void keyboardAndScreenReader() {
        open();
        showActive();
        QCOMPARE(ControlsWithoutNames(*navigator), QStringList());
        const QList<QChar> keys = ButtonMnemonics(*navigator);
        QCOMPARE(keys, (QList<QChar>{u'p', u'h', u'd'}));

        QStringList order{QApplication::focusWidget()->objectName()};
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(order, (QStringList{QStringLiteral("Grid1"), QStringLiteral("Command1_0"),
                                     QStringLiteral("Command1_1"), QStringLiteral("Command1_2"),
                                     QStringLiteral("Grid1")}));
        QTest::keyClick(navigator.get(), Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(!navigator->isVisible());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::NavigatorScreenTest)
#include "navigator_screen_test.moc"
