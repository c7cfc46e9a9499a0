// How well a colour stands out from another one, as WCAG 2.1 measures it. Pure.

#pragma once

#include <QColor>

namespace kx {

// The least contrast of a text that WCAG 2.1 calls readable, at its level AA.
inline constexpr double readableContrast = 4.5;

// From 1 to 21.
double contrastBetween(const QColor& one, const QColor& other);

// The colour itself when it is readable on the background. Otherwise the nearest one towards white
// or black that is.
QColor readableOn(const QColor& background, const QColor& colour);

} // namespace kx
