#pragma once
// Printing a rich text view: the dialog, the copies, the selection or the whole text.

namespace tessera {

class Printer;
class RichTextView;

// Ends without a message on Cancel or on any error; the focus goes back to the view.
void PrintRichText(RichTextView& view, Printer& printer);

} // namespace tessera
