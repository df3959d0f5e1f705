// Renders every registered entry to <build>/gallery/<name>.png. An argument limits the run to
// the entries whose names contain it.

#include "tests/gallery/gallery.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace tessera {

namespace {

std::map<QString, GalleryBuild>& entries() {
    static std::map<QString, GalleryBuild> registered;
    return registered;
}

bool render(const QString& name, const GalleryBuild& build, const QDir& output) {
    GalleryScene scene;
    const std::unique_ptr<QWidget> screen(build(scene));
    if (!screen) {
        std::fprintf(stderr, "%s: the entry built nothing\n", qPrintable(name));
        return false;
    }
    screen->show();
    if (!QTest::qWaitForWindowExposed(screen.get())) {
        std::fprintf(stderr, "%s: the screen never showed\n", qPrintable(name));
        return false;
    }
    QCoreApplication::processEvents();
    const QString file = output.filePath(name + QStringLiteral(".png"));
    if (!screen->grab().save(file)) {
        std::fprintf(stderr, "%s: could not write %s\n", qPrintable(name), qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    return true;
}

} // namespace

GalleryEntry::GalleryEntry(const char* name, GalleryBuild build) {
    entries().emplace(QString::fromLatin1(name), std::move(build));
}

} // namespace tessera

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QString only = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    QDir output(QStringLiteral(TESSERA_GALLERY_DIR));
    if (!output.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", TESSERA_GALLERY_DIR);
        return 1;
    }
    int failures = 0;
    int rendered = 0;
    for (const auto& [name, build] : tessera::entries()) {
        if (!only.isEmpty() && !name.contains(only))
            continue;
        ++rendered;
        if (!tessera::render(name, build, output))
            ++failures;
    }
    std::printf("%d screens rendered, %d failed\n", rendered - failures, failures);
    return failures == 0 && rendered > 0 ? 0 : 1;
}
