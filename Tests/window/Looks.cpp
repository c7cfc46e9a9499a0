#include "Looks.h"

#include <QImage>
#include <QPixmap>
#include <algorithm>
#include <cmath>
#include <map>

namespace kx {

namespace {

QPalette contrastPalette(const QColor& paper, const QColor& ink, const QColor& mark) {
    QPalette palette(paper);
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button,
          QPalette::ToolTipBase, QPalette::HighlightedText}) {
        palette.setColor(role, paper);
    }
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
          QPalette::ToolTipText, QPalette::PlaceholderText}) {
        palette.setColor(role, ink);
    }
    for (const QPalette::ColorRole role :
         {QPalette::Highlight, QPalette::Link, QPalette::LinkVisited}) {
        palette.setColor(role, mark);
    }
    return palette;
}

QPalette paletteOf(Looks looks) {
    switch (looks) {
    case Looks::dark:
        return {QColor(53, 53, 53), QColor(45, 45, 45)};
    case Looks::contrastOnBlack:
        return contrastPalette(Qt::black, Qt::white, Qt::yellow);
    case Looks::contrastOnWhite:
        return contrastPalette(Qt::white, Qt::black, Qt::darkBlue);
    case Looks::light:
        break;
    }
    return QApplication::palette();
}

std::map<QRgb, int> frequencyOfColors(const QImage& picture) {
    std::map<QRgb, int> frequency;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++frequency[picture.pixel(x, y)];
        }
    }
    return frequency;
}

QColor mostFrequent(const std::map<QRgb, int>& frequency) {
    const auto most = std::max_element(
        frequency.begin(), frequency.end(),
        [](const auto& one, const auto& other) { return one.second < other.second; });
    return most == frequency.end() ? QColor() : QColor(most->first);
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

const char* nameOf(Looks looks) {
    switch (looks) {
    case Looks::light:
        return "light";
    case Looks::dark:
        return "dark";
    case Looks::contrastOnBlack:
        return "contrastOnBlack";
    case Looks::contrastOnWhite:
        return "contrastOnWhite";
    }
    return "";
}

UsedPalette::UsedPalette(Looks looks)
    : UsedPalette(paletteOf(looks)) {}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrastOf(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

double contrastOfTextIn(QWidget& widget, const QRect& part) {
    const auto frequency = frequencyOfColors(widget.grab(part).toImage());
    const QColor background = mostFrequent(frequency);
    double contrast = 1.0;
    for (const auto& [pixel, count] : frequency) {
        contrast = std::max(contrast, contrastOf(QColor(pixel), background));
    }
    return contrast;
}

double contrastOfTextIn(QWidget& widget) {
    return contrastOfTextIn(widget, widget.rect().adjusted(4, 4, -4, -4));
}

QColor backgroundOf(const QImage& picture) {
    return mostFrequent(frequencyOfColors(picture));
}

} // namespace kx
