#include "platform/system_printer.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QScreen>
#include <QTextDocument>

#include <array>

namespace tessera {

namespace {

// A column is the font's average character as printers have long measured it: the advance of
// the lower-case letters and the blank, weighted by how often each stands in English text. The
// average a font declares today is taken over all its glyphs, and in a large proportional font
// it is so wide that a table planned in columns runs off the page. In a fixed-pitch font both are
// the width of every character.
double ColumnWidth(const QFontMetricsF& metrics) {
    static constexpr std::array<int, 26> weights = {64, 14, 27, 35, 100, 20, 14, 42, 63,
                                                    3,  6,  35, 20, 56,  56, 17, 4,  49,
                                                    56, 71, 31, 10, 18,  3,  18, 2};
    constexpr int blankWeight = 166; // the weights add up to 1000
    double width = blankWeight * metrics.horizontalAdvance(QLatin1Char(' '));
    for (std::size_t i = 0; i < weights.size(); ++i)
        width += weights[i] * metrics.horizontalAdvance(QLatin1Char(static_cast<char>('a' + i)));
    return width / 1000.0;
}

} // namespace

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
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    for (qsizetype i = 0; i < lines.size(); ++i)
        drawLine({{i == 0 ? column : 1, lines[i]}});
}

void SystemPrinter::printColumns(const QList<ColumnText>& texts) {
    drawLine(texts);
}

void SystemPrinter::drawLine(const QList<ColumnText>& texts) {
    if (!beginJob())
        return;
    const QFont font(currentFont(), &m_printer);
    const QFontMetricsF metrics(font, &m_printer);
    const double pageHeight = m_printer.pageRect(QPrinter::DevicePixel).height();
    m_painter->setFont(font);
    startPendingPages();
    if (m_pageUsed && m_y + metrics.lineSpacing() > pageHeight)
        startPage();
    if (!m_ok)
        return;
    const double column = ColumnWidth(metrics);
    const auto xOf = [column](const ColumnText& piece) {
        return (std::max(piece.column, 1) - 1) * column;
    };
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const double x = xOf(texts[i]);
        QString text = texts[i].text;
        // A proportional text that would run into the next one is cut short, so both stay
        // readable.
        for (qsizetype next = i + 1; next < texts.size(); ++next) {
            if (!texts[next].text.isEmpty()) {
                const double room = xOf(texts[next]) - x - column / 2;
                if (metrics.horizontalAdvance(text) > room)
                    text = metrics.elidedText(text, Qt::ElideRight, std::max(room, 0.0));
                break;
            }
        }
        m_painter->drawText(QPointF(x, m_y + metrics.ascent()), text);
    }
    m_y += metrics.lineSpacing();
    m_pageUsed = true;
}

void SystemPrinter::newPage() {
    if (beginJob())
        ++m_pendingPages;
}

// A page asked for starts only when something is printed on it, so that a job that ends with a
// new page leaves no blank sheet.
void SystemPrinter::startPendingPages() {
    for (; m_pendingPages > 0 && m_ok; --m_pendingPages)
        startPage();
    m_pendingPages = 0;
}

void SystemPrinter::startPage() {
    if (!m_printer.newPage())
        m_ok = false;
    m_y = 0;
    m_pageUsed = false;
}

void SystemPrinter::printDocument(const QTextDocument& document) {
    if (!beginJob())
        return;
    startPendingPages();
    if (m_pageUsed)
        startPage();
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
            startPage();
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
    m_pendingPages = 0;
}

} // namespace tessera
