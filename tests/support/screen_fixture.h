#pragma once
// What a screen is given in a test: the study fixture, a host that records what the screen asks
// of it, and the context that joins them.

#include "core/screen_context.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_fixture.h"

#include <QString>
#include <QTest>
#include <QWidget>

#include <string>

// A failed comparison of two renderings shows both.
template <> inline char* QTest::toString(const std::string& text) {
    return qstrdup(text.c_str());
}

namespace tessera {

struct ScreenFixture : StudyFixture {
    RecordingScreenHost screens;
    ScreenContext context{state, services, screens};
};

// The control of that object name on the screen; a missing one ends the test program.
template <class T> T* Control(const QWidget* screen, const QString& name) {
    T* found = screen->findChild<T*>(name);
    if (found == nullptr)
        qFatal("no control %s", qPrintable(name));
    return found;
}

template <class T> T* Control(const QWidget* screen, const char* name) {
    return Control<T>(screen, QString::fromLatin1(name));
}

} // namespace tessera
