#pragma once
// The gauge of Quiz800: a bar that rises with the score beside a scale from 0% to 100%, the
// pass mark, and the hand-shake that shows while the score passes.

#include <QWidget>

class QFrame;
class QLabel;

namespace tessera {

class ReviewGauge final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReviewGauge)

public:
    explicit ReviewGauge(QWidget* parent = nullptr);

    // Sets the pass mark's caption and place; the arrow points at the grade.
    void setPassingGrade(int grade);
    // Bar height and colour, and the hand-shake, for a score and whether it passes.
    void showScore(float score, bool passing);
    // Without a progress report only the scale line stays.
    void hideScore();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Where the bar may stand, taken from the scale line's geometry.
    int GaugeTop() const;
    int GaugeHeight() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeControls();

    int m_grade = 70;
    float m_score = 0;
    bool m_passing = false;
    QFrame* Shape1 = nullptr;  // the bar
    QFrame* Shape2 = nullptr;  // the scale line: its geometry is the gauge's
    QLabel* Label1 = nullptr;  // the pass mark
    QLabel* Label9 = nullptr;  // "100%"
    QLabel* Label10 = nullptr; // "0%"
    QLabel* HandShake = nullptr;
};

// The picture of two hands shaking, drawn at the given size.
QPixmap HandShakePicture(int size, qreal devicePixelRatio);

} // namespace tessera
