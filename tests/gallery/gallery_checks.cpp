#include "tests/gallery/gallery_checks.h"

#include "core/screen_colours.h"
#include "tests/support/screen_checks.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QSet>
#include <QWidget>

#include <optional>

namespace tessera {

namespace {

// The smallest display, 800 by 600, less a window frame and a panel.
constexpr QSize SmallestRoom(780, 540);
constexpr double ReadableContrast = 4.5;

// The screens by their object names; an entry may also be a printed page.
const QStringList ScreenNames =
    QStringLiteral("Pubdat ButtonMenu Quiz800 Aladdin QuizSumm PictForm ExamSet ExamTest Results "
                   "Scoring Navigator Viewing NoteBook Help Calculator AlarmForm Preferences")
        .split(QLatin1Char(' '));

// Access keys that the system's own captions share on one screen: on the navigation screen the
// frame choices with the buttons of a frame ("Tools and &Options", "N&otebook", "Review Test
// &Options"; "C&alculator", "&Alarm Clock"; "&Screening Exam", "&Screening Exams"; "&Topic
// Review Test", "&Topic Review Tests"), and Find with Find Next on the viewer and the notebook.
const QHash<QString, QString> GivenSharedKeys = {
    {QStringLiteral("ButtonMenu"), QStringLiteral("oast")},
    {QStringLiteral("Viewing"), QStringLiteral("f")},
    {QStringLiteral("NoteBook"), QStringLiteral("f")}};

QString Shown(QString caption) {
    return caption.remove(QLatin1Char('&')).simplified();
}

// What the control shows, for the controls whose name is their caption.
std::optional<QString> ShownCaption(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        if (label->pixmap().isNull() && label->textFormat() != Qt::RichText)
            return Shown(label->text());
        return std::nullopt;
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return Shown(button->text());
    if (const auto* frame = qobject_cast<const QGroupBox*>(&control))
        return Shown(frame->title());
    return std::nullopt;
}

// The screen can shrink to the smallest display; its opening size may follow the display.
void CheckRoom(const QWidget& screen, QStringList& faults) {
    const QSize least = screen.minimumSizeHint().expandedTo(screen.minimumSize());
    if (least.boundedTo(SmallestRoom) != least)
        faults << QStringLiteral("needs at least %1x%2, more than %3x%4")
                      .arg(least.width())
                      .arg(least.height())
                      .arg(SmallestRoom.width())
                      .arg(SmallestRoom.height());
}

void CheckNames(const QWidget& screen, QStringList& faults) {
    for (const QString& nameless : ControlsWithoutNames(screen)) {
        const auto* control = screen.findChild<QWidget*>(nameless);
        const auto* label = qobject_cast<const QLabel*>(control);
        const bool silent = label != nullptr && label->text().isEmpty() && label->pixmap().isNull();
        if (control != nullptr && control->isVisibleTo(&screen) && !silent)
            faults << nameless + QStringLiteral(": no name for a screen reader");
    }
    for (QWidget* control : screen.findChildren<QWidget*>()) {
        const std::optional<QString> caption = ShownCaption(*control);
        if (!caption || caption->isEmpty() || control->objectName().isEmpty() ||
            !control->isVisibleTo(&screen))
            continue;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
        const QString name = spoken != nullptr ? Shown(spoken->text(QAccessible::Name)) : QString();
        if (name != *caption)
            faults << QStringLiteral("%1: spoken as \"%2\" but shows \"%3\"")
                          .arg(control->objectName(), name, *caption);
    }
}

// An access key presses one control among those the candidate can reach at once.
void CheckKeys(const QWidget& screen, QStringList& faults) {
    QSet<QChar> seen;
    for (QAbstractButton* button : screen.findChildren<QAbstractButton*>()) {
        const QString caption = button->text();
        const qsizetype mark = caption.indexOf(QLatin1Char('&'));
        if (mark < 0 || mark + 1 >= caption.size() || !button->isVisibleTo(&screen))
            continue;
        const QChar key = caption.at(mark + 1).toLower();
        if (seen.contains(key) && !GivenSharedKeys.value(screen.objectName()).contains(key))
            faults << QStringLiteral("Alt+%1 on more than one button").arg(key.toUpper());
        seen.insert(key);
    }
}

void CheckInk(const QWidget& screen, QStringList& faults) {
    for (QLabel* label : screen.findChildren<QLabel*>()) {
        if (!label->isVisibleTo(&screen) || label->text().isEmpty() || !label->pixmap().isNull())
            continue;
        const QPalette& palette = label->palette();
        const double contrast = ContrastRatio(palette.color(label->foregroundRole()),
                                              palette.color(label->backgroundRole()));
        if (contrast < ReadableContrast)
            faults << QStringLiteral("%1: contrast %2 to 1 on the dark ground")
                          .arg(label->objectName())
                          .arg(contrast, 0, 'f', 2);
    }
}

} // namespace

QStringList ScreenFaults(const QWidget& screen, GalleryLook look) {
    QStringList faults;
    if (!ScreenNames.contains(screen.objectName())) {
        // Only a printed page, a picture, goes unchecked.
        if (qobject_cast<const QLabel*>(&screen) == nullptr)
            faults << QStringLiteral("not a screen the gallery knows");
        return faults;
    }
    if (look == GalleryLook::Plain)
        CheckRoom(screen, faults);
    CheckNames(screen, faults);
    CheckKeys(screen, faults);
    if (look == GalleryLook::Dark)
        CheckInk(screen, faults);
    for (QString& fault : faults)
        fault.prepend(screen.objectName() + QLatin1Char(' '));
    return faults;
}

} // namespace tessera
