#pragma once
// The print dialog and the printer: what every print command of the system asks for.

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QTextDocument;

namespace tessera {

// Which choices the print dialog offers.
enum class PrintDialogKind {
    RichText, // a rich text view: the selection may be printed alone
    Table,    // a printed table: no choice of the selection
};

// What the user chose in the print dialog.
struct PrintChoice {
    int copies = 1;
    bool selectionOnly = false;
};

// A text and the column it starts at.
struct ColumnText {
    int column = 1;
    QString text;
};

class Printer {
public:
    virtual ~Printer() = default;

    // The modal print dialog. Nothing on Cancel or when the dialog cannot be shown.
    virtual std::optional<PrintChoice> showPrintDialog(PrintDialogKind kind) = 0;

    // The printer's font names, for the test at start-up. Nothing when there is no way to print
    // at all: the caller then reports its printer problem.
    virtual std::optional<QStringList> fontNames() = 0;

    // The page printer. Each setting applies to the text printed from then on. An empty or
    // unknown font name falls back to the system's fixed-pitch font.
    virtual void setFontName(const QString& name) = 0;
    virtual void setFontSize(double points) = 0;
    virtual void setFontBold(bool bold) = 0;

    // Prints a text at a column and ends the line. Columns count from 1 in units of the current
    // font's average character. A CR LF inside the text starts a new line at column 1.
    virtual void printLine(const QString& text, int column = 1) = 0;
    // Prints each text at its own column on one line and ends the line, so that texts in a
    // proportional font still start under the heads above them.
    virtual void printColumns(const QList<ColumnText>& texts) = 0;
    // The next text starts at the top of a new page.
    virtual void newPage() = 0;
    // Prints a rich text document from the top of a fresh page, as many pages as it takes.
    virtual void printDocument(const QTextDocument& document) = 0;
    // The job goes to the printer; nothing leaves before this, so copies and pages form one job.
    virtual void endDoc() = 0;

    // False once an operation has failed. After a failure every further operation does
    // nothing, so a print command that runs on to its end ends without a message.
    virtual bool ok() const = 0;
};

// A table as one print job: the dialog, then `setUp` (the font), then `printCopy` for each copy
// asked for while the printer is well, then the end of the document. False on Cancel.
template <class SetUp, class PrintCopy>
bool PrintTableJob(Printer& printer, SetUp setUp, PrintCopy printCopy) {
    const std::optional<PrintChoice> choice = printer.showPrintDialog(PrintDialogKind::Table);
    if (!choice)
        return false;
    setUp();
    for (int copy = 0; copy < choice->copies && printer.ok(); ++copy)
        printCopy();
    printer.endDoc();
    return true;
}

} // namespace tessera
