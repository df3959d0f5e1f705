#pragma once
// A report card driven as the candidate would: the rows it lists, and clicks on an option's
// circle or a button's face.

#include <QAbstractButton>
#include <QListWidget>
#include <QStringList>
#include <QTest>

namespace tessera {

inline QStringList ListRows(const QListWidget* list) {
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

inline void ClickAtLeft(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}

} // namespace tessera
