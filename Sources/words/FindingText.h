// What a discovery found out, in words: the line below Discover.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/Finding.h"

#include <string>

namespace kx {

std::string textOfFinding(const Finding& finding);

} // namespace kx
