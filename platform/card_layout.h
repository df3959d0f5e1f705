#pragma once
// Pieces of a report card's window: a frame of named option buttons, and two-line column heads that
// stand over the columns of the list's rows.

#include "platform/fixed_pitch_font.h"

#include <QStringList>

#include <span>

class QGroupBox;
class QLabel;
class QListWidget;
class QRadioButton;
class QWidget;

namespace tessera {

// A frame of option buttons, the i-th named array_i with its caption, without the mnemonic's
// "&", as accessible name. The buttons go into `options`.
QGroupBox* MakeOptionFrame(const QString& caption, const char* array, const QStringList& captions,
                           std::span<QRadioButton*> options);

// Where a head's two lines stand, in characters of the list's rows: a head is placed over the
// figures of its column, and a long word may reach over a narrow neighbour's blanks.
struct ColumnHead {
    int upperStart;
    const char* upper;
    int lowerStart;
    const char* lower;

    // The first character either line takes, where the head's label stands.
    int start() const { return upperStart < lowerStart ? upperStart : lowerStart; }
};

// The head's caption as given, upper and lower words as one; on screen the label shows its two
// lines, each at its own start.
void SetColumnHead(QLabel* label, const ColumnHead& head);

// Moves each head's label, a child of `strip`, over its columns in the list's font, and gives
// the strip the height of the heads and the width of `columns` characters.
void AlignColumnHeads(QWidget* strip, std::span<QLabel* const> labels,
                      std::span<const ColumnHead> heads, const QListWidget* list, int columns);

// The x of character `column` of the list's rows, for a label that stands in line with them.
int ColumnOffset(const QListWidget* list, int column);

} // namespace tessera
