#include "platform/system_printer.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QScreen>
#include <QTextDocument>

namespace tessera {

SystemPrinter::SystemPrinter() : m_printer(QPrinter::HighResolution) {}

SystemPrinter::~SystemPrinter() {
    if (m_painter && m_painter->isActive())
        m_painter->end();
}

std::optional<PrintChoice> SystemPrinter::showPrintDialog(PrintDialogKind kind) {
    QWidget* parent = QApplication::activeWindow();
    if (QPrinterInfo::availablePrinters().isEmpty()) {
        const QString fileName = QFileDialog::getSaveFileName(
            parent, QStringLiteral("Print to PDF File"), QStringLiteral("Tessera.pdf"),
            QStringLiteral("PDF files (*.pdf)"));
        if (fileName.isEmpty())
            return std::nullopt;
        setPdfOutput(fileName);
        return PrintChoice{};
    }
    m_printer.setOutputFormat(QPrinter::NativeFormat);
    QPrintDialog dialog(&m_printer, parent);
    QAbstractPrintDialog::PrintDialogOptions options = QAbstractPrintDialog::PrintShowPageSize;
    if (kind == PrintDialogKind::RichText)
        options |= QAbstractPrintDialog::PrintSelection;
    dialog.setOptions(options);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    PrintChoice choice;
    choice.copies = std::max(1, m_printer.copyCount());
    choice.selectionOnly = m_printer.printRange() == QPrinter::Selection;
    m_printer.setCopyCount(1); // the print command prints each copy itself
    m_ok = true;
    return choice;
}

std::optional<QStringList> SystemPrinter::fontNames() {
    // With no printer the job goes to a PDF file, which can hold every font the system has.
    if (!QPrinterInfo::availablePrinters().isEmpty() || m_printer.isValid())
        return QFontDatabase::families();
    return std::nullopt;
}

void SystemPrinter::setFontName(const QString& name) {
    m_fontName = name;
}

void SystemPrinter::setFontSize(double points) {
    if (points > 0)
        m_fontPoints = points;
}

void SystemPrinter::setFontBold(bool bold) {
    m_fontBold = bold;
}

void SystemPrinter::setPdfOutput(const QString& fileName) {
    m_printer.setOutputFormat(QPrinter::PdfFormat);
    m_printer.setOutputFileName(fileName);
    m_printer.setCopyCount(1);
    m_ok = true;
}

bool SystemPrinter::beginJob() {
    if (!m_ok)
        return false;
    if (m_painter && m_painter->isActive())
        return true;
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(&m_printer)) {
        m_ok = false;
        return false;
    }
    m_y = 0;
    m_pageUsed = false;
    return true;
}

QFont SystemPrinter::currentFont() const {
    QFont font = m_fontName.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                                      : QFont(m_fontName);
    font.setPointSizeF(m_fontPoints);
    font.setBold(m_fontBold);
    return font;
}

void SystemPrinter::printLine(const QString& text, int column) {
    if (!beginJob())
        return;
    const QFont font(currentFont(), &m_printer);
    const QFontMetricsF metrics(font, &m_printer);
    const double pageHeight = m_printer.pageRect(QPrinter::DevicePixel).height();
    m_painter->setFont(font);
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    for (qsizetype i = 0; i < lines.size() && m_ok; ++i) {
        if (m_pageUsed && m_y + metrics.lineSpacing() > pageHeight)
            newPage();
        const int atColumn = i == 0 ? std::max(column, 1) : 1;
        m_painter->drawText(
            QPointF((atColumn - 1) * metrics.averageCharWidth(), m_y + metrics.ascent()), lines[i]);
        m_y += metrics.lineSpacing();
        m_pageUsed = true;
    }
}

void SystemPrinter::newPage() {
    if (!beginJob())
        return;
    if (!m_printer.newPage())
        m_ok = false;
    m_y = 0;
    m_pageUsed = false;
}

void SystemPrinter::printDocument(const QTextDocument& document) {
    if (!beginJob())
        return;
    if (m_pageUsed)
        newPage();
    // The document is laid out as on screen and drawn scaled to the printer, so that indents and
    // tab stops, kept in screen pixels, keep their place beside the text.
    std::unique_ptr<QTextDocument> copy(document.clone());
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double screenDpi = screen ? screen->logicalDotsPerInchY() : 96.0;
    const double scale = m_printer.logicalDpiY() / screenDpi;
    const QRectF page = m_printer.pageRect(QPrinter::DevicePixel);
    const QSizeF pageInScreenUnits(page.width() / scale, page.height() / scale);
    copy->setPageSize(pageInScreenUnits);
    const int pages = copy->pageCount();
    for (int i = 0; i < pages && m_ok; ++i) {
        if (i > 0)
            newPage();
        m_painter->save();
        m_painter->scale(scale, scale);
        m_painter->translate(0, -i * pageInScreenUnits.height());
        copy->drawContents(m_painter.get(),
                           QRectF(QPointF(0, i * pageInScreenUnits.height()), pageInScreenUnits));
        m_painter->restore();
    }
    m_pageUsed = true;
    m_y = page.height();
}

void SystemPrinter::endDoc() {
    if (m_painter && m_painter->isActive() && !m_painter->end())
        m_ok = false;
    m_painter.reset();
    m_y = 0;
    m_pageUsed = false;
}

} // namespace tessera
