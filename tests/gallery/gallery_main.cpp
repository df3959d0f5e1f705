// Renders every registered entry to <build>/gallery/<look>/<name>.png and checks each screen as
// it stands (see gallery_checks.h). "--look scale2" renders at twice the size, "--look dark"
// under a dark palette; another argument limits the run to the entries whose names contain it.

#include "tests/gallery/gallery.h"

#include "core/content_file.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "platform/system_printer.h"
#include "tests/gallery/gallery_checks.h"
#include "tests/support/full_course_generator.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPalette>
#include <QPixmap>
#include <QProcess>
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
    const auto paint = [&dark](const QColor& colour,
                               std::initializer_list<QPalette::ColorRole> roles) {
        for (const QPalette::ColorRole role : roles)
            dark.setColor(role, colour);
    };
    paint(QColor(45, 45, 48), {QPalette::Window, QPalette::AlternateBase, QPalette::Button});
    paint(QColor(30, 30, 32), {QPalette::Base, QPalette::ToolTipBase});
    paint(QColor(230, 230, 230),
          {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText});
    paint(QColor(160, 160, 160), {QPalette::PlaceholderText});
    paint(QColor(42, 130, 218), {QPalette::Highlight});
    paint(Qt::white, {QPalette::HighlightedText});
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        dark.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    QApplication::setPalette(dark);
}

// The real printer with its dialog answered: one copy, into the PDF file already set.
class PdfPrinter final : public SystemPrinter {
public:
    explicit PdfPrinter(const QString& file) { setPdfOutput(file); }

    std::optional<PrintChoice> showPrintDialog(PrintDialogKind) override { return PrintChoice{}; }
};

// Reports a fault of the entry; false, for the entry failed.
bool Fault(const QString& name, const QString& fault) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(name), qPrintable(fault));
    return false;
}

bool render(const QString& name, const GalleryBuild& build, const QDir& output, GalleryLook look) {
    GalleryScene scene;
    const std::unique_ptr<QWidget> screen(build(scene));
    if (!screen)
        return Fault(name, QStringLiteral("the entry built nothing"));
    screen->show();
    if (!QTest::qWaitForWindowExposed(screen.get()))
        return Fault(name, QStringLiteral("the screen never showed"));
    QCoreApplication::processEvents();
    const QStringList faults = ScreenFaults(*screen, look);
    for (const QString& fault : faults)
        Fault(name, fault);
    const QString file = output.filePath(name + QStringLiteral(".png"));
    if (!screen->grab().save(file))
        return Fault(name, QStringLiteral("could not write ") + file);
    std::printf("%s\n", qPrintable(file));
    return faults.isEmpty();
}

} // namespace

QWidget* PrintedFirstPage(const QString& name, const std::function<void(Printer&)>& print) {
    const QDir output(folder());
    const QString pdf = output.filePath(name + QStringLiteral(".pdf"));
    bool printed = false;
    {
        PdfPrinter printer(pdf);
        print(printer);
        printed = printer.ok();
    }
    const QString prefix = output.filePath(name + QStringLiteral("-page"));
    QPixmap page;
    if (!printed ||
        QProcess::execute(QStringLiteral("pdftoppm"),
                          {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                           QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                           QStringLiteral("1"), QStringLiteral("-singlefile"), pdf, prefix}) != 0 ||
        !page.load(prefix + QStringLiteral(".png"))) {
        Fault(name, QStringLiteral("printing to %1 or its picture by pdftoppm failed").arg(pdf));
        return nullptr;
    }
    auto* label = new QLabel;
    label->setPixmap(page);
    label->setWindowTitle(name);
    return label;
}

void GalleryScene::loadDefaultCourse() {
    std::vector<course::SourceError> errors;
    const course::Course source =
        course::ReadCourse(std::filesystem::path(TESSERA_SOURCE_ROOT) / "course", errors);
    std::string file = errors.empty() ? course::WriteContent(source, errors) : std::string();
    if (!errors.empty() || file.size() < 2)
        file = FullCourseContent();
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
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
    const qsizetype lookIndex =
        QStringList{QStringLiteral("plain"), QStringLiteral("scale2"), QStringLiteral("dark")}
            .indexOf(lookName);
    if (lookIndex < 0) {
        std::fprintf(stderr, "no look %s: plain, scale2 or dark\n", qPrintable(lookName));
        return 1;
    }
    const auto look = static_cast<tessera::GalleryLook>(lookIndex);
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
