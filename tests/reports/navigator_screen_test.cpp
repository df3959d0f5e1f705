// Navigator as the candidate meets it: the grid printed as it stands, its chart following the
// current cell, help on its topic and the keyboard. The cells' texts and the sizes are the rules
// test's; the gallery shows the screen at its sizes.

#include "core/progress_file.h"
#include "reports/navigator.h"
#include "reports/navigator_chart.h"
#include "tests/support/screen_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace tessera {

namespace {

// A printed line as the recording printer keeps it, from "column:text|column:text": each text
// from its column, counted from 1, as if every character took one column.
QString Line(const QString& texts) {
    QString line;
    for (const QString& text : texts.split(u'|'))
        line = line.leftJustified(text.section(u':', 0, 0).toInt() - 1) + text.section(u':', 1);
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
        header.LogDates = {"", "09-01-2026", "09-08-2026", "10-02-2026"};
        header.LogCodes = {0, 3, 11, 3};
        header.LogScores = {0, 0.65F, 0.72F, 0.9F};
        WriteProgressHeader(header);
        navigator = std::make_unique<Navigator>(f->context);
        navigator->show();
        navigator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(navigator.get()));
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        f->state.UserName = "Pat Doe";
    }

    void cleanup() {
        navigator.reset();
        f.reset();
    }

    // The page shows the grid's cells where they stand: a cell out of place shows here.
    void printsTheGridOnePageACopy() {
        open();
        f->printer.dialogAnswer = PrintChoice{2, false};
        navigator->Command1_Click(0);
        const RecordingPrinter& printer = f->printer;
        QCOMPARE(printer.jobsEnded, 1);
        QCOMPARE(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::Table});
        const QString rule = QString(5, u' ') + QString(48, QChar(0x2014));
        const QString separator = QString(10, u' ') + QString(88, QChar(0x2014));
        const std::vector<QString> page = printer.pageText(1);
        QCOMPARE(page.size(), std::size_t(4 + 3 + 12 + 11 + 1));
        const QStringList top = {
            QString(),
            Line(u"6:Pat Doe"_s),
            Line(u"6:Thursday, November 19, 2026"_s),
            rule,
            Line(u"45:Initial Date|58:First Drill|71:Full|80:Highest|94:Date of"_s),
            Line(u"6: Topic Title|42: of Topic Test|61:Score|70:Takes|81:Score|91:Highest Score"_s),
            rule,
            Line(u"6:Definitions|72: 0"_s),
            separator,
            Line(u"6:Preliminary Evaluation|72: 0"_s),
            separator,
            Line(u"6:Real Property and Laws Relating to Ownership|45:09-01-2026|61:65.0%|72: 2|"
                 "81:90.0%|93:10-02-2026"_s),
        };
        QCOMPARE(QStringList(page.begin(), page.begin() + top.size()), top);
        QCOMPARE(page[23] + u'\n' + page[27],
                 Line(u"6:Brokerage: Responsibilities and Functions of S...|72: 0"_s) + u'\n' +
                     Line(u"6:Screening Exam II|45:09-08-2026|61:72.0%|72: 1|81:72.0%|"
                          "93:09-08-2026"_s));
        QCOMPARE(page.back(), rule);
        QCOMPARE(printer.pageText(2), page); // the second copy, a page of its own
        QVERIFY(printer.pageText(3).empty());
        // Rows print bold in Arial 11; the rules between them are thin.
        const PrintedLine& row = printer.lines[7];
        const PrintedLine& thin = printer.lines[8];
        QCOMPARE(QStringList(
                     {row.fontName, QString::number(row.fontSize), QString::number(thin.fontSize)}),
                 QStringList({u"Arial"_s, u"11"_s, u"6"_s}));
        QVERIFY(row.bold && !thin.bold);
        QCOMPARE(QApplication::focusWidget(), navigator->Command1[2]);

        f->printer.dialogAnswer.reset(); // Cancel prints nothing
        navigator->Command1_Click(0);
        QCOMPARE(printer.jobsEnded, 1);
        f->state.PrinterProblem = true;
        open();
        QVERIFY(!navigator->Command1[0]->isEnabled());
    }

    void chartKeyboardHelpAndDone() {
        open();
        // The chart follows the current cell, which starts on row 1, column 1; the head column
        // holds no current cell.
        QTableWidget* grid = navigator->Grid1;
        QCOMPARE(navigator->Chart1->chart().title, std::string("Definitions"));
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Left);
        QCOMPARE(std::pair(grid->currentRow(), grid->currentColumn()), std::pair(3, 1));
        QCOMPARE(navigator->Chart1->accessibleDescription(),
                 u"Real Property and Laws Relating to Ownership: 2 full takes, 65.0% on "
                 "09-01-2026, 90.0% on 10-02-2026, passing grade 70%."_s);

        QStringList order{QApplication::focusWidget()->objectName()};
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(order.join(u' '), u"Grid1 Command1_0 Command1_1 Command1_2 Grid1"_s);

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
        QTest::keyClick(navigator.get(), Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(!navigator->isVisible());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::NavigatorScreenTest)
#include "navigator_screen_test.moc"
