#pragma once
// The machine's printer, woken on first use: the print system is slow to start, and the title
// screen should not wait for it.

#include "platform/system_printer.h"

#include <memory>

namespace tessera {

class DeferredPrinter final : public Printer {
public:
    std::optional<PrintChoice> showPrintDialog(PrintDialogKind kind) override {
        return printer().showPrintDialog(kind);
    }
    std::optional<QStringList> fontNames() override { return printer().fontNames(); }
    void setFontName(const QString& name) override { printer().setFontName(name); }
    void setFontSize(double points) override { printer().setFontSize(points); }
    void setFontBold(bool bold) override { printer().setFontBold(bold); }
    void printLine(const QString& text, int column) override { printer().printLine(text, column); }
    void printColumns(const QList<ColumnText>& texts) override { printer().printColumns(texts); }
    void newPage() override { printer().newPage(); }
    void printDocument(const QTextDocument& document) override {
        printer().printDocument(document);
    }
    void endDoc() override { printer().endDoc(); }
    bool ok() const override { return m_printer == nullptr || m_printer->ok(); }

private:
    SystemPrinter& printer() {
        if (m_printer == nullptr)
            m_printer = std::make_unique<SystemPrinter>();
        return *m_printer;
    }

    std::unique_ptr<SystemPrinter> m_printer;
};

} // namespace tessera
