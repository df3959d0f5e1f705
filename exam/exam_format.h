#pragma once
// The text forms of the exam screens: list rows, captions and choice letters, beside the
// masks they share with the rest of the system.

#include "core/text_masks.h"

#include <string>

namespace tessera {

// A count in the form "@@@@" of a number text: "   5", " 300".
std::string CountColumns(long value);

// The letter of a choice, 1 for "A"; a blank for none.
char ChoiceLetter(int choice);

} // namespace tessera
