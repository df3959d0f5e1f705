#include "core/screen_text.h"
#include "platform/windows1252.h"

namespace tessera {

QString ShownUserName(const std::string& userName) {
    QString name = fromWindows1252(userName);
    while (name.endsWith(QLatin1Char(' ')) || name.endsWith(QChar()))
        name.chop(1);
    return name;
}

} // namespace tessera
