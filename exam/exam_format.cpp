#include "exam/exam_format.h"

namespace tessera {

std::string CountColumns(long value) {
    return RightAligned(NumberText(value), 4);
}

char ChoiceLetter(int choice) {
    return choice >= 1 && choice <= 4 ? static_cast<char>('A' + choice - 1) : ' ';
}

} // namespace tessera
