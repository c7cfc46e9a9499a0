// The line below Discover when more units answered than the registry keeps, in words.
//
// Pure, except that it looks up the sentence (support/LocalizedText.h), so it belongs to the main
// thread.

#pragma once

#include <string>

namespace kx {

// Empty when no unit was forgotten since the latest Discover.
std::string textOfForgottenUnits(bool areForgotten);

} // namespace kx
