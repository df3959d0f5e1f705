#include "platform/windows1252.h"

#include <algorithm>

namespace tessera {
namespace {

// 0x80 to 0x9F, where Windows-1252 differs from Latin-1.
constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

const std::array<char16_t, 256>& windows1252Table() {
    static const std::array<char16_t, 256> table = [] {
        std::array<char16_t, 256> t{};
        for (int i = 0; i < 256; ++i)
            t[i] = static_cast<char16_t>(i);
        for (int i = 0; i < 32; ++i)
            t[0x80 + i] = HighControls[i];
        return t;
    }();
    return table;
}

QString fromWindows1252(std::string_view bytes) {
    const auto& table = windows1252Table();
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    QChar* out = text.data();
    for (unsigned char byte : bytes)
        *out++ = QChar(table[byte]);
    return text;
}

int windows1252Byte(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return unit;
    for (int i = 0; i < 32; ++i) {
        if (HighControls[i] == unit)
            return 0x80 + i;
    }
    return -1;
}

bool inWindows1252(QStringView text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar ch) { return windows1252Byte(ch.unicode()) >= 0; });
}

std::string toWindows1252(QStringView text) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (QChar ch : text) {
        const int byte = windows1252Byte(ch.unicode());
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return bytes;
}

} // namespace tessera
