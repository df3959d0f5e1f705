#include "platform/qt_dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace tessera {

namespace {

QMessageBox::Icon boxIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons boxButtons(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

MessageAnswer answerOf(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

// The system's texts break lines with CR LF; a label wants plain line feeds.
QString displayText(const QString& text) {
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

} // namespace

MessageAnswer QtDialogs::showMessage(const QString& text, const QString& title, MessageIcon icon,
                                     MessageButtons buttons) {
    QMessageBox box(boxIcon(icon), title, displayText(text), boxButtons(buttons),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    // The first button is the default, as on the system's own message boxes.
    box.setDefaultButton(buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel
                             ? QMessageBox::Yes
                             : QMessageBox::Ok);
    if (buttons == MessageButtons::Ok)
        box.setEscapeButton(QMessageBox::Ok);
    return answerOf(box.exec());
}

QString QtDialogs::showInput(const QString& prompt, const QString& title, const QString& initial) {
    bool accepted = false;
    const QString text =
        QInputDialog::getText(QApplication::activeWindow(), title, displayText(prompt),
                              QLineEdit::Normal, initial, &accepted);
    return accepted ? text : QString();
}

} // namespace tessera
