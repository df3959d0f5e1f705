#include "core/screen_text.h"
#include "platform/windows1252.h"

namespace tessera {

QString Text(std::string_view bytes) {
    return fromWindows1252(bytes);
}

QString ShownUserName(const std::string& userName) {
    QString name = Text(userName);
    while (name.endsWith(QLatin1Char(' ')) || name.endsWith(QChar()))
        name.chop(1);
    return name;
}

} // namespace tessera
