#include "platform/control_names.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace tessera {

namespace {

bool ShowsItsCaption(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->pixmap().isNull();
    if (const auto* frame = qobject_cast<const QGroupBox*>(control))
        return !frame->title().isEmpty();
    return qobject_cast<const QAbstractButton*>(control) != nullptr;
}

} // namespace

void DescribeControl(QWidget* control, const QString& words) {
    if (ShowsItsCaption(control)) {
        control->setAccessibleName(QString());
        control->setAccessibleDescription(words);
    } else {
        control->setAccessibleName(words);
    }
}

void NameControl(QWidget* control, const QString& objectName, const QString& accessibleName) {
    control->setObjectName(objectName);
    DescribeControl(control, accessibleName);
}

void NameControl(QWidget* control, const char* array, int index, const QString& accessibleName) {
    const QString name = QString::fromLatin1(array);
    NameControl(control, index < 0 ? name : name + QLatin1Char('_') + QString::number(index),
                accessibleName);
}

QPushButton* MakeCommand(const char* array, int index, const QString& caption,
                         const QString& words) {
    auto* button = new QPushButton(caption);
    NameControl(button, array, index,
                words.isEmpty() ? QString(caption).remove(QLatin1Char('&')) : words);
    button->setAutoDefault(false);
    return button;
}

} // namespace tessera
