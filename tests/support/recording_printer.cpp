#include "recording_printer.h"

#include "platform/rtf_reader.h"

#include <QTextDocument>

namespace tessera {

std::optional<PrintChoice> RecordingPrinter::showPrintDialog(PrintDialogKind kind) {
    dialogsShown.push_back(kind);
    m_ok = true;
    return dialogAnswer;
}

bool RecordingPrinter::working() {
    if (failAfterLines && static_cast<int>(lines.size()) >= *failAfterLines)
        m_ok = false;
    return m_ok;
}

void RecordingPrinter::printLine(const QString& text, int column) {
    const QStringList parts = text.split(QStringLiteral("\r\n"));
    for (qsizetype i = 0; i < parts.size() && working(); ++i) {
        lines.push_back(
            {jobsEnded + 1, m_page, parts[i], i == 0 ? column : 1, m_fontName, m_fontSize, m_bold});
    }
}

void RecordingPrinter::printColumns(const QList<ColumnText>& texts) {
    if (texts.isEmpty() || !working())
        return;
    const int first = texts.front().column;
    QString line;
    for (const ColumnText& piece : texts) {
        if (!piece.text.isEmpty()) // an empty text leaves no mark on the line
            line = line.leftJustified(piece.column - first) + piece.text;
    }
    lines.push_back({jobsEnded + 1, m_page, line, first, m_fontName, m_fontSize, m_bold});
}

void RecordingPrinter::newPage() {
    if (working())
        ++m_page;
}

void RecordingPrinter::printDocument(const QTextDocument& document) {
    if (!working())
        return;
    const bool pageUsed =
        !lines.empty() && lines.back().job == jobsEnded + 1 && lines.back().page == m_page;
    if (pageUsed)
        ++m_page;
    documents.push_back(
        {jobsEnded + 1, m_page, plainTextOf(document), 1, m_fontName, m_fontSize, m_bold});
    ++m_page; // whatever follows starts on a fresh page
}

void RecordingPrinter::endDoc() {
    if (!m_ok)
        return;
    ++jobsEnded;
    m_page = 1;
}

std::vector<QString> RecordingPrinter::pageText(int page, int job) const {
    std::vector<QString> text;
    for (const PrintedLine& line : lines) {
        if (line.job == job && line.page == page)
            text.push_back(QString(std::max(line.column - 1, 0), QChar(u' ')) + line.text);
    }
    return text;
}

} // namespace tessera
