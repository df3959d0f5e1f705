#include "platform/card_layout.h"

#include "platform/control_names.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

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

void SetColumnHead(QLabel* label, const ColumnHead& head) {
    const int start = std::min(head.upperStart, head.lowerStart);
    label->setText(QString(head.upperStart - start, QLatin1Char(' ')) + QLatin1String(head.upper) +
                   QLatin1Char('\n') + QString(head.lowerStart - start, QLatin1Char(' ')) +
                   QLatin1String(head.lower));
}

int ColumnOffset(const QListWidget* list, int column) {
    const QFontMetrics metrics(list->font());
    return list->frameWidth() + 3 + column * metrics.horizontalAdvance(QLatin1Char('0'));
}

void AlignColumnHeads(QWidget* strip, std::span<QLabel* const> labels,
                      std::span<const ColumnHead> heads, const QListWidget* list, int columns) {
    int height = 0;
    for (size_t i = 0; i < labels.size() && i < heads.size(); ++i) {
        QLabel* label = labels[i];
        label->setFont(list->font());
        label->adjustSize();
        label->move(ColumnOffset(list, std::min(heads[i].upperStart, heads[i].lowerStart)), 0);
        height = std::max(height, label->sizeHint().height());
    }
    strip->setFixedHeight(height);
    strip->setMinimumWidth(ColumnOffset(list, columns));
}

} // namespace tessera
