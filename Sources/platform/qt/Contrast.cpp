#include "platform/qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace kx {

namespace {

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& from, const QColor& to, double part) {
    const auto between = [part](double first, double second) {
        return static_cast<float>(first + part * (second - first));
    };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

} // namespace

double contrastBetween(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor readableOn(const QColor& background, const QColor& colour) {
    const QColor end =
        contrastBetween(background, Qt::white) > contrastBetween(background, Qt::black) ? Qt::white
                                                                                        : Qt::black;
    constexpr int steps = 20;
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(colour, end, static_cast<double>(step) / steps);
        if (contrastBetween(background, candidate) >= readableContrast) {
            return candidate;
        }
    }
    return end;
}

} // namespace kx
