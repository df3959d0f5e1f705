#include "core/screen_colours.h"

#include <QLabel>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr double ReadableContrast = 4.5;

double RelativeLuminance(const QColor& colour) {
    const auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
}

// Below this luminance white text reads better than black.
constexpr double DarkGround = 0.179;

} // namespace

QColor ColourOf(int value) {
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

double ContrastRatio(const QColor& a, const QColor& b) {
    const double first = RelativeLuminance(a);
    const double second = RelativeLuminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor ReadableOn(const QColor& ink, const QColor& ground) {
    if (RelativeLuminance(ground) >= DarkGround || ContrastRatio(ink, ground) >= ReadableContrast)
        return ink;
    constexpr int Steps = 40;
    for (int step = 1; step < Steps; ++step) {
        const double towardWhite = step / static_cast<double>(Steps);
        const auto mix = [towardWhite](int channel) {
            return static_cast<int>(std::lround(channel + (255 - channel) * towardWhite));
        };
        const QColor lighter(mix(ink.red()), mix(ink.green()), mix(ink.blue()));
        if (ContrastRatio(lighter, ground) >= ReadableContrast)
            return lighter;
    }
    return Qt::white;
}

void SetTextColour(QLabel* label, int value) {
    QPalette palette = label->palette();
    const QColor ground = palette.color(label->backgroundRole());
    palette.setColor(QPalette::WindowText, ReadableOn(ColourOf(value), ground));
    label->setPalette(palette);
}

} // namespace tessera
