// Palettes as people set them, and measures of how well a text stands out.

#pragma once

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace kx {

enum class Looks { light, dark, contrastOnBlack, contrastOnWhite };

inline constexpr Looks allLooks[] = {Looks::light, Looks::dark, Looks::contrastOnBlack,
                                     Looks::contrastOnWhite};

// A name of one word.
const char* nameOf(Looks looks);

// Sets the application's palette, and restores the earlier one when the test is over.
class UsedPalette {
public:
    explicit UsedPalette(Looks looks);
    explicit UsedPalette(const QPalette& palette) { QApplication::setPalette(palette); }
    ~UsedPalette() { QApplication::setPalette(_before); }
    UsedPalette(const UsedPalette&) = delete;
    UsedPalette& operator=(const UsedPalette&) = delete;

private:
    QPalette _before = QApplication::palette();
};

// From 0 (black) to 1 (white), as WCAG 2.1 defines it.
double luminance(const QColor& color);

// From 1 to 21. WCAG 2.1 requires 4.5 for a text, and 3 for a text that is large or inactive.
double contrastOf(const QColor& one, const QColor& other);

// The contrast between two pixels of a part of the widget. One has the most frequent colour, which
// is the background. The other differs most from it, and is the core of a letter.
double contrastOfTextIn(QWidget& widget, const QRect& part);

// The same for the whole widget without its frame.
double contrastOfTextIn(QWidget& widget);

// The most frequent colour.
QColor backgroundOf(const QImage& picture);

} // namespace kx
