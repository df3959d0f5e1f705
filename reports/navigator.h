#pragma once
// Navigator, the "Monitor Spreadsheet": one table of progress folded from the log, a row for
// each topic and exam, with a chart of the selected row's takes beside it. Read-only and modal.

#include "core/screen_context.h"
#include "reports/navigator_table.h"

#include <QWidget>

#include <array>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableWidget;

namespace tessera {

class ProgressChart;

class Navigator final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Navigator)

public:
    // Form_Load: reads the log and fills the table once.
    explicit Navigator(ScreenContext& context);

    // 0 "&Print", 1 "&Help", 2 "&Done".
    void Command1_Click(int index);

    QTableWidget* Grid1 = nullptr; // 13 rows by 6 columns; row 0 and column 0 are heads
    QLabel* Label1 = nullptr;
    std::array<QPushButton*, 3> Command1{};
    ProgressChart* Chart1 = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls();
    void writeHeads();
    void writeRows();
    void applySizes(const MonitorGridSizes& sizes);
    void showChart(int row);
    void printTable();

    ScreenContext& m_context;
    MonitorRows m_rows;
    QBoxLayout* m_body = nullptr; // the table, and the chart beside or under it
};

} // namespace tessera
