#pragma once
// Printed output in the gallery: a print command run through the real printer's PDF path, its
// first page turned into a picture by pdftoppm and shown as the entry's screen. The whole PDF
// stays beside the pictures as <name>.pdf.

#include <QString>

#include <functional>

class QWidget;

namespace tessera {

class Printer;

// Nothing when the PDF or its picture could not be made; the reason goes to stderr.
QWidget* PrintedFirstPage(const QString& name, const std::function<void(Printer&)>& print);

} // namespace tessera
