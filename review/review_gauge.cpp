#include "review/review_gauge.h"

#include "core/screen_colours.h"
#include "platform/control_names.h"
#include "review/item_scoring.h"
#include "review/review_text.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

namespace tessera {

namespace {

constexpr int BarWidth = 22;
constexpr int MarkWidth = 44;
constexpr int HandShakeSize = 56;

QLabel* makeLabel(QWidget* parent, const char* name, const QString& text) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

ReviewGauge::ReviewGauge(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Gauge"));
    setAccessibleName(QStringLiteral("Score gauge"));

    Shape2 = new QFrame(this);
    Shape2->setObjectName(QStringLiteral("Shape2"));
    Shape2->setFrameShape(QFrame::VLine);
    Shape2->setFrameShadow(QFrame::Plain);
    Shape2->setLineWidth(2);
    Shape2->setAccessibleName(QStringLiteral("Gauge scale"));

    Shape1 = new QFrame(this);
    Shape1->setObjectName(QStringLiteral("Shape1"));
    Shape1->setAutoFillBackground(true);
    Shape1->setAccessibleName(QStringLiteral("Score bar"));
    Shape1->setFrameShape(QFrame::Box);
    Shape1->setFrameShadow(QFrame::Plain);
    Shape1->hide(); // shown once the pass mark is set

    Label9 = makeLabel(this, "Label9", QStringLiteral("100%"));
    Label10 = makeLabel(this, "Label10", QStringLiteral("0%"));
    Label1 = makeLabel(this, "Label1", QStringLiteral("Pass%"));
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label1->setToolTip(QStringLiteral("PASSING!"));

    HandShake = new QLabel(this);
    HandShake->setObjectName(QStringLiteral("HandShake"));
    HandShake->setAccessibleName(QStringLiteral("Passing"));
    HandShake->setToolTip(QStringLiteral("PASSING!"));
    HandShake->setPixmap(HandShakePicture(HandShakeSize, devicePixelRatioF()));
    HandShake->hide();
}

QSize ReviewGauge::sizeHint() const {
    return {BarWidth + 2 * MarkWidth + 8, 260};
}

QSize ReviewGauge::minimumSizeHint() const {
    return {BarWidth + 2 * MarkWidth + 8, 160};
}

int ReviewGauge::GaugeTop() const {
    return Shape2->y();
}

int ReviewGauge::GaugeHeight() const {
    return Shape2->height();
}

void ReviewGauge::setPassingGrade(int grade) {
    m_grade = grade;
    Label1->setText(QStringLiteral("<----\n") + QString::fromStdString(WholePercentText(grade)));
    DescribeControl(Label1,
                    QStringLiteral("Pass mark ") + QString::fromStdString(WholePercentText(grade)));
    placeControls();
    Shape1->show();
}

void ReviewGauge::showScore(float score, bool passing) {
    m_score = score;
    m_passing = passing;
    QPalette palette = Shape1->palette();
    palette.setColor(QPalette::Window, ColourOf(passing ? PassingColour : WrongColour));
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Window).darker(140));
    Shape1->setPalette(palette);
    HandShake->setVisible(passing);
    setAccessibleDescription(QStringLiteral("Score ") + QString::fromStdString(PercentText(score)) +
                             (passing ? QStringLiteral(", passing") : QStringLiteral(", failing")));
    placeControls();
}

void ReviewGauge::hideScore() {
    for (QWidget* part : {static_cast<QWidget*>(Shape1), static_cast<QWidget*>(Label1),
                          static_cast<QWidget*>(Label9), static_cast<QWidget*>(Label10),
                          static_cast<QWidget*>(HandShake)})
        part->hide();
}

void ReviewGauge::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeControls();
}

void ReviewGauge::placeControls() {
    // The scale runs between the two marks; the hand-shake sits below it.
    const int markHeight = fontMetrics().height();
    const int lineX = MarkWidth + 4;
    const int top = markHeight / 2 + 2;
    const int bottom = height() - HandShakeSize - markHeight / 2 - 8;
    Shape2->setGeometry(lineX, top, 2, std::max(bottom - top, 10));

    Label9->setGeometry(0, top - markHeight / 2, MarkWidth, markHeight);
    Label10->setGeometry(0, GaugeTop() + GaugeHeight() - markHeight / 2, MarkWidth, markHeight);

    const GaugeBar bar = GaugeBarGeometry(GaugeTop(), GaugeHeight(), m_score);
    Shape1->setGeometry(lineX + 4, bar.top, BarWidth, bar.height);

    const int labelHeight = 2 * markHeight + 2;
    Label1->setGeometry(lineX + BarWidth + 8,
                        PassMarkTop(GaugeTop(), GaugeHeight(), m_grade, labelHeight), MarkWidth + 8,
                        labelHeight);

    HandShake->setGeometry((width() - HandShakeSize) / 2, height() - HandShakeSize - 2,
                           HandShakeSize, HandShakeSize);
}

QPixmap HandShakePicture(int size, qreal devicePixelRatio) {
    QPixmap picture(QSize(size, size) * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 64.0, size / 64.0);

    // A gold medal disc behind two hands meeting in the middle.
    p.setPen(QPen(QColor(150, 110, 20), 2));
    p.setBrush(QColor(250, 205, 70));
    p.drawEllipse(QRectF(2, 2, 60, 60));

    const QColor skin(236, 178, 128);
    const QPen outline(QColor(120, 70, 40), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);

    // Sleeves come in from both sides.
    p.setPen(QPen(QColor(30, 50, 90), 1.6));
    p.setBrush(QColor(52, 92, 160));
    p.drawPolygon(QPolygonF({{4, 36}, {16, 28}, {22, 38}, {10, 46}}));
    p.setBrush(QColor(70, 70, 78));
    p.drawPolygon(QPolygonF({{60, 36}, {48, 28}, {42, 38}, {54, 46}}));

    // The right hand's palm and the left hand's fingers wrapped over it.
    QPainterPath palm;
    palm.moveTo(44, 30);
    palm.cubicTo(36, 24, 28, 24, 22, 30);
    palm.lineTo(18, 36);
    palm.cubicTo(24, 42, 34, 44, 42, 40);
    palm.closeSubpath();
    p.setPen(outline);
    p.setBrush(skin);
    p.drawPath(palm);

    QPainterPath fingers;
    fingers.moveTo(20, 30);
    fingers.cubicTo(28, 28, 38, 30, 46, 36);
    fingers.cubicTo(44, 42, 36, 44, 28, 42);
    fingers.cubicTo(24, 40, 20, 38, 20, 30);
    p.setBrush(skin.lighter(106));
    p.drawPath(fingers);
    for (int i = 0; i < 3; ++i) {
        const qreal x = 30 + i * 4.5;
        p.drawLine(QPointF(x, 33 + i * 0.8), QPointF(x - 1.5, 41.5 - i * 0.2));
    }
    // The thumb lying on top.
    QPainterPath thumb;
    thumb.moveTo(26, 30);
    thumb.cubicTo(30, 25, 36, 24, 40, 26);
    p.drawPath(thumb);
    return picture;
}

} // namespace tessera
