#pragma once
// The chart of progress beside the monitor spreadsheet: the selected row's takes, score by
// date, with the passing grade drawn across.

#include "reports/navigator_chart_data.h"

#include <QWidget>

class QPainter;

namespace tessera {

class ProgressChart final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressChart)

public:
    explicit ProgressChart(QWidget* parent = nullptr);

    void setChart(ProgressChartData chart);
    const ProgressChartData& chart() const { return m_chart; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Plot;
    void drawScale(QPainter& painter, const Plot& plot) const;
    void drawTakes(QPainter& painter, const Plot& plot) const;

    ProgressChartData m_chart;
};

} // namespace tessera
