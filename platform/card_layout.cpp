#include "platform/card_layout.h"

#include "platform/control_names.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cstring>

namespace tessera {

QGroupBox* MakeOptionFrame(const QString& caption, const char* array, const QStringList& captions,
                           std::span<QRadioButton*> options) {
    auto* frame = new QGroupBox(caption);
    auto* layout = new QVBoxLayout(frame);
    for (int i = 0; i < captions.size() && i < static_cast<int>(options.size()); ++i) {
        auto* option = new QRadioButton(captions[i]);
        NameControl(option, array, i, QString(captions[i]).remove(QLatin1Char('&')));
        layout->addWidget(option);
        options[static_cast<size_t>(i)] = option;
    }
    return frame;
}

namespace {

// The two lines of a head, each at its own start, drawn in place of the label's one-line caption.
class HeadLines final : public QObject {
public:
    HeadLines(QLabel* label, const ColumnHead& head)
        : QObject(label), m_label(label), m_head(head) {
        label->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != m_label || event->type() != QEvent::Paint)
            return false;
        QPainter painter(m_label);
        painter.setFont(m_label->font());
        painter.setPen(m_label->palette().color(m_label->foregroundRole()));
        const QFontMetrics metrics(m_label->font());
        const int start = m_head.start();
        const int blank = metrics.horizontalAdvance(QLatin1Char(' '));
        painter.drawText((m_head.upperStart - start) * blank, metrics.ascent(),
                         QLatin1String(m_head.upper));
        painter.drawText((m_head.lowerStart - start) * blank,
                         metrics.lineSpacing() + metrics.ascent(), QLatin1String(m_head.lower));
        return true;
    }

private:
    QLabel* m_label;
    ColumnHead m_head;
};

} // namespace

void SetColumnHead(QLabel* label, const ColumnHead& head) {
    // The caption as given, for the screen reader and for anyone who asks the label; on screen
    // its words stand over their columns in two lines.
    const QString upper = QLatin1String(head.upper);
    label->setText(upper.isEmpty() ? QLatin1String(head.lower)
                                   : upper + QLatin1Char(' ') + QLatin1String(head.lower));
    new HeadLines(label, head);
}

int ColumnOffset(const QListWidget* list, int column) {
    const QFontMetrics metrics(list->font());
    return list->frameWidth() + 3 + column * metrics.horizontalAdvance(QLatin1Char('0'));
}

void AlignColumnHeads(QWidget* strip, std::span<QLabel* const> labels,
                      std::span<const ColumnHead> heads, const QListWidget* list, int columns) {
    const QFontMetrics metrics(list->font());
    const int height = 2 * metrics.lineSpacing();
    const int blank = metrics.horizontalAdvance(QLatin1Char(' '));
    for (size_t i = 0; i < labels.size() && i < heads.size(); ++i) {
        const ColumnHead& head = heads[i];
        const int start = head.start();
        const int width =
            std::max(head.upperStart - start + static_cast<int>(std::strlen(head.upper)),
                     head.lowerStart - start + static_cast<int>(std::strlen(head.lower)));
        QLabel* label = labels[i];
        label->setFont(list->font());
        label->setFixedSize(width * blank + 1, height);
        label->move(ColumnOffset(list, start), 0);
    }
    strip->setFixedHeight(height);
    strip->setMinimumWidth(ColumnOffset(list, columns));
}

} // namespace tessera
