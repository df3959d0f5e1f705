#pragma once
// A printer that prints nothing and records every line, column, font and page break.

#include "platform/printer.h"

#include <QString>

#include <optional>
#include <vector>

namespace tessera {

struct PrintedLine {
    int job = 1;  // counts from 1; each endDoc starts the next
    int page = 1; // counts from 1 within the job
    QString text;
    int column = 1;
    QString fontName;
    double fontSize = 0;
    bool bold = false;
};

class RecordingPrinter final : public Printer {
public:
    // The answer the next print dialogs give; nothing means Cancel.
    std::optional<PrintChoice> dialogAnswer = PrintChoice{};
    // The fonts the printer offers; nothing means there is no printer.
    std::optional<QStringList> fonts =
        QStringList{QStringLiteral("Arial"), QStringLiteral("Courier New")};
    // Operations after this many printed lines fail, as a printer that stops would.
    std::optional<int> failAfterLines;

    std::vector<PrintDialogKind> dialogsShown;
    std::vector<PrintedLine> lines;
    // The plain text of each document printed, with the job and page it started on.
    std::vector<PrintedLine> documents;
    int jobsEnded = 0;

    std::optional<PrintChoice> showPrintDialog(PrintDialogKind kind) override;
    std::optional<QStringList> fontNames() override { return fonts; }
    void setFontName(const QString& name) override { m_fontName = name; }
    void setFontSize(double points) override { m_fontSize = points; }
    void setFontBold(bool bold) override { m_bold = bold; }
    void printLine(const QString& text, int column) override;
    // Recorded as one line, the later texts set at their columns with blanks as if every
    // character were one column wide; an empty text adds nothing.
    void printColumns(const QList<ColumnText>& texts) override;
    void newPage() override;
    void printDocument(const QTextDocument& document) override;
    void endDoc() override;
    bool ok() const override { return m_ok; }

    // The lines of one page of one job, as text with the column's blanks in front.
    std::vector<QString> pageText(int page, int job = 1) const;

private:
    bool working();

    QString m_fontName;
    double m_fontSize = 10;
    bool m_bold = false;
    int m_page = 1;
    bool m_ok = true;
};

} // namespace tessera
