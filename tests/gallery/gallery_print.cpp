#include "tests/gallery/gallery_print.h"

#include "platform/system_printer.h"

#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QProcess>

#include <cstdio>

namespace tessera {

namespace {

// The real printer with its dialog answered: one copy, into the PDF file already set.
class PdfPrinter final : public SystemPrinter {
public:
    explicit PdfPrinter(const QString& file) { setPdfOutput(file); }

    std::optional<PrintChoice> showPrintDialog(PrintDialogKind) override { return PrintChoice{}; }
};

} // namespace

QWidget* PrintedFirstPage(const QString& name, const std::function<void(Printer&)>& print) {
    const QDir output(GalleryFolder());
    const QString pdf = output.filePath(name + QStringLiteral(".pdf"));
    {
        PdfPrinter printer(pdf);
        print(printer);
        if (!printer.ok()) {
            std::fprintf(stderr, "%s: printing to %s failed\n", qPrintable(name), qPrintable(pdf));
            return nullptr;
        }
    }
    const QString prefix = output.filePath(name + QStringLiteral("-page"));
    const int status =
        QProcess::execute(QStringLiteral("pdftoppm"),
                          {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                           QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                           QStringLiteral("1"), QStringLiteral("-singlefile"), pdf, prefix});
    QPixmap page;
    if (status != 0 || !page.load(prefix + QStringLiteral(".png"))) {
        std::fprintf(stderr, "%s: pdftoppm could not render %s\n", qPrintable(name),
                     qPrintable(pdf));
        return nullptr;
    }
    auto* label = new QLabel;
    label->setPixmap(page);
    label->setWindowTitle(name);
    return label;
}

} // namespace tessera
