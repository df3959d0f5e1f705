// Renders every registered entry to <build>/gallery/<look>/<name>.png and checks each screen as
// it stands (see gallery_checks.h). "--look scale2" renders at twice the size, "--look dark"
// under a dark palette; another argument limits the run to the entries whose names contain it.

#include "tests/gallery/gallery.h"

#include "core/content_file.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "tests/gallery/gallery_checks.h"
#include "tests/support/full_course_generator.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>

namespace tessera {

namespace {

QString& folder() {
    static QString path;
    return path;
}

std::map<QString, GalleryBuild>& entries() {
    static std::map<QString, GalleryBuild> registered;
    return registered;
}

// A dark desktop theme as Qt's own style draws it.
void UseDarkPalette() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette dark;
    const QColor window(45, 45, 48);
    const QColor base(30, 30, 32);
    const QColor text(230, 230, 230);
    dark.setColor(QPalette::Window, window);
    dark.setColor(QPalette::WindowText, text);
    dark.setColor(QPalette::Base, base);
    dark.setColor(QPalette::AlternateBase, window);
    dark.setColor(QPalette::Text, text);
    dark.setColor(QPalette::Button, window);
    dark.setColor(QPalette::ButtonText, text);
    dark.setColor(QPalette::ToolTipBase, base);
    dark.setColor(QPalette::ToolTipText, text);
    dark.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(140, 140, 140));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(140, 140, 140));
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(140, 140, 140));
    QApplication::setPalette(dark);
}

bool render(const QString& name, const GalleryBuild& build, const QDir& output, GalleryLook look) {
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
    const QStringList faults = ScreenFaults(*screen, look);
    for (const QString& fault : faults)
        std::fprintf(stderr, "%s: %s\n", qPrintable(name), qPrintable(fault));
    const QString file = output.filePath(name + QStringLiteral(".png"));
    if (!screen->grab().save(file)) {
        std::fprintf(stderr, "%s: could not write %s\n", qPrintable(name), qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    return faults.isEmpty();
}

} // namespace

void GalleryScene::loadDefaultCourse() {
    std::vector<course::SourceError> errors;
    const course::Course source =
        course::ReadCourse(std::filesystem::path(TESSERA_SOURCE_ROOT) / "course", errors);
    std::string file = errors.empty() ? course::WriteContent(source, errors) : std::string();
    if (!errors.empty() || file.size() < 2)
        file = FullCourseContent();
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
}

QString GalleryFolder() {
    return folder();
}

GalleryEntry::GalleryEntry(const char* name, GalleryBuild build) {
    entries().emplace(QString::fromLatin1(name), std::move(build));
}

} // namespace tessera

int main(int argc, char* argv[]) {
    QString lookName = QStringLiteral("plain");
    QString only;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (argument == QStringLiteral("--look") && i + 1 < argc)
            lookName = QString::fromLocal8Bit(argv[++i]);
        else
            only = argument;
    }
    const std::map<QString, tessera::GalleryLook> looks = {
        {QStringLiteral("plain"), tessera::GalleryLook::Plain},
        {QStringLiteral("scale2"), tessera::GalleryLook::Scale2},
        {QStringLiteral("dark"), tessera::GalleryLook::Dark}};
    if (!looks.contains(lookName)) {
        std::fprintf(stderr, "no look %s: plain, scale2 or dark\n", qPrintable(lookName));
        return 1;
    }
    const tessera::GalleryLook look = looks.at(lookName);
    if (look == tessera::GalleryLook::Scale2)
        qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    if (look == tessera::GalleryLook::Dark)
        tessera::UseDarkPalette();
    QDir output(QStringLiteral(TESSERA_GALLERY_DIR) + QLatin1Char('/') + lookName);
    if (!output.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", qPrintable(output.path()));
        return 1;
    }
    tessera::folder() = output.path();
    int failures = 0;
    int rendered = 0;
    for (const auto& [name, build] : tessera::entries()) {
        if (!only.isEmpty() && !name.contains(only))
            continue;
        ++rendered;
        if (!tessera::render(name, build, output, look))
            ++failures;
    }
    std::printf("%d screens rendered, %d failed\n", rendered - failures, failures);
    return failures == 0 && rendered > 0 ? 0 : 1;
}
