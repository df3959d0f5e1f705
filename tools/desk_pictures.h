#pragma once
// The small pictures beside the options and on the alarm clock, drawn rather than loaded so
// that no file can be missing.

#include <QPixmap>

namespace tessera {

enum class DeskPicture { Shuffle, Speaker, Stopwatch, ReportCard, AlarmBell };

QPixmap DrawDeskPicture(DeskPicture picture, int size);

} // namespace tessera
