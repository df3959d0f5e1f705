#pragma once
// The machine's printer behind the print dialog; a PDF file that the user names where the
// machine has no printer.

#include "platform/printer.h"

#include <QFont>
#include <QPainter>
#include <QPrinter>

#include <memory>

namespace tessera {

class SystemPrinter : public Printer {
public:
    SystemPrinter();
    ~SystemPrinter() override;
    Q_DISABLE_COPY_MOVE(SystemPrinter)

    std::optional<PrintChoice> showPrintDialog(PrintDialogKind kind) override;
    std::optional<QStringList> fontNames() override;
    void setFontName(const QString& name) override;
    void setFontSize(double points) override;
    void setFontBold(bool bold) override;
    void printLine(const QString& text, int column) override;
    void printColumns(const QList<ColumnText>& texts) override;
    void newPage() override;
    void printDocument(const QTextDocument& document) override;
    void endDoc() override;
    bool ok() const override { return m_ok; }

    // The next job goes to this PDF file, without a dialog.
    void setPdfOutput(const QString& fileName);

private:
    bool beginJob();
    QFont currentFont() const;
    void drawLine(const QList<ColumnText>& texts);
    void startPendingPages();
    void startPage();

    QPrinter m_printer;
    std::unique_ptr<QPainter> m_painter;
    QString m_fontName;
    double m_fontPoints = 10;
    bool m_fontBold = false;
    double m_y = 0;          // top of the next line, in device pixels
    bool m_pageUsed = false; // something stands on the current page
    int m_pendingPages = 0;  // new pages asked for and not yet started
    bool m_ok = true;
};

} // namespace tessera
