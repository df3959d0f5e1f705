#include "platform/print_rich_text.h"

#include "platform/printer.h"
#include "platform/rich_text_view.h"

namespace tessera {

void PrintRichText(RichTextView& view, Printer& printer) {
    const std::optional<PrintChoice> choice = printer.showPrintDialog(PrintDialogKind::RichText);
    if (!choice)
        return;
    for (int copy = 0; copy < choice->copies && printer.ok(); ++copy) {
        if (!choice->selectionOnly)
            view.setSelLength(0);
        view.selPrint(printer);
    }
    printer.endDoc();
    view.setFocus();
}

} // namespace tessera
