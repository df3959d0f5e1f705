#include "reports/navigator_chart.h"

#include "platform/windows1252.h"

#include <QPainter>
#include <QPainterPath>

namespace tessera {

namespace {

// Colours that carry meaning: green for passing, red for failing, black for neutral.
const QColor Passing(0, 255, 0);
const QColor Failing(255, 0, 0);
const QColor Line(0, 0, 128);
const QColor Grid(220, 220, 220);
const QColor Faint(110, 110, 110);

constexpr int PointRadius = 5;

} // namespace

ProgressChart::ProgressChart(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ProgressChart::setChart(ProgressChartData chart) {
    m_chart = std::move(chart);
    setAccessibleDescription(fromWindows1252(m_chart.description));
    update();
}

QSize ProgressChart::sizeHint() const {
    return {320, 300};
}

QSize ProgressChart::minimumSizeHint() const {
    return {220, 200};
}

// Where the plot stands in the widget, and how a share and a place along the takes map into it.
struct ProgressChart::Plot {
    QRect area;
    double inset = 0; // takes stand clear of the ends, so that the first and last dates fit
    int line = 0;     // the height of a line of text
    double x(double along) const {
        return area.left() + inset + along * (area.width() - 2 * inset);
    }
    double y(double share) const { return area.bottom() - share * area.height(); }
};

void ProgressChart::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Faint);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));

    const QFontMetrics metrics(font());
    Plot plot;
    plot.line = metrics.height();
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(Qt::black);
    const QRect titleBox(8, 6, width() - 16, plot.line);
    painter.drawText(titleBox, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(bold).elidedText(fromWindows1252(m_chart.title), Qt::ElideRight,
                                                   titleBox.width()));
    painter.setFont(font());

    const int left = metrics.horizontalAdvance(QStringLiteral("100%")) + 14;
    plot.area = QRect(left, titleBox.bottom() + plot.line + 8, width() - left - 12,
                      height() - titleBox.bottom() - 3 * plot.line - 20);
    plot.inset = metrics.horizontalAdvance(QStringLiteral("00-00-0000")) / 2.0 + 4;
    if (plot.area.width() < 20 || plot.area.height() < 20)
        return;
    drawScale(painter, plot);
    painter.setPen(QPen(Faint, 1.5, Qt::DashLine));
    const double passY = plot.y(m_chart.passingShare);
    painter.drawLine(QPointF(plot.area.left(), passY), QPointF(plot.area.right(), passY));
    if (m_chart.points.empty()) {
        painter.setPen(Faint);
        painter.drawText(plot.area, Qt::AlignCenter, QStringLiteral("No full takes yet"));
    } else {
        drawTakes(painter, plot);
    }
    // The passing grade is named in a key above the plot, at the right, where no take can stand.
    const QString passing = fromWindows1252(m_chart.passingLabel);
    const double passingWidth = metrics.horizontalAdvance(passing);
    const double keyY = titleBox.bottom() + 4;
    const QRectF passingBox(plot.area.right() - passingWidth, keyY, passingWidth, plot.line);
    const double sampleY = passingBox.center().y();
    painter.setPen(QPen(Faint, 1.5, Qt::DashLine));
    painter.drawLine(QPointF(passingBox.left() - 26, sampleY),
                     QPointF(passingBox.left() - 6, sampleY));
    painter.setPen(Qt::black);
    painter.drawText(passingBox, Qt::AlignRight | Qt::AlignVCenter, passing);
}

// Scores from 0 to 100% upwards, in quarters.
void ProgressChart::drawScale(QPainter& painter, const Plot& plot) const {
    for (int percent = 0; percent <= 100; percent += 25) {
        const double y = plot.y(percent / 100.0);
        painter.setPen(Grid);
        painter.drawLine(QPointF(plot.area.left(), y), QPointF(plot.area.right(), y));
        painter.setPen(Faint);
        painter.drawText(QRectF(0, y - plot.line / 2.0, plot.area.left() - 6, plot.line),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(percent) + QLatin1Char('%'));
    }
    painter.drawLine(plot.area.bottomLeft(), plot.area.topLeft());
}

// The takes joined in their order, each a dot green for passing or red for failing, its score
// above and its date below.
void ProgressChart::drawTakes(QPainter& painter, const Plot& plot) const {
    QPainterPath path;
    for (const ChartPoint& point : m_chart.points) {
        const QPointF at(plot.x(point.x), plot.y(point.y));
        if (path.elementCount() == 0)
            path.moveTo(at);
        else
            path.lineTo(at);
    }
    painter.setPen(QPen(Line, 2));
    painter.drawPath(path);

    // A label stands only where the one before it leaves room, so that many takes stay readable.
    const QFontMetrics metrics(font());
    double scoreRoomFrom = -1e9;
    double dateRoomFrom = -1e9;
    const auto label = [&](const QString& text, double x, double y, double& roomFrom) {
        const double width = metrics.horizontalAdvance(text) + 6;
        if (x - width / 2 < roomFrom)
            return;
        roomFrom = x + width / 2;
        painter.drawText(QRectF(x - width / 2, y, width, plot.line), Qt::AlignCenter, text);
    };
    for (const ChartPoint& point : m_chart.points) {
        const QPointF at(plot.x(point.x), plot.y(point.y));
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(point.passing ? Passing : Failing);
        painter.drawEllipse(at, PointRadius, PointRadius);
        label(fromWindows1252(point.score), at.x(), at.y() - PointRadius - plot.line - 2,
              scoreRoomFrom);
        painter.setPen(Faint);
        label(fromWindows1252(point.date), at.x(), plot.area.bottom() + 4, dateRoomFrom);
    }
}

} // namespace tessera
