#include "tools/desk_pictures.h"

#include <QPainter>
#include <QPainterPath>

namespace tessera {

namespace {

const QColor Ink(40, 60, 110);
const QColor Fill(250, 205, 70);

void drawShuffle(QPainter& painter) {
    // Two paths that cross, each ending in an arrow head.
    painter.drawLine(QPointF(6, 24), QPointF(16, 24));
    painter.drawLine(QPointF(16, 24), QPointF(30, 8));
    painter.drawLine(QPointF(6, 8), QPointF(16, 8));
    painter.drawLine(QPointF(16, 8), QPointF(30, 24));
    painter.drawPolyline(QPolygonF({QPointF(26, 5), QPointF(31, 8), QPointF(26, 11)}));
    painter.drawPolyline(QPolygonF({QPointF(26, 21), QPointF(31, 24), QPointF(26, 27)}));
}

void drawSpeaker(QPainter& painter) {
    painter.setBrush(Fill);
    painter.drawPolygon(QPolygonF({QPointF(5, 12), QPointF(11, 12), QPointF(18, 6), QPointF(18, 26),
                                   QPointF(11, 20), QPointF(5, 20)}));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(14, 10, 8, 12), -60 * 16, 120 * 16);
    painter.drawArc(QRectF(14, 6, 14, 20), -60 * 16, 120 * 16);
}

void drawStopwatch(QPainter& painter) {
    painter.setBrush(Fill);
    painter.drawEllipse(QRectF(6, 8, 20, 20));
    painter.drawRect(QRectF(14, 3, 4, 4));
    painter.drawLine(QPointF(16, 18), QPointF(16, 11));
    painter.drawLine(QPointF(16, 18), QPointF(21, 20));
}

void drawReportCard(QPainter& painter) {
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(7, 4, 18, 24));
    for (int row = 0; row < 3; ++row)
        painter.drawLine(QPointF(10, 10 + 5 * row), QPointF(22, 10 + 5 * row));
    painter.setPen(QPen(QColor(0, 128, 0), 2.5));
    painter.drawPolyline(QPolygonF({QPointF(14, 24), QPointF(17, 27), QPointF(28, 16)}));
}

void drawAlarmBell(QPainter& painter) {
    QPainterPath bell;
    bell.moveTo(6, 24);
    bell.cubicTo(10, 22, 8, 8, 16, 7);
    bell.cubicTo(24, 8, 22, 22, 26, 24);
    bell.closeSubpath();
    painter.setBrush(Fill);
    painter.drawPath(bell);
    painter.drawEllipse(QRectF(13.5, 24, 5, 5));
    painter.drawLine(QPointF(16, 7), QPointF(16, 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(1, 6, 8, 12), 100 * 16, 80 * 16);
    painter.drawArc(QRectF(23, 6, 8, 12), -80 * 16, 80 * 16);
}

} // namespace

QPixmap DrawDeskPicture(DeskPicture picture, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // Drawn on a 32-unit square.
    painter.scale(size / 32.0, size / 32.0);
    painter.setPen(QPen(Ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (picture) {
    case DeskPicture::Shuffle:
        drawShuffle(painter);
        break;
    case DeskPicture::Speaker:
        drawSpeaker(painter);
        break;
    case DeskPicture::Stopwatch:
        drawStopwatch(painter);
        break;
    case DeskPicture::ReportCard:
        drawReportCard(painter);
        break;
    case DeskPicture::AlarmBell:
        drawAlarmBell(painter);
        break;
    }
    return pixmap;
}

} // namespace tessera
